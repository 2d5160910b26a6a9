// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "colour/screencolours.h"

namespace zephira {

/// A screen in memory: each pixel's red is its column, its green its row.
struct FakeScreen final : ScreenColours {
    bool readable = true;
    QPoint place{5, 7};
    QImage pixels{256, 256, QImage::Format_RGB32};
    /// How often pixels were read.
    mutable int reads = 0;

    FakeScreen()
    {
        for (int y = 0; y < pixels.height(); ++y) {
            for (int x = 0; x < pixels.width(); ++x)
                pixels.setPixel(x, y, qRgb(x, y, 0));
        }
    }

    bool isReadable() const override { return readable; }
    std::optional<QPoint> pointer() const override { return readable ? std::optional(place) : std::nullopt; }
    void movePointer(QPoint to) override { place = to; }
    QImage picture(const QRect &area) const override
    {
        ++reads;
        return readable ? pixels.copy(area) : QImage();
    }
};

} // namespace zephira
