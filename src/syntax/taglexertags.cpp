// SPDX-License-Identifier: GPL-3.0-or-later
// Inside the angle brackets: names, values, and the end of a tag.
#include "syntax/numbers.h"
#include "syntax/tagnames.h"
#include "syntax/tagwalk.h"

#include <algorithm>

namespace zephira {

void TagLexer::openTag(Walk &walk, const Byte *name, TagKind kind) const
{
    const Byte *q = name;
    quint32 hash = 0;
    for (; q < walk.end && (tagBytes[*q] & tagbyte::inName); ++q)
        hash = m_elements.words.step(hash, *q);
    const Byte found = kind == TagKind::Instruction ? knownName : m_elements.find(name, q, hash);
    walk.take(name, SyntaxStyle::Operator);
    walk.take(q, found != 0 ? SyntaxStyle::TagElement : SyntaxStyle::TagText);

    Code code = Code::None;
    if (kind == TagKind::Opening && (found & (scriptElement | styleElement)))
        code = found & scriptElement ? Code::JavaScript : Code::StyleSheet;
    walk.state.enter(Mode::Tag, code);
    walk.state.tag = kind;
}

void TagLexer::paintTag(Walk &walk) const
{
    TagState &state = walk.state;
    while (walk.p < walk.end && state.mode == Mode::Tag && state.server == Code::None) {
        const Byte byte = *walk.p;
        if (state.value != Value::None) {
            paintValue(walk);
        } else if (tagBytes[byte] & tagbyte::blank) {
            const Byte *q = walk.p + 1;
            while (q < walk.end && (tagBytes[*q] & tagbyte::blank))
                ++q;
            walk.take(q, SyntaxStyle::TagText);
        } else if (closeTag(walk)) {
            return;
        } else if (byte == quote(Value::FirstQuote) || byte == quote(Value::SecondQuote)) {
            state.value = byte == quote(Value::FirstQuote) ? Value::FirstQuote : Value::SecondQuote;
            walk.take(1, SyntaxStyle::String);
            walk.valueBegin = walk.p;
        } else if (byte == '<' && !opensServerBlock(walk.p, walk.end)) {
            // The tag was never closed; this must not affect the next one.
            return walk.leave();
        } else if (state.behindEquals && byte != '>') {
            state.value = Value::Unquoted;
            walk.valueBegin = walk.p;
        } else if (byte == '<') {
            openServerBlock(walk);
        } else if (byte == '=' || byte == '/' || byte == '>') {
            state.behindEquals = byte == '=';
            walk.take(1, SyntaxStyle::Operator);
        } else {
            paintTagName(walk);
        }
    }
}

/// Ends the tag if its closing delimiter is at the current position.
bool TagLexer::closeTag(Walk &walk) const
{
    TagState &state = walk.state;
    switch (state.tag) {
    case TagKind::Opening:
    case TagKind::Closing:
        if (*walk.p != '>')
            return false;
        walk.take(1, SyntaxStyle::Operator);
        if (state.code != Code::None)
            state.enter(Mode::Block, state.code);
        else
            walk.leave();
        return true;
    case TagKind::Instruction:
        if (!walk.at("?>"))
            return false;
        walk.take(2, SyntaxStyle::Operator);
        break;
    case TagKind::Directive:
        if (!walk.at("-->"))
            return false;
        walk.take(3, SyntaxStyle::Operator);
        break;
    }
    walk.leave();
    return true;
}

void TagLexer::paintTagName(Walk &walk) const
{
    TagState &state = walk.state;
    const bool instruction = state.tag == TagKind::Instruction;
    const bool directive = state.tag == TagKind::Directive;
    const Byte *q = walk.p;
    quint32 hash = 0;
    do
        hash = m_attributes.words.step(hash, *q++);
    while (q < walk.end && (tagBytes[*q] & tagbyte::inAttribute) && !(instruction && standsAt(q, walk.end, "?>"))
           && !(directive && standsAt(q, walk.end, "-->")));
    const Byte found = instruction || directive ? knownName : m_attributes.find(walk.p, q, hash);
    state.namesLanguage = (found & languageAttribute) && state.code != Code::None && state.code != Code::StyleSheet;
    walk.take(q, found != 0 ? SyntaxStyle::TagAttribute : SyntaxStyle::TagText);
}

void TagLexer::paintValue(Walk &walk) const
{
    TagState &state = walk.state;
    const bool quoted = state.value != Value::Unquoted;
    const Byte close = quote(state.value);
    const bool instruction = state.tag == TagKind::Instruction;
    const bool directive = state.tag == TagKind::Directive;
    const Byte *q = walk.p;
    for (; q < walk.end; ++q) {
        if (*q == '<' && opensServerBlock(q, walk.end)) {
            walk.take(q, SyntaxStyle::String);
            return openServerBlock(walk);
        }
        if (quoted ? *q == close
                   : (tagBytes[*q] & tagbyte::blank) || *q == '>' || *q == '<'
                    || (instruction && standsAt(q, walk.end, "?>")) || (directive && standsAt(q, walk.end, "-->")))
            break;
    }
    if (q == walk.end && quoted) {
        walk.valueBegin = nullptr;
        return walk.take(q, SyntaxStyle::String);
    }
    endValue(walk, walk.valueBegin, q);
    walk.take(quoted ? q + 1 : q, SyntaxStyle::String);
}

void TagLexer::endValue(Walk &walk, const Byte *begin, const Byte *end) const
{
    TagState &state = walk.state;
    if (state.namesLanguage && begin)
        state.code = scriptCode(viewOf(begin, end));
    state.value = Value::None;
    state.behindEquals = state.namesLanguage = false;
    walk.valueBegin = nullptr;
}

} // namespace zephira
