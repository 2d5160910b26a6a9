// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <span>

namespace zephira {

// The engine measures a whole line piece by piece before it shows any of it, and caches the widths of short pieces
// only. A page minified into one line of megabytes contains long runs of text, each of them different. So the words of
// a long line alternate between two styles that look the same: then each word is a piece of its own, and its width is
// cached.

/// Lines of more bytes than this are long.
constexpr qsizetype longLineBytes = 50'000;

/// A twin style looks like the style whose number is this much lower.
constexpr int twinDistance = 64;

/// The style for a style byte of the engine, with a twin replaced by its original.
constexpr int withoutTwin(int style)
{
    return style >= twinDistance && style < 2 * twinDistance ? style - twinDistance : style;
}

/// Makes runs of one style alternate with its twin at spaces. There is one style per byte of the text. Styles of 64 and
/// more are left unchanged, and the style doesn't alternate before characters that may join with those around them.
void breakLongRuns(QByteArrayView text, std::span<unsigned char> styles);

} // namespace zephira
