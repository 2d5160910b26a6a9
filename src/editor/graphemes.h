// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

namespace zephira {

/// What a person sees as one character may be several: a letter with its accents, a joined emoji. Offsets are in bytes of
/// a line in valid UTF-8, and no offset inside a code point is given.

/// The offset itself where such a character begins or ends there, else the beginning of the one around it.
qsizetype graphemeStart(QByteArrayView line, qsizetype offset);
/// The same, else the end of the one around it.
qsizetype graphemeEnd(QByteArrayView line, qsizetype offset);
/// The beginning of the character in front of the offset; 0 at the line's beginning.
qsizetype graphemeBefore(QByteArrayView line, qsizetype offset);
/// The end of the character behind the offset; the line's size at its end.
qsizetype graphemeBehind(QByteArrayView line, qsizetype offset);

} // namespace zephira
