// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/sidetabbar.h"

#include <QStyleOptionTab>
#include <QStylePainter>

namespace zephira {

namespace {

constexpr int pictureSize = 20;
constexpr int tabSize = 32;

} // namespace

SideTabBar::SideTabBar(QWidget *parent) : QTabBar(parent)
{
    setShape(QTabBar::RoundedWest);
    setIconSize({pictureSize, pictureSize});
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(true);
}

QSize SideTabBar::tabSizeHint(int) const
{
    return {tabSize, tabSize};
}

void SideTabBar::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    for (int i = 0; i < count(); ++i) {
        QStyleOptionTab option;
        initStyleOption(&option, i);
        const QRect cell = tabRect(i);
        const bool selected = i == currentIndex();
        if (selected) {
            painter.fillRect(cell, palette().color(QPalette::Base));
            painter.fillRect(QRect(cell.left(), cell.top(), 3, cell.height()), palette().color(QPalette::Highlight));
        } else if (option.state & QStyle::State_MouseOver && isTabEnabled(i)) {
            painter.fillRect(cell, palette().color(QPalette::Midlight));
        }
        QRect picture(0, 0, pictureSize, pictureSize);
        picture.moveCenter(cell.center());
        if (tabIcon(i).isNull()) {
            painter.setPen(palette().color(isTabEnabled(i) ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
            painter.drawText(picture, Qt::AlignCenter, tabData(i).toString().toUpper());
        } else {
            tabIcon(i).paint(&painter, picture, Qt::AlignCenter, isTabEnabled(i) ? QIcon::Normal : QIcon::Disabled);
        }
        if (selected && hasFocus()) {
            QStyleOptionFocusRect focus;
            focus.initFrom(this);
            focus.rect = cell.adjusted(2, 2, -2, -2);
            painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
        }
    }
}

} // namespace zephira
