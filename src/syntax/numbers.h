// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/languagedefinition.h"
#include "syntax/linelexer.h"

namespace zephira {

constexpr bool isDigit(Byte byte)
{
    return byte >= '0' && byte <= '9';
}
constexpr bool isLetter(Byte byte)
{
    return (byte | 32) >= 'a' && (byte | 32) <= 'z';
}
constexpr bool isHexDigit(Byte byte)
{
    return isDigit(byte) || ((byte | 32) >= 'a' && (byte | 32) <= 'f');
}
constexpr bool isBlank(Byte byte)
{
    return byte == ' ' || byte == '\t' || byte == '\f' || byte == '\v';
}

/// The end of the number that begins at `p` with a digit, or a point and a digit: decimal, hexadecimal, octal and
/// binary forms, fractions, exponents, separators and suffixes ("10UL", "1.5e-3f", "12px"). "1..5" is two numbers.
const Byte *numberEnd(const Byte *p, const Byte *end, Dialect dialect);

/// The end of a number that begins with a sign of the dialect ("&HFF", "$FF", "#13", "#1/31/2000#"), or `p` if there is
/// none.
const Byte *signedNumberEnd(const Byte *p, const Byte *end, Dialect dialect);

} // namespace zephira
