// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>

/// Tells the fuzzer that the input it has just tried broke a promise.
inline void check(bool holds)
{
    if (!holds)
        std::abort();
}
