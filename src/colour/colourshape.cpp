// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colourshape.h"

#include <QPainter>

namespace zephira {

void ColourShape::setFillColour(const QColor &colour)
{
    m_colour = colour;
    update();
}

void ColourShape::paintEvent(QPaintEvent *)
{
    constexpr qreal cornerRadius = 4;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(m_colour.isValid() ? QBrush(m_colour) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
}

} // namespace zephira
