// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/accessiblenews.h"

#include "editor/accessibleeditor.h"
#include "files/buffertext.h"

#include <QAccessible>

#include <algorithm>

namespace zephira {

namespace {

int offsetOf(const SciEngine &engine, qsizetype position)
{
    return AccessibleEditor::offsetOf(engine, position);
}

QString textInRange(const SciEngine &engine, qsizetype position, qsizetype length)
{
    return fromBuffer(engine.bytes(position, position + length), LineEnds::Mixed);
}

} // namespace

void AccessibleNews::inserted(qsizetype position, qsizetype length)
{
    if (!isListenedTo())
        return;
    QAccessibleTextInsertEvent event(&m_source, offsetOf(m_engine, position), textInRange(m_engine, position, length));
    tell(event);
}

void AccessibleNews::willRemove(qsizetype position, qsizetype length)
{
    if (!isListenedTo())
        return;
    QAccessibleTextRemoveEvent event(&m_source, offsetOf(m_engine, position), textInRange(m_engine, position, length));
    tell(event);
}

void AccessibleNews::selectionMoved(qsizetype anchor, qsizetype caret)
{
    if (!isListenedTo())
        return;
    const int from = offsetOf(m_engine, anchor);
    const int to = offsetOf(m_engine, caret);
    QAccessibleTextSelectionEvent selected(&m_source, std::min(from, to), std::max(from, to));
    selected.setCursorPosition(to);
    tell(selected);
    QAccessibleTextCursorEvent moved(&m_source, to);
    tell(moved);
}

bool AccessibleNews::isListenedTo() const
{
    return m_listener || QAccessible::isActive();
}

void AccessibleNews::tell(QAccessibleEvent &event)
{
    if (m_listener)
        m_listener(&event);
    else
        QAccessible::updateAccessibility(&event);
}

} // namespace zephira
