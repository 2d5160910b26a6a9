// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "problems/pagecheck.h"
#include "tools/tidyengine.h"

namespace zephira {

/// Lets Tidy find what is wrong in the nesting of a page's elements. Fails if it can't read the page; the sentence says
/// why.
Result<void> checkStructure(const PageFacts &page, const TidyEngine &tidy, ProblemSink &sink, TidyWatch &watch);

} // namespace zephira
