// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/editoritems.h"
#include "syntax/syntaxstyle.h"

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
    {TextFore, ColourTarget::StyleFore, numberOf(SyntaxStyle::Text), 0xe2dbd8},
    {TextBack, ColourTarget::StyleBack, numberOf(SyntaxStyle::Text), automaticColour},
    {NumberFore, ColourTarget::StyleFore, numberOf(SyntaxStyle::Number), 0xffb66c},
    {NumberBack, ColourTarget::StyleBack, numberOf(SyntaxStyle::Number), automaticColour},
    {KeywordFore, ColourTarget::StyleFore, numberOf(SyntaxStyle::Keyword), 0xea92c7},
    {KeywordBack, ColourTarget::StyleBack, numberOf(SyntaxStyle::Keyword), automaticColour},
    {OperatorFore, ColourTarget::StyleFore, numberOf(SyntaxStyle::Operator), 0xc8bcb4},
    {OperatorBack, ColourTarget::StyleBack, numberOf(SyntaxStyle::Operator), automaticColour},
    {ScopeKeywordFore, ColourTarget::StyleFore, numberOf(SyntaxStyle::ScopeKeyword), 0x809eff},
    {ScopeKeywordBack, ColourTarget::StyleBack, numberOf(SyntaxStyle::ScopeKeyword), automaticColour},
    {CommentFore, ColourTarget::StyleFore, numberOf(SyntaxStyle::Comment), 0xab9b8f},
    {CommentBack, ColourTarget::StyleBack, numberOf(SyntaxStyle::Comment), automaticColour},
    {StringFore, ColourTarget::StyleFore, numberOf(SyntaxStyle::String), 0x8acf98},
    {StringBack, ColourTarget::StyleBack, numberOf(SyntaxStyle::String), automaticColour},
    {TagTextFore, ColourTarget::StyleFore, numberOf(SyntaxStyle::TagText), 0xe2dbd8},
    {TagTextBack, ColourTarget::StyleBack, numberOf(SyntaxStyle::TagText), automaticColour},
    {TagEntityFore, ColourTarget::StyleFore, numberOf(SyntaxStyle::TagEntity), 0x72b8e9},
    {TagEntityBack, ColourTarget::StyleBack, numberOf(SyntaxStyle::TagEntity), automaticColour},
    {TagElementFore, ColourTarget::StyleFore, numberOf(SyntaxStyle::TagElement), 0xe8c46c},
    {TagElementBack, ColourTarget::StyleBack, numberOf(SyntaxStyle::TagElement), automaticColour},
    {TagAttributeFore, ColourTarget::StyleFore, numberOf(SyntaxStyle::TagAttribute), 0x8fb9e6},
    {TagAttributeBack, ColourTarget::StyleBack, numberOf(SyntaxStyle::TagAttribute), automaticColour},
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
constexpr std::array<int, fontStyleTotal> fontStyleTable{
    numberOf(SyntaxStyle::Text),       numberOf(SyntaxStyle::Number),       numberOf(SyntaxStyle::Keyword),
    numberOf(SyntaxStyle::Operator),   numberOf(SyntaxStyle::ScopeKeyword), numberOf(SyntaxStyle::Comment),
    numberOf(SyntaxStyle::String),     numberOf(SyntaxStyle::TagText),      numberOf(SyntaxStyle::TagEntity),
    numberOf(SyntaxStyle::TagElement), numberOf(SyntaxStyle::TagAttribute), lineNumberStyle,
};

} // namespace zephira
