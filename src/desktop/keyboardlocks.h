// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

namespace zephira {

struct KeyboardLocks {
    bool caps = false;
    bool num = false;
};

/// The lock keys' present state; nothing where the display doesn't tell.
std::optional<KeyboardLocks> keyboardLocks();

} // namespace zephira
