// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/mapcrosshair.h"

#include <algorithm>
#include <utility>

namespace zephira {

void MapCrossHair::setPicture(QSize size)
{
    m_picture = size;
    m_place = bounded(m_place);
}

QPoint MapCrossHair::bounded(QPoint place) const
{
    return {std::clamp(place.x(), 0, m_picture.width()), std::clamp(place.y(), 0, m_picture.height())};
}

void MapCrossHair::goTo(QPoint place)
{
    m_place = bounded(place);
    m_isDown = false;
}

MapCrossHair::Event MapCrossHair::step(int right, int down)
{
    m_place = bounded(m_place + QPoint(right, down));
    if (!m_isDown)
        return Event::None;
    m_hasMoved = true;
    return Event::Move;
}

MapCrossHair::Event MapCrossHair::spacePressed()
{
    m_hasMoved = false;
    m_isDown = !m_isDown;
    return m_isDown ? Event::Press : Event::Release;
}

MapCrossHair::Event MapCrossHair::spaceReleased()
{
    // A bar that was only tapped stays down.
    if (!m_isDown || !m_hasMoved)
        return Event::None;
    m_isDown = false;
    return Event::Release;
}

} // namespace zephira
