// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/tidytask.h"

#include <atomic>
#include <functional>
#include <utility>

#include <pthread.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Tidy calls itself for each element within an element. A thread's usual room isn't enough for all that its reading
/// may leave to its writing; the system provides it only as far as it is used.
constexpr std::size_t stackSize = std::size_t{64} * 1024 * 1024;

void *runWork(void *pointer)
{
    const std::unique_ptr<std::function<void()>> work(static_cast<std::function<void()> *>(pointer));
    (*work)();
    return nullptr;
}

/// Runs the work in a thread that nobody waits for. Returns whether the thread was started.
bool startThread(std::function<void()> work)
{
    pthread_attr_t attributes;
    if (pthread_attr_init(&attributes) != 0)
        return false;
    auto copy = std::make_unique<std::function<void()>>(std::move(work));
    pthread_t thread{};
    const bool started = pthread_attr_setstacksize(&attributes, stackSize) == 0
        && pthread_attr_setdetachstate(&attributes, PTHREAD_CREATE_DETACHED) == 0
        && pthread_create(&thread, &attributes, &runWork, copy.get()) == 0;
    pthread_attr_destroy(&attributes);
    if (started)
        copy.release(); // The thread deletes it.
    return started;
}

} // namespace

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
    const bool started = startThread([&engine, file, choices, shared] {
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
