// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/editoritems.h"

#include <QtGlobal>

#include <array>
#include <cstddef>

namespace zephira {

/// Means "no colour": a background with this value shows the window's colour.
constexpr quint32 automaticColour = 0xffffffff;

/// Font styles by number. Bold and italic are bits; other bits of a style are kept but have no effect.
enum FontStyle : int { NormalStyle = 0, BoldStyle = 1, ItalicStyle = 2, BoldItalicStyle = 3, UnderlinedStyle = 4 };

/// What a colour item applies to.
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
    quint32 initial; ///< same as shipped in the settings; red in the lowest byte
    quint32 dark;    ///< shown instead of the initial colour while the desktop is dark
};

constexpr int bookmarkMarker = 2;
constexpr int highlightMarker = 1;
constexpr int dividerMarker = 0;
constexpr int lineNumberStyle = 33;

/// The colour items by number.
constexpr std::array<ColourItemRow, colourItemTotal> colourItemTable{{
    {WindowColour, ColourTarget::Window, 0, 0xffffff, 0x24201e},
    {LeftMarginColour, ColourTarget::LeftMargin, 0, 0xfaf8f6, 0x302b28},
    {BookmarkFore, ColourTarget::MarkerFore, bookmarkMarker, 0xa85f1e, 0xffffff},
    {BookmarkBack, ColourTarget::MarkerBack, bookmarkMarker, 0xf7e6d6, 0xd67f3d},
    {TextFore, ColourTarget::StyleFore, 0, 0x33291f, 0xe2dbd8},
    {TextBack, ColourTarget::StyleBack, 0, automaticColour, automaticColour},
    {NumberFore, ColourTarget::StyleFore, 1, 0x004a8f, 0xffb66c},
    {NumberBack, ColourTarget::StyleBack, 1, automaticColour, automaticColour},
    {KeywordFore, ColourTarget::StyleFore, 2, 0x9e2e7a, 0xea92c7},
    {KeywordBack, ColourTarget::StyleBack, 2, automaticColour, automaticColour},
    {OperatorFore, ColourTarget::StyleFore, 3, 0x574c3f, 0xc8bcb4},
    {OperatorBack, ColourTarget::StyleBack, 3, automaticColour, automaticColour},
    {ScopeKeywordFore, ColourTarget::StyleFore, 4, 0x6f6000, 0x809eff},
    {ScopeKeywordBack, ColourTarget::StyleBack, 4, automaticColour, automaticColour},
    {CommentFore, ColourTarget::StyleFore, 5, 0x5f6b5b, 0xab9b8f},
    {CommentBack, ColourTarget::StyleBack, 5, automaticColour, automaticColour},
    {StringFore, ColourTarget::StyleFore, 6, 0x346b1a, 0x8acf98},
    {StringBack, ColourTarget::StyleBack, 6, automaticColour, automaticColour},
    {TagTextFore, ColourTarget::StyleFore, 7, 0x33291f, 0xe2dbd8},
    {TagTextBack, ColourTarget::StyleBack, 7, automaticColour, automaticColour},
    {TagEntityFore, ColourTarget::StyleFore, 8, 0x7a2f8a, 0x72b8e9},
    {TagEntityBack, ColourTarget::StyleBack, 8, automaticColour, automaticColour},
    {TagElementFore, ColourTarget::StyleFore, 9, 0xa5550b, 0xe8c46c},
    {TagElementBack, ColourTarget::StyleBack, 9, automaticColour, automaticColour},
    {TagAttributeFore, ColourTarget::StyleFore, 10, 0x0f4099, 0x8fb9e6},
    {TagAttributeBack, ColourTarget::StyleBack, 10, automaticColour, automaticColour},
    {LineNumberFore, ColourTarget::StyleFore, lineNumberStyle, 0x766b5f, 0xb0a59e},
    {LineNumberBack, ColourTarget::StyleBack, lineNumberStyle, 0xfaf8f6, 0x2a2623},
    {LineDividerColour, ColourTarget::LineDivider, dividerMarker, 0xd9d1c9, 0x453e3a},
    {MarginDividerColour, ColourTarget::MarginDivider, 0, 0xe9e3dd, 0x453e3a},
    {HighlightedLineColour, ColourTarget::MarkerBack, highlightMarker, 0xfbf6f1, 0x3c322c},
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
