// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/tidytask.h"

#include "tools/deepthread.h"

#include <atomic>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

struct TidyTask::Shared {
    TidyWatch watch;
    /// Written by the thread before `isDone`, read by the other one after it.
    std::optional<Result<TidyOutcome>> outcome;
    std::atomic<bool> isDone = false;
};

Result<void> TidyTask::start(const TidyEngine &engine, const QByteArray &file, const TidyChoices &choices)
{
    cancel();
    const auto shared = std::make_shared<Shared>();
    const bool started = startDeepThread([&engine, file, choices, shared] {
        shared->outcome = tidied(engine, file, choices, shared->watch);
        shared->isDone = true;
    });
    if (!started)
        return Error{Error::Code::Failed, u"The document can't be checked now: there is no room for another thread."_s};
    m_shared = shared;
    return {};
}

void TidyTask::cancel()
{
    if (const std::shared_ptr<Shared> shared = std::exchange(m_shared, nullptr))
        shared->watch.cancel();
}

int TidyTask::permille() const
{
    return m_shared ? m_shared->watch.permille() : 0;
}

std::optional<Result<TidyOutcome>> TidyTask::take()
{
    if (!m_shared || !m_shared->isDone)
        return {};
    return std::exchange(m_shared, nullptr)->outcome;
}

} // namespace zephira
