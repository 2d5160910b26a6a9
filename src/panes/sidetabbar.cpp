// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/sidetabbar.h"

#include "widgets/droppedfile.h"

#include <QDropEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QStyleOptionTab>
#include <QStylePainter>

namespace zephira {

namespace {

constexpr int pictureSize = 20;
constexpr int tabSize = 32;

} // namespace

SideTabBar::SideTabBar(QWidget *parent) : TabStrip(parent)
{
    setShape(QTabBar::RoundedWest);
    setIconSize({pictureSize, pictureSize});
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(true);
    setAcceptDrops(true);
}

/// A title may have to be read from a file, so it is only fetched when the tip is shown.
bool SideTabBar::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && m_titleOf) {
        const int tab = tabAt(static_cast<QHelpEvent *>(event)->pos());
        if (const QString title = m_titleOf(tabData(tab).toString()); !title.isEmpty())
            setTabToolTip(tab, title);
    }
    return QTabBar::event(event);
}

QSize SideTabBar::sizeOfTab(int) const
{
    return {tabSize, tabSize};
}

void SideTabBar::mousePressEvent(QMouseEvent *event)
{
    const int tab = tabAt(event->position().toPoint());
    const bool again = event->button() == Qt::LeftButton && tab >= 0 && tab == currentIndex();
    QTabBar::mousePressEvent(event);
    if (again)
        Q_EMIT clickedAgain(tab);
}

void SideTabBar::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void SideTabBar::dropEvent(QDropEvent *event)
{
    const QString path = droppedFile(event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    Q_EMIT fileDropped(path);
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
        } else if (option.state & QStyle::State_MouseOver) {
            painter.fillRect(cell, palette().color(QPalette::Midlight));
        }
        QRect picture(0, 0, pictureSize, pictureSize);
        picture.moveCenter(cell.center());
        tabIcon(i).paint(&painter, picture, Qt::AlignCenter);
        if (selected && hasFocus()) {
            QStyleOptionFocusRect focus;
            focus.initFrom(this);
            focus.rect = cell.adjusted(2, 2, -2, -2);
            painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
        }
    }
}

} // namespace zephira
