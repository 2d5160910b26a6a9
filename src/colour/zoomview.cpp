// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/zoomview.h"

namespace zephira {

namespace {

constexpr int refreshAfter = 250;

/// How many pixels of the screen fill that number of pixels of the picture; the last one may be cut off.
int screenPixels(int picture, int factor)
{
    return (picture + factor - 1) / factor;
}

std::array<QRect, 4> frameAround(QPoint centre)
{
    constexpr int length = 18;
    constexpr int thickness = 5;
    constexpr int before = 9;
    constexpr int behind = 6;
    const auto [x, y] = std::pair(centre.x(), centre.y());
    return {QRect(x - before, y - before, length, thickness), QRect(x - before, y - before, thickness, length),
            QRect(x - before, y + behind, length, thickness), QRect(x + behind, y - before, thickness, length)};
}

} // namespace

ZoomView zoomView(QPoint pointer, QSize picture, int factor)
{
    ZoomView view;
    // Half the picture in whole pixels of the screen; an odd size is halved only after the division.
    const QPoint half(picture.width() / (2 * factor), picture.height() / (2 * factor));
    view.area =
        QRect(pointer - half, QSize(screenPixels(picture.width(), factor), screenPixels(picture.height(), factor)));
    view.stretched = view.area.size() * factor;
    for (int x = 0; x < picture.width(); x += factor)
        view.lines.append(QRect(x, 0, 1, picture.height()));
    for (int y = 0; y < picture.height(); y += factor)
        view.lines.append(QRect(0, y, picture.width(), 1));
    view.frame = frameAround({picture.width() / 2, picture.height() / 2});
    return view;
}

ZoomTicks::Due ZoomTicks::tick(QPoint pointer, bool minimised)
{
    if (minimised)
        return {};
    m_counter += interval;
    const Due due{.redraw = m_last != pointer || m_counter >= refreshAfter, .raise = m_counter >= refreshAfter};
    if (due.redraw)
        m_counter = 0;
    m_last = pointer;
    return due;
}

QPoint placeAwayFrom(QPoint pointer, const QRect &window, const QRect &screen)
{
    constexpr int distance = 24;
    if (!window.adjusted(-distance, -distance, distance, distance).contains(pointer))
        return window.topLeft();
    const bool left = pointer.x() > screen.center().x();
    const bool top = pointer.y() > screen.center().y();
    return {left ? screen.left() : screen.right() + 1 - window.width(),
            top ? screen.top() : screen.bottom() + 1 - window.height()};
}

} // namespace zephira
