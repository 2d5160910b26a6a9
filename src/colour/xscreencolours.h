// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "colour/screencolours.h"

namespace zephira {

/// Reads the screen from the X server that the program is connected to; on any other desktop nothing can be read.
class XScreenColours final : public ScreenColours
{
public:
    bool isReadable() const override;
    std::optional<QPoint> pointer() const override;
    void movePointer(QPoint place) override;
    QImage picture(const QRect &area) const override;
};

} // namespace zephira
