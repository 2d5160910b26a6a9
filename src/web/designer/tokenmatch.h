// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

namespace zephira {

/// Finds what two lists of numbers have in common, in the same order: for each entry of `second` the index of its
/// partner in `first`, or -1. Partners are equal, and their indexes ascend. Numbers are below `count`.
///
/// What is common at both ends comes first, then numbers that are unique in both lists, and between these the shortest
/// way from one list to the other. Where that would take long, the lists are walked through side by side until they
/// agree again. So the time is proportional to the lengths except for texts that were made to prevent it, and there it
/// is limited; what remains then has no partners.
std::vector<int> partnersIn(std::span<const int> first, std::span<const int> second, int count);

} // namespace zephira
