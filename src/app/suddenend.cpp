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

/// Does nothing if another thread ends the process: that one would read the text while this one may be changing it.
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
