// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/disabledicons.h"

#include <QPainter>

namespace zephira {

namespace {

constexpr qreal opacity = 0.4;

} // namespace

QPixmap DisabledIcons::generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap, const QStyleOption *option) const
{
    if (mode != QIcon::Disabled)
        return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
    QPixmap faint(pixmap.size());
    faint.setDevicePixelRatio(pixmap.devicePixelRatio());
    faint.fill(Qt::transparent);
    QPainter painter(&faint);
    painter.setOpacity(opacity);
    painter.drawPixmap(0, 0, pixmap);
    return faint;
}

} // namespace zephira
