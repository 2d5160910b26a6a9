// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

namespace zephira {

/// The editing control's colour items by number. Fore is the colour of the text, Back that of its background.
enum ColourItem : int {
    WindowColour,
    LeftMarginColour,
    BookmarkFore,
    BookmarkBack,
    TextFore,
    TextBack,
    NumberFore,
    NumberBack,
    KeywordFore,
    KeywordBack,
    OperatorFore,
    OperatorBack,
    ScopeKeywordFore,
    ScopeKeywordBack,
    CommentFore,
    CommentBack,
    StringFore,
    StringBack,
    TagTextFore,
    TagTextBack,
    TagEntityFore,
    TagEntityBack,
    TagElementFore,
    TagElementBack,
    TagAttributeFore,
    TagAttributeBack,
    LineNumberFore,
    LineNumberBack,
    LineDividerColour,
    MarginDividerColour,
    HighlightedLineColour,
    colourItemTotal
};

/// The editing control's font style items by number.
enum FontStyleItem : int {
    TextFont,
    NumberFont,
    KeywordFont,
    OperatorFont,
    ScopeKeywordFont,
    CommentFont,
    StringFont,
    TagTextFont,
    TagEntityFont,
    TagElementFont,
    TagAttributeFont,
    LineNumberFont,
    fontStyleTotal
};

/// Marks an item that a row doesn't have.
constexpr int noItem = -1;

/// The colours and font style that the user sets together: an entry of the properties dialog and a row of the settings.
/// noItem where the row lacks the item.
struct AppearanceRow {
    const char16_t *name;
    int foreground;
    int background;
    int fontStyle;
};

/// In the order of the settings' rows.
constexpr std::array<AppearanceRow, 18> appearanceRows{{
    {u"Bookmark", BookmarkFore, BookmarkBack, noItem},
    {u"Comment", CommentFore, CommentBack, CommentFont},
    {u"Horizontal divider lines", LineDividerColour, noItem, noItem},
    {u"Vertical divider lines", MarginDividerColour, noItem, noItem},
    {u"Highlighted line", HighlightedLineColour, noItem, noItem},
    {u"Keyword", KeywordFore, KeywordBack, KeywordFont},
    {u"Left margin", LeftMarginColour, noItem, noItem},
    {u"Line number", LineNumberFore, LineNumberBack, LineNumberFont},
    {u"Number", NumberFore, NumberBack, NumberFont},
    {u"Operator", OperatorFore, OperatorBack, OperatorFont},
    {u"Scope keyword", ScopeKeywordFore, ScopeKeywordBack, ScopeKeywordFont},
    {u"String", StringFore, StringBack, StringFont},
    {u"Tag element name", TagElementFore, TagElementBack, TagElementFont},
    {u"Tag entity", TagEntityFore, TagEntityBack, TagEntityFont},
    {u"Tag attribute name", TagAttributeFore, TagAttributeBack, TagAttributeFont},
    {u"Tag text", TagTextFore, TagTextBack, TagTextFont},
    {u"Text", TextFore, TextBack, TextFont},
    {u"Window", WindowColour, noItem, noItem},
}};

} // namespace zephira
