// SPDX-License-Identifier: GPL-3.0-or-later
// The parts of a procedural language in which only the closing delimiter matters: strings and comments.
#include "syntax/codewalk.h"
#include "syntax/numbers.h"

#include <algorithm>

namespace zephira {

namespace {

/// In `ending` of a string: the line ended in an escape character, so the string continues on the next line.
constexpr Byte escapedLineEnd = 0x80;

/// The maximum length of the word between R" and the parenthesis.
constexpr std::ptrdiff_t longestRawDelimiter = 16;

constexpr QByteArrayView rawPrefixes[] = {"R", "LR", "uR", "UR", "u8R"};

bool isRawDelimiter(Byte byte)
{
    return byte > ' ' && byte != '(' && byte != ')' && byte != '\\' && byte != '"';
}

} // namespace

quint32 ProceduralLexer::behindLineEnd(quint32 bits) const
{
    CodeState state = CodeState::unpacked(bits);
    if (state.kind == CodeState::Kind::LineComment)
        state.kind = CodeState::Kind::Code;
    if (state.kind == CodeState::Kind::String) {
        if (!(state.ending & escapedLineEnd) && !has(m_dialect, Dialect::LongStrings))
            return CodeState().packed();
        state.ending &= static_cast<Byte>(~escapedLineEnd);
    }
    return state.packed();
}

SyntaxStyle ProceduralLexer::lineEndStyle(quint32 bits) const
{
    switch (CodeState::unpacked(bits).kind) {
    case CodeState::Kind::Code:
        return SyntaxStyle::Text;
    case CodeState::Kind::Comment:
    case CodeState::Kind::LineComment:
        return SyntaxStyle::Comment;
    default:
        return SyntaxStyle::String;
    }
}

void ProceduralLexer::paintComment(Walk &walk) const
{
    if (walk.state.pair >= m_commentEnds.size()) {
        walk.state = {};
        return;
    }
    const QByteArray &ending = m_commentEnds[walk.state.pair];
    const Byte *q = findText(walk.p, walk.end, ending);
    if (q < walk.end) {
        q += ending.size();
        walk.state.kind = CodeState::Kind::Code;
        walk.state.pair = 0;
    }
    walk.take(q, SyntaxStyle::Comment);
}

void ProceduralLexer::paintLineComment(Walk &walk) const
{
    const bool closable = has(m_dialect, Dialect::PhpClosing);
    const Byte *q = closable ? findText(walk.p, walk.end, "?>") : walk.end;
    if (q < walk.end)
        walk.state.kind = CodeState::Kind::Code;
    walk.take(q, SyntaxStyle::Comment);
}

void ProceduralLexer::openString(Walk &walk, std::size_t delimiter, std::size_t length) const
{
    walk.state.kind = CodeState::Kind::String;
    walk.state.ending = static_cast<Byte>(delimiter);
    walk.take(walk.p + length, SyntaxStyle::String);
}

void ProceduralLexer::closeString(Walk &walk, const Byte *to) const
{
    walk.take(to, SyntaxStyle::String);
    walk.state.kind = CodeState::Kind::Code;
    walk.state.ending = 0;
    walk.operandBefore = true;
}

/// Skips an escape character and the character after it. Returns false if there is none at `p`.
bool ProceduralLexer::skipEscape(const Byte *&p, const Byte *end) const
{
    if (m_escape.isEmpty() || !standsAt(p, end, m_escape))
        return false;
    p = std::min(end, p + m_escape.size() + 1);
    return true;
}

void ProceduralLexer::paintString(Walk &walk) const
{
    walk.state.ending &= static_cast<Byte>(~escapedLineEnd);
    if (walk.state.ending >= m_delimiters.size()) {
        walk.state = {};
        return;
    }
    const QByteArray &delimiter = m_delimiters[walk.state.ending];
    const Byte close = static_cast<Byte>(delimiter.front());
    // If the delimiter is its own escape character, a doubled one is coloured as two adjacent strings, which look the
    // same.
    const bool escapes = !m_escape.isEmpty() && m_escape != delimiter;
    const Byte escape = escapes ? static_cast<Byte>(m_escape.front()) : close;
    for (const Byte *q = walk.p;;) {
        while (q < walk.end && *q != close && *q != escape)
            ++q;
        if (q == walk.end)
            return walk.take(q, SyntaxStyle::String);
        if (escapes && *q == escape && walk.end - q == m_escape.size() && standsAt(q, walk.end, m_escape)) {
            walk.state.ending |= escapedLineEnd;
            return walk.take(walk.end, SyntaxStyle::String);
        }
        if (escapes && *q == escape && skipEscape(q, walk.end))
            continue;
        if (standsAt(q, walk.end, delimiter))
            return closeString(walk, q + delimiter.size());
        ++q;
    }
}

void ProceduralLexer::paintTemplate(Walk &walk) const
{
    for (const Byte *q = walk.p; q < walk.end;) {
        if (skipEscape(q, walk.end))
            continue;
        if (*q == '`')
            return closeString(walk, q + 1);
        if (standsAt(q, walk.end, "${") && walk.state.openSubstitutions() < mostSubstitutions) {
            walk.take(q, SyntaxStyle::String);
            walk.take(q + 2, SyntaxStyle::Operator);
            walk.state.openSubstitution();
            walk.state.kind = CodeState::Kind::Code;
            walk.operandBefore = false;
            return;
        }
        ++q;
    }
    walk.take(walk.end, SyntaxStyle::String);
}

void ProceduralLexer::paintTextBlock(Walk &walk) const
{
    for (const Byte *q = walk.p; q < walk.end;) {
        if (skipEscape(q, walk.end))
            continue;
        if (standsAt(q, walk.end, "\"\"\""))
            return closeString(walk, q + 3);
        ++q;
    }
    walk.take(walk.end, SyntaxStyle::String);
}

bool ProceduralLexer::openHereDocument(Walk &walk) const
{
    if (!standsAt(walk.p, walk.end, "<<<"))
        return false;
    const Byte *name = std::find_if_not(walk.p + 3, walk.end, isBlank);
    if (name < walk.end && (*name == '"' || *name == '\''))
        ++name;
    const Byte *q = std::find_if_not(name, walk.end, [this](Byte b) { return m_isWord[b]; });
    if (q == name)
        return false;
    walk.state.kind = CodeState::Kind::HereDocument;
    walk.state.ending = fingerprint(name, q);
    walk.take(walk.end, SyntaxStyle::String);
    return true;
}

/// The word that ends the text comes first in its line, possibly after blanks.
void ProceduralLexer::paintHereDocument(Walk &walk) const
{
    if (walk.lineStart && walk.p == walk.begin) {
        const Byte *name = std::find_if_not(walk.p, walk.end, isBlank);
        const Byte *q = std::find_if_not(name, walk.end, [this](Byte b) { return m_isWord[b]; });
        if (q > name && fingerprint(name, q) == walk.state.ending)
            return closeString(walk, q);
    }
    walk.take(walk.end, SyntaxStyle::String);
}

bool ProceduralLexer::openRawString(Walk &walk, const Byte *quote) const
{
    const QByteArrayView prefix(reinterpret_cast<const char *>(walk.p), quote - walk.p);
    if (std::ranges::find(rawPrefixes, prefix) == std::end(rawPrefixes))
        return false;
    const Byte *last = std::min(walk.end, quote + 1 + longestRawDelimiter + 1);
    const Byte *q = std::find_if_not(quote + 1, last, isRawDelimiter);
    if (q == last || *q != '(')
        return false;
    walk.state.kind = CodeState::Kind::RawString;
    walk.state.ending = fingerprint(quote + 1, q);
    walk.take(q + 1, SyntaxStyle::String);
    return true;
}

void ProceduralLexer::paintRawString(Walk &walk) const
{
    for (const Byte *q = walk.p; (q = std::find(q, walk.end, Byte{')'})) < walk.end; ++q) {
        const Byte *last = std::min(walk.end, q + 1 + longestRawDelimiter + 1);
        const Byte *quote = std::find_if_not(q + 1, last, isRawDelimiter);
        if (quote < last && *quote == '"' && fingerprint(q + 1, quote) == walk.state.ending)
            return closeString(walk, quote + 1);
    }
    walk.take(walk.end, SyntaxStyle::String);
}

} // namespace zephira
