// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractEventDispatcher>
#include <QEventLoop>

namespace zephira {

/// Runs an event loop within the handling of another event, without what the user does meanwhile.
///
/// Events that were posted together with the one that is being handled stay unnoticed in an inner loop until something
/// wakes it, and the engine's own work may be among them.
inline void waitIn(QEventLoop &loop)
{
    QAbstractEventDispatcher::instance()->wakeUp();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace zephira
