// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>

namespace zephira {

/// The fields of one frame, as typed. They are neither quoted nor checked.
struct FrameFields {
    QString name = {};
    QString source = {};
    QString marginWidth = {};
    QString marginHeight = {};
    QString scrolling = {};
    bool border = false;
    /// Whether visitors can't resize the frame.
    bool fixedSize = false;
};

/// Four frames in a grid of two by two.
struct FramesFields {
    qint16 rowPercent = 0;
    qint16 colPercent = 0;
    /// In the order in which they are written: row by row, each from left to right.
    std::array<FrameFields, 4> frames = {};
};

/// The frameset, with CR LF line ends. Empty fields are written as empty values.
QString framesMarkup(const FramesFields &fields);

} // namespace zephira
