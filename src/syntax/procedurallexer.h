// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/codestate.h"
#include "syntax/languagedefinition.h"
#include "syntax/linelexer.h"
#include "syntax/symboltable.h"
#include "syntax/wordtable.h"

#include <array>
#include <vector>

namespace zephira {

/// Colours a procedural language using tables made from its definition. The class of a byte determines how a token
/// beginning with it continues; words are looked up in one dictionary, everything else in the symbol table.
class ProceduralLexer final : public CodeLexer, public LineLexer
{
public:
    explicit ProceduralLexer(const LanguageDefinition &definition);

    const Byte *paint(const StyleCanvas &canvas, const Byte *begin, const Byte *end, bool lineStart,
                      quint32 &state) const override;
    quint32 behindLineEnd(quint32 state) const override;
    SyntaxStyle lineEndStyle(quint32 state) const override;
    quint32 paintLine(const StyleCanvas &canvas, const LineBytes &line, quint32 state) const override;

private:
    enum class ByteClass : Byte { Plain, Word, Digit, Point, Operator, Symbol, Special };
    struct Walk;

    void addWords(const QString &list, TokenKind kind);
    void addEntry(const QByteArray &entry, TokenKind kind, std::size_t index = 0);
    void classifyBytes();
    bool isWordStart(Byte byte) const { return m_isWord[byte] && !(byte >= '0' && byte <= '9'); }

    void paintCode(Walk &walk) const;
    void paintWord(Walk &walk) const;
    void paintNumber(Walk &walk, const Byte *numberEnd) const;
    void paintSymbol(Walk &walk) const;
    void paintVariable(Walk &walk) const;
    bool paintSpecial(Walk &walk) const;
    bool paintDirective(Walk &walk) const;
    bool paintRegularExpression(Walk &walk) const;
    bool openHereDocument(Walk &walk) const;
    bool openRawString(Walk &walk, const Byte *quote) const;
    void openString(Walk &walk, std::size_t delimiter, std::size_t length) const;

    void paintComment(Walk &walk) const;
    void paintLineComment(Walk &walk) const;
    void paintString(Walk &walk) const;
    void paintTemplate(Walk &walk) const;
    void paintTextBlock(Walk &walk) const;
    void paintHereDocument(Walk &walk) const;
    void paintRawString(Walk &walk) const;
    bool skipEscape(const Byte *&p, const Byte *end) const;
    void closeString(Walk &walk, const Byte *to) const;

    Dialect m_dialect;
    std::array<ByteClass, 256> m_class{};
    std::array<bool, 256> m_isWord{};
    WordTable m_words;
    WordTable m_directives;
    SymbolTable m_symbols;
    std::vector<QByteArray> m_commentEnds;
    std::vector<QByteArray> m_delimiters;
    QByteArray m_escape;
};

} // namespace zephira
