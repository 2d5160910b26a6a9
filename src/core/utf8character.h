// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

namespace zephira {

/// A character of a UTF-8 text and the number of its bytes.
struct Utf8Character {
    char32_t code = 0;
    qsizetype size = 1;
};

/// The character that begins at a byte offset. The text is the engine's and so usually valid; a byte that begins no whole
/// character is one by itself.
inline Utf8Character utf8CharacterAt(QByteArrayView text, qsizetype at)
{
    const auto byte = [text](qsizetype i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(at);
    const qsizetype size = first < 0xc0 ? 1 : first < 0xe0 ? 2 : first < 0xf0 ? 3 : 4;
    if (size == 1 || at + size > text.size())
        return {first, 1};
    char32_t code = first & (0x7f >> size);
    for (qsizetype i = 1; i < size; ++i)
        code = code << 6 | (byte(at + i) & 0x3f);
    return {code, size};
}

} // namespace zephira
