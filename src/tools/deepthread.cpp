// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/deepthread.h"

#include <cstddef>
#include <memory>
#include <utility>

#include <pthread.h>

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

} // namespace

bool startDeepThread(std::function<void()> work)
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

} // namespace zephira
