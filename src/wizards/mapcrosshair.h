// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QSize>

namespace zephira {

/// Stands in for the mouse on a picture: arrow keys move a cross-hair, and the space bar presses and releases. The bar
/// can be held during the moves, or pressed before and once more after them. Positions are in pixels of the picture.
class MapCrossHair
{
public:
    /// What a key means to the picture.
    enum class Event { None, Press, Move, Release };

    /// The cross-hair stays on the picture; its right and lower edges count as part of it, so that all of it can be
    /// drawn around.
    void setPicture(QSize size);
    /// Follows the mouse. Ends a press.
    void goTo(QPoint place);
    Event step(int right, int down);
    Event spacePressed();
    Event spaceReleased();
    /// Forgets a press.
    void reset() { m_isDown = false; }

    QPoint place() const { return m_place; }
    bool isDown() const { return m_isDown; }

private:
    QPoint bounded(QPoint place) const;

    QSize m_picture;
    QPoint m_place;
    bool m_isDown = false;
    /// Whether it has moved since the press.
    bool m_hasMoved = false;
};

} // namespace zephira
