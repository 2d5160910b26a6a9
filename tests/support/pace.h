// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

/// How many times slower than the program that users have this one may be: with sanitizers it does much more.
#ifdef __SANITIZE_ADDRESS__
constexpr int pace = 10;
#else
constexpr int pace = 1;
#endif

} // namespace zephira
