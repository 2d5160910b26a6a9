// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/suddenend.h"

#include <cstdlib>
#include <thread>
#include <utility>

namespace zephira {

namespace {

/// What exit() calls is given nothing, so that this stands here.
struct Watch {
    std::function<void()> keep;
    std::thread::id thread;
};

Watch &watch()
{
    static Watch kept;
    return kept;
}

/// Another thread that ends the process would read the text while it changes.
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
    // Registered behind the watch, and so called before the watch is taken down.
    [[maybe_unused]] static const int registered = std::atexit(keepAtExit);
}

SuddenEnd::~SuddenEnd()
{
    watch().keep = {};
}

} // namespace zephira
