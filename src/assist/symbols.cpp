// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/symbols.h"

#include <algorithm>

namespace zephira {

void addSymbol(DocumentSymbols &symbols, DocumentSymbol symbol)
{
    constexpr std::size_t most = 50'000;
    if (symbols.size() < most)
        symbols.push_back(std::move(symbol));
}

QString symbolName(QByteArrayView utf8)
{
    constexpr qsizetype longest = 200;
    const QString name = QString::fromUtf8(utf8.first(std::min<qsizetype>(utf8.size(), 4 * longest))).simplified();
    return name.size() > longest ? name.first(longest) : name;
}

} // namespace zephira
