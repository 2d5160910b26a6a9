// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/editoritems.h"

#include <QtGlobal>

#include <array>
#include <cstddef>

namespace zephira {

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
    int index;    ///< marker or style number of the editor engine
    quint32 dark; ///< shown instead of the shipped colour while the desktop is dark; red in the lowest byte
};

constexpr int bookmarkMarker = 2;
constexpr int highlightMarker = 1;
constexpr int dividerMarker = 0;
constexpr int lineNumberStyle = 33;

/// The colour items by number.
constexpr std::array<ColourItemRow, colourItemTotal> colourItemTable{{
    {WindowColour, ColourTarget::Window, 0, 0x24201e},
    {LeftMarginColour, ColourTarget::LeftMargin, 0, 0x302b28},
    {BookmarkFore, ColourTarget::MarkerFore, bookmarkMarker, 0xffffff},
    {BookmarkBack, ColourTarget::MarkerBack, bookmarkMarker, 0xd67f3d},
    {TextFore, ColourTarget::StyleFore, 0, 0xe2dbd8},
    {TextBack, ColourTarget::StyleBack, 0, automaticColour},
    {NumberFore, ColourTarget::StyleFore, 1, 0xffb66c},
    {NumberBack, ColourTarget::StyleBack, 1, automaticColour},
    {KeywordFore, ColourTarget::StyleFore, 2, 0xea92c7},
    {KeywordBack, ColourTarget::StyleBack, 2, automaticColour},
    {OperatorFore, ColourTarget::StyleFore, 3, 0xc8bcb4},
    {OperatorBack, ColourTarget::StyleBack, 3, automaticColour},
    {ScopeKeywordFore, ColourTarget::StyleFore, 4, 0x809eff},
    {ScopeKeywordBack, ColourTarget::StyleBack, 4, automaticColour},
    {CommentFore, ColourTarget::StyleFore, 5, 0xab9b8f},
    {CommentBack, ColourTarget::StyleBack, 5, automaticColour},
    {StringFore, ColourTarget::StyleFore, 6, 0x8acf98},
    {StringBack, ColourTarget::StyleBack, 6, automaticColour},
    {TagTextFore, ColourTarget::StyleFore, 7, 0xe2dbd8},
    {TagTextBack, ColourTarget::StyleBack, 7, automaticColour},
    {TagEntityFore, ColourTarget::StyleFore, 8, 0x72b8e9},
    {TagEntityBack, ColourTarget::StyleBack, 8, automaticColour},
    {TagElementFore, ColourTarget::StyleFore, 9, 0xe8c46c},
    {TagElementBack, ColourTarget::StyleBack, 9, automaticColour},
    {TagAttributeFore, ColourTarget::StyleFore, 10, 0x8fb9e6},
    {TagAttributeBack, ColourTarget::StyleBack, 10, automaticColour},
    {LineNumberFore, ColourTarget::StyleFore, lineNumberStyle, 0xb0a59e},
    {LineNumberBack, ColourTarget::StyleBack, lineNumberStyle, 0x2a2623},
    {LineDividerColour, ColourTarget::LineDivider, dividerMarker, 0x453e3a},
    {MarginDividerColour, ColourTarget::MarginDivider, 0, 0x453e3a},
    {HighlightedLineColour, ColourTarget::MarkerBack, highlightMarker, 0x3c322c},
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
