// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>

namespace zephira {

constexpr int colourItemTotal = 31;
constexpr int fontStyleTotal = 12;

/// The colour that isn't one: where a background has it, the window's colour shows.
constexpr quint32 automaticColour = 0xffffffff;

/// Font styles by number. Bold and italic are bits; other bits of a style are kept and show nothing.
enum FontStyle : int { NormalStyle = 0, BoldStyle = 1, ItalicStyle = 2, BoldItalicStyle = 3, UnderlinedStyle = 4 };

/// What a colour item paints.
enum class ColourTarget {
    Window,
    LeftMargin,
    MarkerFore,
    MarkerBack,
    StyleFore,
    StyleBack,
    LineDivider,
    MarginDivider
};

struct ColourItem {
    ColourTarget target;
    int index;       ///< marker or style number of the editor engine
    quint32 initial; ///< red in the lowest byte
};

constexpr int bookmarkMarker = 2;
constexpr int highlightMarker = 1;
constexpr int dividerMarker = 0;
constexpr int lineNumberStyle = 33;

/// The colour items by number.
constexpr std::array<ColourItem, colourItemTotal> colourItemTable{{
    {ColourTarget::Window, 0, 0xffffff},
    {ColourTarget::LeftMargin, 0, 0xf3f0ee},
    {ColourTarget::MarkerFore, bookmarkMarker, 0xffffff},
    {ColourTarget::MarkerBack, bookmarkMarker, 0xb3651e},
    {ColourTarget::StyleFore, 0, 0x27211f},
    {ColourTarget::StyleBack, 0, automaticColour},
    {ColourTarget::StyleFore, 1, 0x7a4200},
    {ColourTarget::StyleBack, 1, automaticColour},
    {ColourTarget::StyleFore, 2, 0xa82c1b},
    {ColourTarget::StyleBack, 2, automaticColour},
    {ColourTarget::StyleFore, 3, 0x5f5148},
    {ColourTarget::StyleBack, 3, automaticColour},
    {ColourTarget::StyleFore, 4, 0x8a1f6d},
    {ColourTarget::StyleBack, 4, automaticColour},
    {ColourTarget::StyleFore, 5, 0x3f6b1f},
    {ColourTarget::StyleBack, 5, automaticColour},
    {ColourTarget::StyleFore, 6, 0x1b2fa3},
    {ColourTarget::StyleBack, 6, automaticColour},
    {ColourTarget::StyleFore, 7, 0x4d4338},
    {ColourTarget::StyleBack, 7, automaticColour},
    {ColourTarget::StyleFore, 8, 0x0a4fa8},
    {ColourTarget::StyleBack, 8, automaticColour},
    {ColourTarget::StyleFore, 9, 0x8f3a0e},
    {ColourTarget::StyleBack, 9, automaticColour},
    {ColourTarget::StyleFore, 10, 0x76166f},
    {ColourTarget::StyleBack, 10, automaticColour},
    {ColourTarget::StyleFore, lineNumberStyle, 0x7b7268},
    {ColourTarget::StyleBack, lineNumberStyle, 0xf9f7f6},
    {ColourTarget::LineDivider, dividerMarker, 0xd4cdc8},
    {ColourTarget::MarginDivider, 0, 0xdcd6d2},
    {ColourTarget::MarkerBack, highlightMarker, 0xdff6fd},
}};

/// The editor engine's style behind each font style item.
constexpr std::array<int, fontStyleTotal> fontStyleTable{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, lineNumberStyle};

/// A line of the properties dialog's list: what a person sees and may change together. -1 stands for "has none".
struct AppearanceRow {
    const char16_t *name;
    int foreground;
    int background;
    int fontStyle;
};

constexpr std::array<AppearanceRow, 18> appearanceRows{{
    {u"Bookmark", 2, 3, -1},
    {u"Comment", 14, 15, 5},
    {u"Horizontal divider lines", 28, -1, -1},
    {u"Vertical divider lines", 29, -1, -1},
    {u"Highlighted line", 30, -1, -1},
    {u"Keyword", 8, 9, 2},
    {u"Left margin", 1, -1, -1},
    {u"Line number", 26, 27, 11},
    {u"Number", 6, 7, 1},
    {u"Operator", 10, 11, 3},
    {u"Scope keyword", 12, 13, 4},
    {u"String", 16, 17, 6},
    {u"Tag element name", 22, 23, 9},
    {u"Tag entity", 20, 21, 8},
    {u"Tag attribute name", 24, 25, 10},
    {u"Tag text", 18, 19, 7},
    {u"Text", 4, 5, 0},
    {u"Window", 0, -1, -1},
}};

} // namespace zephira
