// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/editoritems.h"

#include <QtGlobal>

#include <array>
#include <cstddef>

namespace zephira {

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

struct ColourItemRow {
    ColourItem item;
    ColourTarget target;
    int index;       ///< marker or style number of the editor engine
    quint32 initial; ///< red in the lowest byte
};

constexpr int bookmarkMarker = 2;
constexpr int highlightMarker = 1;
constexpr int dividerMarker = 0;
constexpr int lineNumberStyle = 33;

/// The colour items by number.
constexpr std::array<ColourItemRow, colourItemTotal> colourItemTable{{
    {WindowColour, ColourTarget::Window, 0, 0xffffff},
    {LeftMarginColour, ColourTarget::LeftMargin, 0, 0xf3f0ee},
    {BookmarkFore, ColourTarget::MarkerFore, bookmarkMarker, 0xffffff},
    {BookmarkBack, ColourTarget::MarkerBack, bookmarkMarker, 0xb3651e},
    {TextFore, ColourTarget::StyleFore, 0, 0x27211f},
    {TextBack, ColourTarget::StyleBack, 0, automaticColour},
    {NumberFore, ColourTarget::StyleFore, 1, 0x7a4200},
    {NumberBack, ColourTarget::StyleBack, 1, automaticColour},
    {KeywordFore, ColourTarget::StyleFore, 2, 0xa82c1b},
    {KeywordBack, ColourTarget::StyleBack, 2, automaticColour},
    {OperatorFore, ColourTarget::StyleFore, 3, 0x5f5148},
    {OperatorBack, ColourTarget::StyleBack, 3, automaticColour},
    {ScopeKeywordFore, ColourTarget::StyleFore, 4, 0x8a1f6d},
    {ScopeKeywordBack, ColourTarget::StyleBack, 4, automaticColour},
    {CommentFore, ColourTarget::StyleFore, 5, 0x3f6b1f},
    {CommentBack, ColourTarget::StyleBack, 5, automaticColour},
    {StringFore, ColourTarget::StyleFore, 6, 0x1b2fa3},
    {StringBack, ColourTarget::StyleBack, 6, automaticColour},
    {TagTextFore, ColourTarget::StyleFore, 7, 0x4d4338},
    {TagTextBack, ColourTarget::StyleBack, 7, automaticColour},
    {TagEntityFore, ColourTarget::StyleFore, 8, 0x0a4fa8},
    {TagEntityBack, ColourTarget::StyleBack, 8, automaticColour},
    {TagElementFore, ColourTarget::StyleFore, 9, 0x8f3a0e},
    {TagElementBack, ColourTarget::StyleBack, 9, automaticColour},
    {TagAttributeFore, ColourTarget::StyleFore, 10, 0x76166f},
    {TagAttributeBack, ColourTarget::StyleBack, 10, automaticColour},
    {LineNumberFore, ColourTarget::StyleFore, lineNumberStyle, 0x7b7268},
    {LineNumberBack, ColourTarget::StyleBack, lineNumberStyle, 0xf9f7f6},
    {LineDividerColour, ColourTarget::LineDivider, dividerMarker, 0xd4cdc8},
    {MarginDividerColour, ColourTarget::MarginDivider, 0, 0xdcd6d2},
    {HighlightedLineColour, ColourTarget::MarkerBack, highlightMarker, 0xdff6fd},
}};

static_assert([] {
    for (std::size_t i = 0; i < colourItemTable.size(); ++i) {
        if (colourItemTable[i].item != static_cast<int>(i))
            return false;
    }
    return true;
}());

/// The editor engine's style behind each font style item.
constexpr std::array<int, fontStyleTotal> fontStyleTable{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, lineNumberStyle};

} // namespace zephira
