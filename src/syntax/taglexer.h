// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/csslexer.h"
#include "syntax/languagedefinition.h"
#include "syntax/procedurallexer.h"
#include "syntax/tagstate.h"
#include "syntax/wordtable.h"

#include <array>
#include <memory>
#include <vector>

namespace zephira {

/// Colours text with tags: names in tags, entities, comments, declarations, instructions. In HTML also embedded scripts
/// and style sheets, each with its own lexer, and server blocks, which may interrupt anything else.
class TagLexer final : public LineLexer
{
public:
    explicit TagLexer(const LanguageDefinition &definition);

    quint32 paintLine(const StyleCanvas &canvas, const LineBytes &line, quint32 state) const override;

private:
    using Mode = TagState::Mode;
    using Code = TagState::Code;
    using TagKind = TagState::TagKind;
    using Value = TagState::Value;
    struct Walk;
    /// The names of one list field: complete names, and the prefixes given with a "*".
    struct Names {
        WordTable words;
        std::vector<QByteArray> beginnings;
        bool all = false;

        Names(const QString &list, bool caseSensitive);
        Byte find(const Byte *begin, const Byte *end, quint32 hash) const;
        Byte find(const Byte *begin, const Byte *end) const;
    };

    /// The lexers of the languages embedded in HTML.
    struct Embedded {
        ProceduralLexer javaScript{javaScriptDefinition()};
        ProceduralLexer vbScript{vbScriptDefinition()};
        ProceduralLexer php{phpDefinition()};
        CssLexer styleSheet;
    };

    void paintText(Walk &walk) const;
    void paintEntity(Walk &walk) const;
    bool openComment(Walk &walk) const;
    void openMarkup(Walk &walk) const;
    void openTag(Walk &walk, const Byte *name, TagKind kind) const;
    void openDeclaration(Walk &walk) const;
    void paintTag(Walk &walk) const;
    bool closeTag(Walk &walk) const;
    void paintTagName(Walk &walk) const;
    void paintValue(Walk &walk) const;
    void endValue(Walk &walk, const Byte *begin, const Byte *end) const;
    void paintComment(Walk &walk) const;
    void paintDeclaration(Walk &walk) const;
    void paintSubset(Walk &walk) const;
    void paintCdata(Walk &walk) const;
    void paintBlock(Walk &walk) const;
    void paintServerBlock(Walk &walk) const;

    bool opensServerBlock(const Byte *p, const Byte *end) const;
    void openServerBlock(Walk &walk) const;
    const CodeLexer *lexerOf(Code code) const;
    SyntaxStyle lineEndStyle(const TagState &state) const;
    Byte quote(Value value) const { return m_quotes[value == Value::SecondQuote ? 1 : 0]; }

    Names m_elements;
    Names m_attributes;
    Names m_entities;
    std::vector<QByteArray> m_commentBegins;
    std::vector<QByteArray> m_commentEnds;
    std::array<Byte, 2> m_quotes{'"', '\''};
    std::array<bool, 256> m_stopsText{};
    std::unique_ptr<const Embedded> m_embedded;
};

} // namespace zephira
