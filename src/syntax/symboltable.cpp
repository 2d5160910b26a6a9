// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/symboltable.h"

#include "syntax/bytescan.h"

#include <algorithm>

namespace zephira {

namespace {

Byte firstOf(const Symbol &symbol)
{
    return static_cast<Byte>(symbol.bytes.front());
}

} // namespace

std::size_t Symbol::styledSize() const
{
    std::size_t length = size();
    while (length > 1 && bytes.at(static_cast<qsizetype>(length) - 1) == ' ')
        --length;
    return length;
}

void SymbolTable::add(Symbol symbol)
{
    if (symbol.bytes.isEmpty())
        return;
    if (!m_caseSensitive) {
        for (char &byte : symbol.bytes)
            byte = static_cast<char>(lowerCase(static_cast<Byte>(byte)));
    }
    m_symbols.push_back(std::move(symbol));
}

void SymbolTable::finish(const std::array<bool, 256> &isWord)
{
    m_isWord = isWord;
    std::ranges::stable_sort(m_symbols, [](const Symbol &a, const Symbol &b) {
        if (firstOf(a) != firstOf(b))
            return firstOf(a) < firstOf(b);
        return a.size() != b.size() ? a.size() > b.size() : a.kind < b.kind;
    });
    for (quint32 i = 0; i < m_symbols.size(); ++i) {
        Range &range = m_first[firstOf(m_symbols[i])];
        if (range.count++ == 0)
            range.begin = i;
    }
    if (!m_caseSensitive) {
        for (Byte upper = 'A'; upper <= 'Z'; ++upper)
            m_first[upper] = m_first[lowerCase(upper)];
    }
}

bool SymbolTable::isPlainOperator(Byte byte) const
{
    const Range range = m_first[byte];
    return range.count > 0
        && std::all_of(m_symbols.begin() + range.begin, m_symbols.begin() + range.begin + range.count,
                       [](const Symbol &s) { return s.kind == TokenKind::Operator && s.bytes.size() == 1; });
}

const Symbol *SymbolTable::find(const Byte *p, const Byte *end) const
{
    const Range range = m_first[*p];
    const std::size_t room = static_cast<std::size_t>(end - p);
    for (quint32 i = range.begin; i < range.begin + range.count; ++i) {
        const Symbol &symbol = m_symbols[i];
        const std::size_t size = symbol.size();
        if (size > room)
            continue;
        const auto *bytes = reinterpret_cast<const Byte *>(symbol.bytes.constData());
        const bool same = m_caseSensitive
            ? std::equal(bytes, bytes + size, p)
            : std::equal(bytes, bytes + size, p, [](Byte own, Byte other) { return own == lowerCase(other); });
        const bool insideWord =
            symbol.kind != TokenKind::String && size < room && m_isWord[bytes[size - 1]] && m_isWord[p[size]];
        if (same && !insideWord)
            return &symbol;
    }
    return nullptr;
}

} // namespace zephira
