// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/lateparts.h"

#include <QEvent>

#include <utility>

namespace zephira {

namespace {

/// Whether the Tab key can stop at the control. A box's line edit gets the focus through the box.
bool isTabStop(const QWidget &widget)
{
    return widget.focusPolicy() & Qt::TabFocus && !widget.focusProxy();
}

/// The last control in the tab order of a window, or nullptr.
QWidget *lastTabStop(const QWidget &window)
{
    QWidget *last = window.previousInFocusChain();
    while (last != &window && !isTabStop(*last))
        last = last->previousInFocusChain();
    return last == &window ? nullptr : last;
}

} // namespace

LateParts::LateParts(QWidget &window, HiddenParts when) : m_window(window), m_when(when)
{
    // Without an interval the timer fires when no event is waiting.
    connect(&m_idle, &QTimer::timeout, this, &LateParts::makeNext);
    if (m_when == HiddenParts::AfterPicture)
        m_window.installEventFilter(this);
}

void LateParts::add(std::function<void()> make)
{
    if (m_when == HiddenParts::AtOnce)
        make();
    else
        m_parts.push_back({std::move(make), lastTabStop(m_window)});
}

void LateParts::finish()
{
    while (!m_parts.empty())
        makeNext();
}

void LateParts::makeNext()
{
    if (m_parts.empty()) {
        m_idle.stop();
        return;
    }
    const Part part = std::move(m_parts.front());
    m_parts.pop_front();
    const QWidget *lastOther = m_window.previousInFocusChain();
    part.make();
    if (part.before)
        moveInFocusChain(lastOther, part.before);
}

/// Moves the controls after `lastOther`, up to the end of the tab order, to the position after `before` and the
/// controls that were inserted there earlier.
void LateParts::moveInFocusChain(const QWidget *lastOther, QWidget *before)
{
    QList<QWidget *> added;
    for (QWidget *next = lastOther->nextInFocusChain(); next != &m_window; next = next->nextInFocusChain()) {
        if (isTabStop(*next))
            added.append(next);
    }
    QPointer<QWidget> &last = m_lastBehind[before];
    for (QWidget *control : std::as_const(added)) {
        QWidget::setTabOrder(last ? last.data() : before, control);
        last = control;
    }
}

bool LateParts::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        m_window.removeEventFilter(this);
        m_idle.start();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zephira
