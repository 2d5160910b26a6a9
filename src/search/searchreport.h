// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "search/searchrun.h"

#include <QString>

namespace zephira {

/// What a search is doing, for the panel: "3 matches in 2 of 17 files …".
QString searchProgress(const SearchCounts &counts);

/// What it has found, and what it left out.
QString searchSummary(const SearchCounts &counts);

} // namespace zephira
