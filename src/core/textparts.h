// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QStringView>

#include <type_traits>

namespace zephira {

/// The position behind the character at `offset`: a surrogate pair is one character. Both are 0-based code units, and
/// `offset` is within the text.
inline qsizetype behindCharacter(QStringView text, qsizetype offset)
{
    const bool pair = offset + 1 < text.size() && text[offset].isHighSurrogate() && text[offset + 1].isLowSurrogate();
    return offset + (pair ? 2 : 1);
}

/// Whether a character or byte is one of those that make up line ends.
template<typename Unit>
constexpr bool isLineEnd(Unit unit)
{
    return unit == u'\r' || unit == u'\n';
}

/// Whether a line ends with the character at `at`, a 0-based index: a line feed, or a carriage return without one.
inline bool endsLine(QStringView text, qsizetype at)
{
    return text[at] == u'\n' || (text[at] == u'\r' && (at + 1 == text.size() || text[at + 1] != u'\n'));
}

/// Whether a character or byte is an ASCII letter.
template<typename Unit>
constexpr bool isAsciiLetter(Unit unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

/// A view of text or bytes without the spaces (only character 32) at its ends. Only for views: of a text that is passed
/// itself, a copy would be returned, and a view of that copy would outlive it.
template<typename View>
View withoutSpaces(View text)
{
    static_assert(std::is_same_v<View, QStringView> || std::is_same_v<View, QByteArrayView>);
    while (!text.isEmpty() && text.front() == u' ')
        text = text.sliced(1);
    while (!text.isEmpty() && text.back() == u' ')
        text.chop(1);
    return text;
}

} // namespace zephira
