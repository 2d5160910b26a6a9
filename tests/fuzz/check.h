// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>

/// Ends the process, as a failure for the current input, if the condition is false.
inline void check(bool holds)
{
    if (!holds)
        std::abort();
}
