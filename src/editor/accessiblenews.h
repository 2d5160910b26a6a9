// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/sciengine.h"

#include <functional>

class QAccessibleEvent;
class QObject;

namespace zephira {

/// Tells assistive technology what happens in the control. While none is running nothing is made or counted, because each
/// event needs offsets that cost time.
class AccessibleNews
{
public:
    using Listener = std::function<void(QAccessibleEvent *)>;

    /// @param source  the object that the events come from
    AccessibleNews(QObject &source, SciEngine engine) : m_source(source), m_engine(engine) {}

    /// Hears everything in assistive technology's place, and also while none is running.
    void setListener(Listener listener) { m_listener = std::move(listener); }

    /// Behind an insertion, in bytes.
    void inserted(qsizetype position, qsizetype length);
    /// In front of a deletion, in bytes.
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
