// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/spyhandle.h"

#include "widgets/accessiblerole.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace zephira {

SpyHandle::SpyHandle(QWidget *parent) : QWidget(parent)
{
    giveRole(*this, QAccessible::Grip);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::CrossCursor);
}

void SpyHandle::setPictureShown(bool shown)
{
    m_isShown = shown;
    update();
}

void SpyHandle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRect(frame);
    if (!m_isShown)
        return;
    painter.setPen(QPen(palette().color(QPalette::Text), 2));
    painter.setBrush(Qt::NoBrush);
    const QPointF centre = frame.center();
    const qreal radius = std::min(frame.width(), frame.height()) / 4;
    painter.drawEllipse(centre, radius, radius);
    for (const QPointF direction : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
        painter.drawLine(centre + direction * radius / 3, centre + direction * radius * 1.6);
}

void SpyHandle::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT pressed();
}

void SpyHandle::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT released();
}

void SpyHandle::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter) {
        QWidget::keyPressEvent(event);
        return;
    }
    // A key that is held down would start again what it has just ended.
    if (!event->isAutoRepeat())
        Q_EMIT activated();
}

} // namespace zephira
