// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/symbols.h"

namespace zephira {

/// The headings and ids of a page, the rules of its styles, and the functions of its scripts and of its server code, in the
/// order of the text. Any text is read in one pass.
DocumentSymbols markupSymbols(QByteArrayView text);

} // namespace zephira
