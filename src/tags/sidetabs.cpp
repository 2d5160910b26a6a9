// SPDX-License-Identifier: GPL-3.0-or-later
#include "tags/sidetabs.h"

#include <QKeyEvent>
#include <QStyleOptionTab>
#include <QStylePainter>
#include <QTabBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The style rotates the captions of tabs at the side by a right angle; this undoes that.
class SideTabBar final : public QTabBar
{
public:
    using QTabBar::QTabBar;

protected:
    QSize tabSizeHint(int index) const override
    {
        // Room for a bold caption, too.
        return QTabBar::tabSizeHint(index).transposed() + QSize(fontMetrics().averageCharWidth() * 2, 0);
    }

    void paintEvent(QPaintEvent *) override
    {
        QStylePainter painter(this);
        for (int i = 0; i < count(); ++i) {
            QStyleOptionTab tab;
            initStyleOption(&tab, i);
            painter.drawControl(QStyle::CE_TabBarTabShape, tab);
            const QPointF centre = QRectF(tab.rect).center();
            QRect turned({}, tab.rect.size().transposed());
            turned.moveCenter(tab.rect.center());
            tab.rect = turned;
            painter.save();
            painter.translate(centre);
            painter.rotate(90);
            painter.translate(-centre);
            // In dark palettes the current tab hardly differs from the others.
            QFont captionFont = font();
            captionFont.setBold(i == currentIndex());
            painter.setFont(captionFont);
            painter.drawControl(QStyle::CE_TabBarTabLabel, tab);
            painter.restore();
        }
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Up)
            setCurrentIndex(std::max(currentIndex() - 1, 0));
        else if (event->key() == Qt::Key_Down)
            setCurrentIndex(std::min(currentIndex() + 1, count() - 1));
        else
            QTabBar::keyPressEvent(event);
    }
};

} // namespace

SideTabs::SideTabs(QWidget *parent) : QTabWidget(parent)
{
    auto *bar = new SideTabBar(this);
    // The tab bar's name in every QTabWidget.
    bar->setObjectName(u"qt_tabwidget_tabbar"_s);
    setTabBar(bar);
    setTabPosition(QTabWidget::West);
    // The window is always high enough for all tabs.
    setUsesScrollButtons(false);
}

} // namespace zephira
