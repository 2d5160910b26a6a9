// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <array>
#include <optional>

namespace zephira {

/// How many pixels of the picture each pixel of the screen fills.
inline constexpr int zoomFactor = 1000 / 100;

/// What a magnified view shows and draws. All values are native pixels.
struct ZoomView {
    /// The part of the screen.
    QRect area;
    /// Size to which it is stretched, from the picture's upper left corner; it may reach beyond the picture.
    QSize stretched;
    /// The grid: the vertical lines, then the horizontal ones.
    QList<QRect> lines;
    /// The bars around the pixel under the pointer.
    std::array<QRect, 4> frame;
};

/// The view of the screen around the pointer, for a picture of that size.
ZoomView zoomView(QPoint pointer, QSize picture, int factor = zoomFactor);

/// Decides when the magnified view is drawn again: when the pointer has moved, and from time to time.
class ZoomTicks
{
public:
    static constexpr int interval = 50;

    struct Due {
        bool redraw = false;
        /// Whether the window is to be raised above all others again.
        bool raise = false;

        friend bool operator==(const Due &, const Due &) = default;
    };

    /// One tick of the timer; a minimised window has nothing to do.
    Due tick(QPoint pointer, bool minimised);

private:
    int m_counter = -100;
    std::optional<QPoint> m_last;
};

/// Place for a window of that size on a screen, away from the pointer: where it is, if the pointer isn't near it,
/// otherwise in the corner that is farthest from the pointer.
QPoint placeAwayFrom(QPoint pointer, const QRect &window, const QRect &screen);

} // namespace zephira
