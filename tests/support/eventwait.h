// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <functional>

namespace zephira {

/// Waits until the condition holds; false when the time is over first. The waiting functions of QTest sleep between
/// events, and the web engine's work comes in so many small pieces that it takes seconds then.
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
