// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "problems/problem.h"
#include "problems/servercode.h"
#include "tools/tidyengine.h"

namespace zephira {

/// Finds the first place where a document isn't well-formed XML. A document that a server completes isn't checked.
void checkXml(const CoveredText &document, ProblemSink &sink, const TidyWatch &watch);

} // namespace zephira
