// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

namespace zephira {

struct KeyboardLocks {
    bool caps = false;
    bool num = false;
};

/// The current state of the lock keys; nothing if the display can't provide it.
std::optional<KeyboardLocks> keyboardLocks();

} // namespace zephira
