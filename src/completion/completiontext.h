// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QByteArrayView>

namespace zephira {

// Bytes of UTF-8, as completion reads them.

constexpr bool isBlankOrBreak(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

constexpr bool isAsciiLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

constexpr bool isAsciiDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Whether the byte can be in a name of HTML or style sheets; letters beyond ASCII can.
constexpr bool isNameByte(char c)
{
    return isAsciiLetter(c) || isAsciiDigit(c) || c == '-' || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

/// Where the name begins that ends at `end`.
qsizetype nameStart(QByteArrayView text, qsizetype end);

/// The same as lower(), without a copy of what lies around it.
QByteArray lowered(QByteArrayView text);

/// Whether something stands at an offset, without regard to the case of ASCII letters.
bool standsAt(QByteArrayView text, qsizetype at, QByteArrayView what);

/// The next place of a text that is in lower case, without regard to the case of ASCII letters; -1 if there is none.
qsizetype findIgnoringCase(QByteArrayView text, QByteArrayView lower, qsizetype from);

/// If a server block, "<% … %>" or "<? … ?>", begins at `at`: the offset behind it, or the text's size if it doesn't end.
/// Otherwise -1.
qsizetype behindServerBlock(QByteArrayView text, qsizetype at);

/// The words between blanks, up to the end or the last one that isn't complete.
QByteArrayList completeWords(QByteArrayView value);

} // namespace zephira
