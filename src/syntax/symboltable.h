// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/linelexer.h"

#include <QByteArray>

#include <array>
#include <vector>

namespace zephira {

/// The meaning of an entry of a definition. Of two entries with the same text the kind listed first takes precedence.
enum class TokenKind : Byte { None, LongComment, LineComment, String, Scope, Keyword, Operator };

/// An entry that isn't a plain word: a symbol, or a mixture of symbols, spaces and words.
struct Symbol {
    QByteArray bytes;
    TokenKind kind = TokenKind::None;
    quint16 index = 0; ///< index of the comment or string delimiter

    std::size_t size() const { return static_cast<std::size_t>(bytes.size()); }
    /// Length in bytes without trailing spaces, which must match but aren't coloured.
    std::size_t styledSize() const;
};

/// Finds the longest symbol at a position.
class SymbolTable
{
public:
    explicit SymbolTable(bool caseSensitive) : m_caseSensitive(caseSensitive) {}

    void add(Symbol symbol);
    /// Sorts the symbols; must be called before find(). `isWord` marks the bytes that belong to words.
    void finish(const std::array<bool, 256> &isWord);
    bool startsWith(Byte byte) const { return m_first[byte].count != 0; }
    /// Whether only one-byte operators begin with this byte.
    bool isPlainOperator(Byte byte) const;
    /// The longest symbol at `p`, or nullptr. A symbol that ends in a letter doesn't match inside a word, unless it
    /// opens a string, whose text follows directly.
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
