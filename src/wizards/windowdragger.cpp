// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/windowdragger.h"

#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace zephira {

WindowDragger::WindowDragger(QWidget *handle) : QObject(handle), m_handle(handle)
{
    handle->installEventFilter(this);
}

bool WindowDragger::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_handle)
        return false;
    if (event->type() == QEvent::MouseButtonPress) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::LeftButton)
            press(mouse->globalPosition().toPoint());
    } else if (event->type() == QEvent::MouseMove) {
        move(static_cast<QMouseEvent *>(event)->globalPosition().toPoint());
    } else if (event->type() == QEvent::MouseButtonRelease) {
        m_hold.reset();
    }
    return false;
}

void WindowDragger::press(const QPoint &place)
{
    const QWidget *window = m_handle->window();
    if (!window->windowHandle() || !window->windowHandle()->startSystemMove())
        m_hold = place - window->pos();
}

void WindowDragger::move(const QPoint &place)
{
    if (m_hold)
        m_handle->window()->move(place - *m_hold);
}

} // namespace zephira
