// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

/// The syntactic role of a byte of the text. The numbers are the style bytes and also the editing control's font style
/// items.
enum class SyntaxStyle : unsigned char {
    Text = 0,
    Number = 1,
    Keyword = 2,
    Operator = 3,
    ScopeKeyword = 4,
    Comment = 5,
    String = 6,
    TagText = 7,
    TagEntity = 8,
    TagElement = 9,
    TagAttribute = 10,
};

constexpr int numberOf(SyntaxStyle style)
{
    return static_cast<int>(style);
}

constexpr int syntaxStyleCount = 11;

} // namespace zephira
