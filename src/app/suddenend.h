// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace zephira {

/// Notices when something other than the program ends the process: a library that loses the connection to the display
/// calls exit() in the middle of the event loop. There must be only one instance per process.
class SuddenEnd
{
public:
    /// `keep` runs while the process ends, in the thread that created this object. It must neither show anything nor
    /// wait for anything.
    explicit SuddenEnd(std::function<void()> keep);
    ~SuddenEnd();
    SuddenEnd(const SuddenEnd &) = delete;
    SuddenEnd &operator=(const SuddenEnd &) = delete;
};

} // namespace zephira
