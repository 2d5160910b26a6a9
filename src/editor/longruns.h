// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <span>

namespace zephira {

// The engine measures a whole line piece by piece before it shows any of it, and caches the widths of short pieces
// only. A page minified into one line of megabytes contains long runs of text, each of them different. So a long line
// alternates between two styles that look the same: at its words, between ideographs, and inside long runs without words,
// such as an image encoded in base64. Then each stretch is a piece of its own, and its width is cached.

/// Lines of more bytes than this are long.
constexpr qsizetype longLineBytes = 50'000;

/// A twin style looks like the style whose number is this much lower.
constexpr int twinDistance = 64;

/// The style for a style byte of the engine, with a twin replaced by its original.
constexpr int withoutTwin(int style)
{
    return style >= twinDistance && style < 2 * twinDistance ? style - twinDistance : style;
}

/// A run without words is cut into pairs of characters from this many bytes on. There are few different pairs, so all
/// their widths are cached.
constexpr qsizetype longestWord = 24;

/// Makes runs of one style alternate with its twin. There is one style per byte of the text (UTF-8). Styles of 64 and
/// more are left unchanged, and letters whose shape depends on their neighbours stay in one piece with them.
void breakLongRuns(QByteArrayView text, std::span<unsigned char> styles);

} // namespace zephira
