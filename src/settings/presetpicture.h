// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>

class QFont;

namespace zephira {

struct ColourPreset;

/// A line of a page in the colours of a preset. The size is in device-independent pixels.
QPixmap presetPicture(const ColourPreset &preset, const QFont &font, QSize size, qreal ratio);

} // namespace zephira
