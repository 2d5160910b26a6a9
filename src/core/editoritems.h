// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

namespace zephira {

/// The editing control's colour items by number. Where something has two, the first paints the text and the second what
/// is behind it.
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

/// Stands for the item that something hasn't got.
constexpr int noItem = -1;

/// What a person sees and may change together: a line of the properties dialog and a row of the settings. noItem where a
/// row has none.
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
