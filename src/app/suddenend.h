// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace zephira {

/// Hears of an end that nothing in the program has decided: a library that has lost the connection to the display calls
/// exit() in the middle of the event loop. One process has one of these.
class SuddenEnd
{
public:
    /// `keep` runs while the process ends, in the thread that made this object. It may neither show anything nor wait for
    /// anybody.
    explicit SuddenEnd(std::function<void()> keep);
    ~SuddenEnd();
    SuddenEnd(const SuddenEnd &) = delete;
    SuddenEnd &operator=(const SuddenEnd &) = delete;
};

} // namespace zephira
