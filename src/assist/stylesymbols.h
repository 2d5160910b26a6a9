// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/symbols.h"

namespace zephira {

/// The rules of a style sheet, at-rules and the rules in them included, by their selectors. `offset` is added to each
/// position. Any text is read in one pass.
DocumentSymbols styleSymbols(QByteArrayView text, qsizetype offset = 0);

} // namespace zephira
