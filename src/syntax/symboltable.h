// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/linelexer.h"

#include <QByteArray>

#include <array>
#include <vector>

namespace zephira {

/// What an entry of a definition stands for. The order is the rank when two entries are the same text.
enum class TokenKind : Byte { None, LongComment, LineComment, String, Scope, Keyword, Operator };

/// An entry that isn't a plain word: a sign, or signs, blanks and words mixed.
struct Symbol {
    QByteArray bytes;
    TokenKind kind = TokenKind::None;
    quint16 index = 0; ///< which comment or string delimiter

    std::size_t size() const { return static_cast<std::size_t>(bytes.size()); }
    /// Length without the blanks at its end, which are a condition and aren't coloured.
    std::size_t styledSize() const;
};

/// Finds the longest symbol at a place.
class SymbolTable
{
public:
    explicit SymbolTable(bool caseSensitive) : m_caseSensitive(caseSensitive) {}

    void add(Symbol symbol);
    /// Sorts what was added; find() needs it. `isWord` has the bytes that belong to words.
    void finish(const std::array<bool, 256> &isWord);
    bool startsWith(Byte byte) const { return m_first[byte].count != 0; }
    /// Whether one-byte operators are all that begins with this byte.
    bool isPlainOperator(Byte byte) const;
    /// The longest symbol at `p`, or nullptr. One that ends in a letter isn't found inside a word,
    /// unless it begins a string, whose text follows at once.
    const Symbol *find(const Byte *p, const Byte *end) const;
    const std::vector<Symbol> &symbols() const { return m_symbols; }

private:
    struct Range {
        quint32 begin = 0;
        quint32 count = 0;
    };

    bool m_caseSensitive;
    std::array<bool, 256> m_isWord{};
    std::array<Range, 256> m_first{};
    std::vector<Symbol> m_symbols;
};

} // namespace zephira
