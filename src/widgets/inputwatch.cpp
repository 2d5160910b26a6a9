// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/inputwatch.h"

#include <QChildEvent>
#include <QKeyEvent>
#include <QWidget>

namespace zephira {

namespace {

/// What can follow a link, press a button of a page or go through the history. Moving the mouse or typing can't.
bool isDeed(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::TouchEnd:
        return true;
    case QEvent::KeyPress: {
        const auto &key = static_cast<const QKeyEvent &>(event);
        return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Space
            || key.modifiers().testFlag(Qt::AltModifier) || key.key() == Qt::Key_Back || key.key() == Qt::Key_Forward;
    }
    default:
        return false;
    }
}

} // namespace

InputWatch::InputWatch(QWidget &view) : QObject(&view)
{
    view.installEventFilter(this);
    const QList<QWidget *> parts = view.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (QWidget *part : parts)
        part->installEventFilter(this);
}

bool InputWatch::take()
{
    const bool isRecent = m_sinceInput.isValid() && m_sinceInput.elapsed() < patience;
    m_sinceInput.invalidate();
    return isRecent;
}

bool InputWatch::eventFilter(QObject *watched, QEvent *event)
{
    // The engine shows a page of another process in a new widget.
    if (event->type() == QEvent::ChildAdded)
        static_cast<QChildEvent *>(event)->child()->installEventFilter(this);
    else if (isDeed(*event))
        m_sinceInput.start();
    return QObject::eventFilter(watched, event);
}

} // namespace zephira
