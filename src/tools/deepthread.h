// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace zephira {

/// Runs the work in a thread that nobody waits for, with a stack that is large enough for Tidy. Returns whether the thread
/// was started.
bool startDeepThread(std::function<void()> work);

} // namespace zephira
