// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <functional>
#include <span>
#include <vector>

namespace zephira {

/// A part of a line that is read from right to left, as byte offsets, and the style that all of it has.
struct BidiStretch {
    qsizetype start = 0;
    qsizetype end = 0;
    int style = 0;

    friend bool operator==(const BidiStretch &, const BidiStretch &) = default;
};

/// Calls `found` for each character of valid UTF-8 that is written from right to left, with its bytes. Text without such
/// characters costs a look at each byte.
void forEachRightToLeft(QByteArrayView utf8, const std::function<void(char32_t, QByteArrayView)> &found);

/// The parts of a line (UTF-8, a style number for each byte) that are read from right to left in a text that otherwise is
/// read from left to right: from a right-to-left letter to the last one, or the last number, before a left-to-right
/// letter. A stretch ends with its style, so that code keeps its order whatever its strings hold, and behind about a
/// thousand characters.
std::vector<BidiStretch> bidiStretches(QByteArrayView line, std::span<const unsigned char> styles);

} // namespace zephira
