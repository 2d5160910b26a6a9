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

/// The right-to-left parts of a line (UTF-8, with a style number for each byte) in a left-to-right text. A stretch
/// reaches from a right-to-left letter to the last such letter or number before a left-to-right letter. It also ends
/// where the style changes, so that code keeps its order whatever its strings contain, and after about a thousand
/// characters.
std::vector<BidiStretch> bidiStretches(QByteArrayView line, std::span<const unsigned char> styles);

} // namespace zephira
