// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/designer/pagemerge.h"

#include <functional>
#include <optional>

namespace zephira {

/// What is to be checked: whether the engine makes of the source with `changes` the page that is wanted.
struct MergeTry {
    TextChanges changes;
    /// If there is a value, the wanted page is the loaded one with this change; else it is the edited one.
    std::optional<TextChange> target;

    friend bool operator==(const MergeTry &, const MergeTry &) = default;
};

enum class MergeVerdict {
    Right,
    Wrong,
    Stop, ///< the time is up, or nobody can tell
};

using MergeCheck = std::function<MergeVerdict(const MergeTry &)>;

/// Looks for changes of the source that are right, from the smallest to larger ones, and returns the first. Nothing if
/// none is right or a check said Stop: then the whole page has to be written. A page without changes isn't checked.
///
/// The tries are: the hunks on their own partners; with implied tags written out; for a few hunks, each alone by as
/// little around it as necessary, or all as one; all grown by more and more tokens; all grown to the elements around
/// them.
std::optional<TextChanges> mergedByLadder(const PageMerge &merge, const MergeCheck &check);

} // namespace zephira
