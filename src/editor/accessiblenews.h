// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/sciengine.h"

#include <functional>

class QAccessibleEvent;
class QObject;

namespace zephira {

/// Notifies assistive technology of changes in the control. Does nothing while none is running, because computing the
/// offsets of an event takes time.
class AccessibleNews
{
public:
    using Listener = std::function<void(QAccessibleEvent *)>;

    /// @param source  the object that the events are sent for
    AccessibleNews(QObject &source, SciEngine engine) : m_source(source), m_engine(engine) {}

    /// Sends all events to `listener` instead of assistive technology, even while none is running.
    void setListener(Listener listener) { m_listener = std::move(listener); }

    /// To be called after an insertion; position and length in bytes.
    void inserted(qsizetype position, qsizetype length);
    /// To be called before a deletion; position and length in bytes.
    void willRemove(qsizetype position, qsizetype length);
    void selectionMoved(qsizetype anchor, qsizetype caret);

private:
    bool isListenedTo() const;
    void tell(QAccessibleEvent &event);

    QObject &m_source;
    SciEngine m_engine;
    Listener m_listener;
};

} // namespace zephira
