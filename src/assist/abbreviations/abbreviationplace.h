// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/abbreviations/abbreviationengine.h"
#include "core/openelements.h"

#include <optional>

namespace zephira {

/// What an abbreviation at a 0-based byte of the text of a page is written in; nothing inside a tag, unless in its
/// style, and in a script. `reader` reads by the rules of the page.
std::optional<AbbreviationSyntax> abbreviationSyntax(OpenElements &reader, const OpenElements::Text &text,
                                                     qsizetype position);

/// Lines without the indentation that all of them share; blank lines don't count for it.
QStringList withoutSharedIndent(const QStringList &lines);

} // namespace zephira
