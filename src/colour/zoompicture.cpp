// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/zoompicture.h"

#include <QPainter>

namespace zephira {

namespace {

/// Two greys in alternating pixels.
QBrush checkeredBrush()
{
    constexpr int side = 8;
    QImage pattern(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            pattern.setPixel(x, y, (x + y) % 2 == 0 ? qRgb(0x80, 0x80, 0x80) : qRgb(0xc0, 0xc0, 0xc0));
    }
    return QBrush(pattern);
}

} // namespace

QImage zoomPicture(const QImage &screen, const ZoomView &view, QSize size)
{
    static const QBrush brush = checkeredBrush();
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    if (!screen.isNull())
        painter.drawImage(QRect({}, view.stretched), screen);
    for (const QRect &line : view.lines)
        painter.fillRect(line, brush);
    for (const QRect &bar : view.frame)
        painter.fillRect(bar, brush);
    return picture;
}

void ZoomPicture::setPicture(const QImage &picture)
{
    m_picture = picture;
    m_picture.setDevicePixelRatio(devicePixelRatioF());
    update();
}

void ZoomPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.drawImage(QPoint(), m_picture);
}

} // namespace zephira
