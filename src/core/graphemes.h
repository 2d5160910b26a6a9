// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

namespace zephira {

/// A user-perceived character (grapheme) may consist of several code points: a letter with its accents, a joined emoji.
/// Offsets are bytes in a line of valid UTF-8; they must not be inside a code point.

/// The offset itself if it is a grapheme boundary, otherwise the beginning of the grapheme around it.
qsizetype graphemeStart(QByteArrayView line, qsizetype offset);
/// The offset itself if it is a grapheme boundary, otherwise the end of the grapheme around it.
qsizetype graphemeEnd(QByteArrayView line, qsizetype offset);
/// The beginning of the grapheme before the offset; 0 at the beginning of the line.
qsizetype graphemeBefore(QByteArrayView line, qsizetype offset);
/// The end of the grapheme after the offset; the line's size at its end.
qsizetype graphemeBehind(QByteArrayView line, qsizetype offset);

} // namespace zephira
