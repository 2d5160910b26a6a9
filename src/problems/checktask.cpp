// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/checktask.h"

#include "tools/deepthread.h"

#include <mutex>
#include <utility>

namespace zephira {

/// What the thread and the task have in common.
struct CheckTask::Shared {
    TidyWatch watch;
    /// Written by the thread before it tells that it has ended.
    CheckReport report;
    std::mutex mutex;
    /// nullptr when there is nobody to tell.
    CheckTask *task = nullptr;
};

CheckTask::~CheckTask()
{
    if (!m_shared)
        return;
    m_shared->watch.cancel();
    const std::scoped_lock lock(m_shared->mutex);
    m_shared->task = nullptr;
}

void CheckTask::start(std::function<CheckOrder()> make)
{
    cancel();
    m_wanted = std::move(make);
    if (!m_shared)
        begin();
}

void CheckTask::cancel()
{
    m_wanted = nullptr;
    m_isCancelled = true;
    if (m_shared)
        m_shared->watch.cancel();
}

void CheckTask::begin()
{
    const auto shared = std::make_shared<Shared>();
    shared->task = this;
    m_isCancelled = false;
    m_shared = shared;
    const auto order = std::make_shared<const CheckOrder>(std::exchange(m_wanted, nullptr)());
    const bool started = startDeepThread([shared, order] {
        shared->report = checkDocument(*order, shared->watch);
        const std::scoped_lock lock(shared->mutex);
        if (shared->task)
            QMetaObject::invokeMethod(shared->task, &CheckTask::end, Qt::QueuedConnection);
    });
    // Without room for a thread the next change tries again.
    if (!started)
        m_shared.reset();
}

void CheckTask::end()
{
    const std::shared_ptr<Shared> ended = std::exchange(m_shared, nullptr);
    if (m_wanted)
        begin();
    else if (!m_isCancelled)
        Q_EMIT finished(ended->report);
}

} // namespace zephira
