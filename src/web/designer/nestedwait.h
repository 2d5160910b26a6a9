// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractEventDispatcher>
#include <QEventLoop>

namespace zephira {

/// Runs a nested event loop during the handling of another event, excluding user input.
///
/// Events that were posted together with the current one are not noticed in a nested loop until something wakes it, and
/// these may include the engine's own work.
inline void waitIn(QEventLoop &loop)
{
    QAbstractEventDispatcher::instance()->wakeUp();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace zephira
