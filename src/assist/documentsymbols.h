// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/symbols.h"

namespace zephira {

/// The symbols of a document.
/// @param row   its language, by the numbers of languageRows()
/// @param path  its file, whose extension says more than the row where both a page and a program may be meant; or empty
DocumentSymbols documentSymbols(QByteArrayView text, int row, const QString &path);

/// What kind of symbol it is, in a word or two: "Heading 2".
QString symbolKind(const DocumentSymbol &symbol);

} // namespace zephira
