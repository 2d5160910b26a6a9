// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/framebars.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Only the label is limited to the canvas; the bar isn't.
QString labelOf(double place)
{
    return QString::number(std::clamp(std::floor(place) - 1, 0.0, 100.0)) + u" %"_s;
}

qint16 shareBehind(double place)
{
    using Limits = std::numeric_limits<qint16>;
    const double share = std::floor(100 - place) + 1;
    return static_cast<qint16>(
        std::clamp(share, static_cast<double>(Limits::min()), static_cast<double>(Limits::max())));
}

} // namespace

void FrameBars::arm(Bar bar)
{
    m_chosen = bar;
    m_trackV = bar == Bar::Vertical;
    m_trackH = bar == Bar::Horizontal;
}

bool FrameBars::moveTo(double x, double y)
{
    if (follows(Bar::Vertical))
        placeVertical(x + 1);
    else if (follows(Bar::Horizontal))
        placeHorizontal(y + 1);
    else
        return false;
    return true;
}

bool FrameBars::moveBy(double right, double down)
{
    if (follows(Bar::Vertical))
        placeVertical(m_left + right);
    else if (follows(Bar::Horizontal))
        placeHorizontal(m_top + down);
    else
        return false;
    return true;
}

void FrameBars::click()
{
    if (m_chosen == Bar::Vertical)
        m_trackV = !m_trackV;
    else if (m_chosen == Bar::Horizontal)
        m_trackH = !m_trackH;
}

qint16 FrameBars::colPercent() const
{
    return shareBehind(m_left);
}

qint16 FrameBars::rowPercent() const
{
    return shareBehind(m_top);
}

bool FrameBars::follows(Bar bar) const
{
    return m_chosen == bar && (bar == Bar::Vertical ? m_trackV : m_trackH);
}

void FrameBars::placeVertical(double left)
{
    m_left = left;
    m_verticalLabel = labelOf(left);
}

void FrameBars::placeHorizontal(double top)
{
    m_top = top;
    m_horizontalLabel = labelOf(top);
}

} // namespace zephira
