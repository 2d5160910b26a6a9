// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

#include <optional>

namespace zephira {

/// The pixels of the whole desktop and the pointer over it. All positions are native pixels, with no scale factor, in
/// one plane that all screens share.
class ScreenColours
{
public:
    virtual ~ScreenColours() = default;
    /// Whether the desktop lets programs read the screen. If not, the other functions return nothing.
    virtual bool isReadable() const = 0;
    virtual std::optional<QPoint> pointer() const = 0;
    virtual void movePointer(QPoint place) = 0;
    /// The pixels of an area; what lies outside all screens is black. A null image if the screen can't be read.
    virtual QImage picture(const QRect &area) const = 0;
};

} // namespace zephira
