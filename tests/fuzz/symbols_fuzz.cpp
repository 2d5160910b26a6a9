// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary documents in every language: each symbol has its place in the text and a short name of one line.
#include "assist/documentsymbols.h"
#include "core/languages.h"
#include "fuzz/fuzztarget.h"

using namespace Qt::StringLiterals;
using namespace zephira;

FUZZ_TARGET(symbols)
{
    const QByteArray text = zephira::fuzz::inputBytes(data, size);
    for (int row = 0; row < languageCount; ++row) {
        for (const QString &path : {QString(), u"/a.php"_s}) {
            for (const DocumentSymbol &symbol : documentSymbols(text, row, path)) {
                check(symbol.position >= 0 && symbol.position <= text.size() && !symbolKind(symbol).isEmpty());
                check(symbol.level >= 0 && symbol.level <= 6 && symbol.name.size() <= 201);
                check(!symbol.name.contains(u'\n') && !symbol.name.contains(u'\r'));
            }
        }
    }
    return 0;
}
