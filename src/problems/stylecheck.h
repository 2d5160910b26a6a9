// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "problems/knownnames.h"
#include "problems/problem.h"
#include "tools/tidyengine.h"

namespace zephira {

/// A part of a text, and where it begins in it.
struct TextPart {
    QByteArrayView text;
    qsizetype start = 0;
};

/// Finds unknown properties and braces without a partner in a style sheet. Server code has to be covered. Ends early when
/// nobody waits for the result any more.
void checkStyleSheet(const TextPart &sheet, const KnownNames &names, ProblemSink &sink, const TidyWatch &watch);

/// The same for the declarations of a `style` attribute.
void checkDeclarations(const TextPart &style, const KnownNames &names, ProblemSink &sink);

} // namespace zephira
