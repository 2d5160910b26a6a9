// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/symbols.h"

namespace zephira {

enum class ScriptLanguage { JavaScript, Php, C, Perl, Basic, Pascal, Sql };

/// The functions and classes of a program. `offset` is added to each position. Any text is read in one pass; what can't be
/// a program gives few symbols or none.
DocumentSymbols scriptSymbols(QByteArrayView text, ScriptLanguage language, qsizetype offset = 0);

} // namespace zephira
