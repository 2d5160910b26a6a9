// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

namespace zephira {

/// Means "no colour": a background with this value shows the window's colour.
constexpr quint32 automaticColour = 0xffffffff;

/// Font styles by number. Bold and italic are bits; other bits of a style are kept but have no effect.
enum FontStyle : int { NormalStyle = 0, BoldStyle = 1, ItalicStyle = 2, BoldItalicStyle = 3, UnderlinedStyle = 4 };

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
/// noItem where the row lacks the item. What ships is what a new editing control has, and what the installed settings
/// say.
struct AppearanceRow {
    const char16_t *name;
    int foreground;
    int background;
    int fontStyle;
    quint32 shippedForeground; ///< red in the lowest byte
    quint32 shippedBackground = automaticColour;
    FontStyle shippedFontStyle = NormalStyle; ///< only in the settings; a new control has none
};

/// In the order of the settings' rows.
// clang-format off: a row a line
constexpr std::array<AppearanceRow, 18> appearanceRows{{
    {u"Bookmark", BookmarkFore, BookmarkBack, noItem, 0xa85f1e, 0xf7e6d6},
    {u"Comment", CommentFore, CommentBack, CommentFont, 0x5f6b5b, automaticColour, ItalicStyle},
    {u"Horizontal divider lines", LineDividerColour, noItem, noItem, 0xd9d1c9},
    {u"Vertical divider lines", MarginDividerColour, noItem, noItem, 0xe9e3dd},
    {u"Highlighted line", HighlightedLineColour, noItem, noItem, 0xfbf6f1},
    {u"Keyword", KeywordFore, KeywordBack, KeywordFont, 0x9e2e7a, automaticColour, BoldStyle},
    {u"Left margin", LeftMarginColour, noItem, noItem, 0xfaf8f6},
    {u"Line number", LineNumberFore, LineNumberBack, LineNumberFont, 0x766b5f, 0xfaf8f6},
    {u"Number", NumberFore, NumberBack, NumberFont, 0x004a8f},
    {u"Operator", OperatorFore, OperatorBack, OperatorFont, 0x574c3f},
    {u"Scope keyword", ScopeKeywordFore, ScopeKeywordBack, ScopeKeywordFont, 0x6f6000, automaticColour, BoldStyle},
    {u"String", StringFore, StringBack, StringFont, 0x346b1a},
    {u"Tag element name", TagElementFore, TagElementBack, TagElementFont, 0xa5550b, automaticColour, BoldStyle},
    {u"Tag entity", TagEntityFore, TagEntityBack, TagEntityFont, 0x7a2f8a},
    {u"Tag attribute name", TagAttributeFore, TagAttributeBack, TagAttributeFont, 0x0f4099},
    {u"Tag text", TagTextFore, TagTextBack, TagTextFont, 0x33291f},
    {u"Text", TextFore, TextBack, TextFont, 0x33291f},
    {u"Window", WindowColour, noItem, noItem, 0xffffff},
}};
// clang-format on

/// The shipped colours by colour item.
constexpr std::array<quint32, colourItemTotal> shippedColours = [] {
    std::array<quint32, colourItemTotal> colours{};
    for (const AppearanceRow &row : appearanceRows) {
        colours[static_cast<std::size_t>(row.foreground)] = row.shippedForeground;
        if (row.background != noItem)
            colours[static_cast<std::size_t>(row.background)] = row.shippedBackground;
    }
    return colours;
}();

} // namespace zephira
