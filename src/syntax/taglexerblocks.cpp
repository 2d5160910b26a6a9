// SPDX-License-Identifier: GPL-3.0-or-later
// The other languages inside HTML: scripts, style sheets, server blocks.
#include "syntax/numbers.h"
#include "syntax/tagnames.h"
#include "syntax/tagwalk.h"

#include <algorithm>

namespace zephira {

namespace {

/// Whether `word`, given in lower case, is at `p` in upper or lower case.
bool standsFolded(const Byte *p, const Byte *end, QByteArrayView word)
{
    return end - p >= word.size()
        && std::equal(word.begin(), word.end(), p, [](char own, Byte other) { return own == (other | 32); });
}

/// Whether the end tag of a block is at `p`. It ends the block whatever the code's own syntax says.
bool endsBlock(const Byte *p, const Byte *end, QByteArrayView element)
{
    if (end - p < 2 + element.size() || p[1] != '/' || !standsFolded(p + 2, end, element))
        return false;
    const Byte *behind = p + 2 + element.size();
    return behind == end || *behind == '>' || *behind == '/' || isBlank(*behind);
}

} // namespace

const CodeLexer *TagLexer::lexerOf(Code code) const
{
    switch (code) {
    case Code::JavaScript:
        return &m_embedded->javaScript;
    case Code::VbScript:
        return &m_embedded->vbScript;
    case Code::StyleSheet:
        return &m_embedded->styleSheet;
    case Code::Php:
        return &m_embedded->php;
    case Code::None:
    case Code::Plain:
        break;
    }
    return nullptr;
}

void TagLexer::paintBlock(Walk &walk) const
{
    TagState &state = walk.state;
    const QByteArrayView element = state.code == Code::StyleSheet ? "style" : "script";
    const Byte *q = walk.p;
    bool server = false;
    for (; (q = findText(q, walk.end, "<")) < walk.end; ++q) {
        server = opensServerBlock(q, walk.end);
        if (server || endsBlock(q, walk.end, element))
            break;
    }
    if (const CodeLexer *lexer = lexerOf(state.code)) {
        while (walk.p < q) {
            walk.p = lexer->paint(walk.canvas, walk.p, q, walk.p == walk.line.begin, state.detail);
            // The language's own closing delimiter has no meaning in a block that is closed by an end tag.
            if (walk.p < q)
                walk.take(1, SyntaxStyle::Operator);
        }
    } else {
        walk.take(q, SyntaxStyle::Text);
    }
    if (q == walk.end)
        return;
    if (server)
        openServerBlock(walk);
    else
        state.enter(Mode::Text);
}

/// "<%", "<?php", "<?=" and "<?" alone.
bool TagLexer::opensServerBlock(const Byte *p, const Byte *end) const
{
    if (!m_embedded || end - p < 2 || *p != '<')
        return false;
    if (p[1] == '%')
        return true;
    if (p[1] != '?')
        return false;
    if (end - p == 2 || p[2] == '=' || isBlank(p[2]))
        return true;
    return standsFolded(p + 2, end, "php") && (end - p == 5 || !(tagBytes[p[5]] & tagbyte::inName));
}

void TagLexer::openServerBlock(Walk &walk) const
{
    TagState &state = walk.state;
    walk.valueBegin = nullptr;
    state.serverDetail = 0;
    if (walk.byteAt(1) == '?') {
        state.server = Code::Php;
        walk.take(walk.byteAt(2) == '=' ? 3 : 2, SyntaxStyle::Operator);
        if (standsFolded(walk.p, walk.end, "php"))
            walk.take(3, SyntaxStyle::Keyword);
        return;
    }
    if (walk.at("<%--")) {
        state.server = Code::VbScript;
        state.serverDetail = serverComment;
        return walk.take(4, SyntaxStyle::Comment);
    }
    walk.take(2, SyntaxStyle::Operator);
    if (walk.byteAt(0) == '@')
        state.serverScript = saysServerScript(viewOf(walk.p, findText(walk.p, walk.end, "%>")), state.serverScript);
    state.server = state.serverScript ? Code::JavaScript : Code::VbScript;
    const Byte sign = walk.byteAt(0);
    if (sign == '=' || sign == '@' || sign == '#' || sign == ':' || sign == '$')
        walk.take(1, SyntaxStyle::Operator);
}

void TagLexer::paintServerBlock(Walk &walk) const
{
    TagState &state = walk.state;
    if (state.serverDetail == serverComment) {
        const Byte *q = findText(walk.p, walk.end, "--%>");
        const bool closed = q < walk.end;
        if (closed) {
            state.server = Code::None;
            state.serverDetail = 0;
        }
        return walk.take(closed ? q + 4 : q, SyntaxStyle::Comment);
    }
    // "%>" ends a block even inside strings and comments; PHP's closing delimiter is found by its lexer.
    const Byte *end = state.server == Code::Php ? walk.end : findText(walk.p, walk.end, "%>");
    const bool lineStart = walk.p == walk.line.begin;
    walk.p = lexerOf(state.server)->paint(walk.canvas, walk.p, end, lineStart, state.serverDetail);
    if (walk.p < walk.end) {
        walk.take(2, SyntaxStyle::Operator);
        state.server = Code::None;
        state.serverDetail = 0;
    }
}

} // namespace zephira
