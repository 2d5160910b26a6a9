// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <functional>
#include <span>
#include <vector>

namespace zephira {

/// A right-to-left part of a line, in byte offsets, all of one style.
struct BidiStretch {
    qsizetype start = 0;
    qsizetype end = 0;
    int style = 0;

    friend bool operator==(const BidiStretch &, const BidiStretch &) = default;
};

/// Calls `found` with each right-to-left character of valid UTF-8 and its bytes. Text without such characters only
/// costs a test of each byte.
void forEachRightToLeft(QByteArrayView utf8, const std::function<void(char32_t, QByteArrayView)> &found);

/// Whether every stretch ends at this byte, because it is a left-to-right letter.
bool endsStretch(char byte);

/// The parts of a line (UTF-8, a style number for each byte) that are read from right to left in a text that otherwise
/// is read from left to right: from a right-to-left letter to the last one, or the last number, before a left-to-right
/// letter. A stretch ends where the style changes, so that code keeps its order whatever its strings contain, and after
/// about a thousand characters.
std::vector<BidiStretch> bidiStretches(QByteArrayView line, std::span<const unsigned char> styles);

} // namespace zephira
