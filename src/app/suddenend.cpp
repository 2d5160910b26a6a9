// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/suddenend.h"

#include <cstdlib>
#include <thread>
#include <utility>

namespace zephira {

namespace {

/// A global, because exit() calls its handlers without arguments.
struct Watch {
    std::function<void()> keep;
    std::thread::id thread;
};

Watch &watch()
{
    static Watch kept;
    return kept;
}

/// If another thread ended the process, it would read the text while that changes.
void keepAtExit()
{
    if (const std::function<void()> keep = std::exchange(watch().keep, {});
        keep && watch().thread == std::this_thread::get_id())
        keep();
}

} // namespace

SuddenEnd::SuddenEnd(std::function<void()> keep)
{
    watch() = {std::move(keep), std::this_thread::get_id()};
    // Registered after the watch was created, and so called before it is destroyed.
    [[maybe_unused]] static const int registered = std::atexit(keepAtExit);
}

SuddenEnd::~SuddenEnd()
{
    watch().keep = {};
}

} // namespace zephira
