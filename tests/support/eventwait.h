// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <functional>

namespace zephira {

/// Waits until the condition holds; returns false if it doesn't in time. QTest's own functions sleep between events,
/// which makes the web engine take seconds, because its work is split into many small events.
inline bool waitUntil(const std::function<bool()> &condition, int milliseconds)
{
    const QDeadlineTimer end(milliseconds);
    while (!condition()) {
        if (end.hasExpired())
            return false;
        QEventLoop loop;
        QTimer::singleShot(5, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}

} // namespace zephira
