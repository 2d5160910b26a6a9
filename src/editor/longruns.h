// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <span>

namespace zephira {

// The engine measures a whole line before it shows any of it, piece by piece, and remembers the widths of short pieces
// alone. A page that was squeezed into one line of megabytes has long pieces of text, each different. So the words of a
// long line change between two styles that look the same: each is a piece of its own then, and its width is known.

/// Lines of more bytes than that are long.
constexpr qsizetype longLineBytes = 50'000;

/// Styles from the first twin on look like the one that stands so far below them.
constexpr int twinDistance = 64;

/// The style that a style byte of the engine stands for.
constexpr int withoutTwin(int style)
{
    return style >= twinDistance && style < 2 * twinDistance ? style - twinDistance : style;
}

/// Lets runs of one style change to its twin and back at blanks. The styles are one a byte of the text; those of 64 and more
/// stay what they are, and so do letters that would join those beside them.
void breakLongRuns(QByteArrayView text, std::span<unsigned char> styles);

} // namespace zephira
