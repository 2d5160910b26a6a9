// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/bracematcher.h"

#include "editor/indicators.h"
#include "syntax/syntaxstyle.h"

#include <algorithm>
#include <string_view>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

/// How far to search for the matching partner, in bytes.
constexpr qsizetype reach = 64 * 1024;

constexpr std::string_view opening = "([{";
constexpr std::string_view closing = ")]}";

bool isNameByte(char byte)
{
    const auto c = static_cast<unsigned char>(byte);
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == ':'
        || c == '_' || c >= 0x80;
}

bool sameName(QByteArrayView a, QByteArrayView b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// A tag's name within a text, after its "<" or "</".
struct TagName {
    qsizetype start = 0;
    qsizetype end = 0;
    bool closing = false;
};

std::optional<TagName> tagNameAt(QByteArrayView text, qsizetype lessThan)
{
    TagName name{lessThan + 1, lessThan + 1, false};
    if (name.start < text.size() && text[name.start] == '/') {
        name.closing = true;
        ++name.start;
    }
    name.end = name.start;
    while (name.end < text.size() && isNameByte(text[name.end]))
        ++name.end;
    if (name.end == name.start)
        return std::nullopt;
    return name;
}

} // namespace

BraceMatcher::BraceMatcher(SciEngine engine) : m_engine(engine)
{
    m_engine.send(Sci::SCI_INDICSETSTYLE, BraceIndicator, Sci::INDIC_STRAIGHTBOX);
    m_engine.send(Sci::SCI_INDICSETFORE, BraceIndicator, 0xb36a1e);
    m_engine.send(Sci::SCI_INDICSETALPHA, BraceIndicator, 45);
    m_engine.send(Sci::SCI_INDICSETOUTLINEALPHA, BraceIndicator, 140);
    m_engine.send(Sci::SCI_INDICSETUNDER, BraceIndicator, true);
}

std::optional<BracePair> BraceMatcher::pairAt(qsizetype position) const
{
    // The character before the caret takes precedence, because it was typed last.
    for (const qsizetype candidate : {position - 1, position}) {
        if (const auto pair = bracketPair(candidate))
            return pair;
    }
    return tagPair(position);
}

std::optional<BracePair> BraceMatcher::bracketPair(qsizetype position) const
{
    if (position < 0 || position >= m_engine.length())
        return std::nullopt;
    const char bracket = static_cast<char>(m_engine.send(Sci::SCI_GETCHARAT, position));
    const auto open = opening.find(bracket);
    const auto close = closing.find(bracket);
    if (open == opening.npos && close == closing.npos)
        return std::nullopt;
    const bool forward = open != opening.npos;
    const char partner = forward ? closing[open] : opening[close];
    const int style = m_engine.styleAt(position);
    const qsizetype start = forward ? position : std::max<qsizetype>(0, position - reach);
    const qsizetype end = forward ? std::min(m_engine.length(), position + reach) : position + 1;
    const QByteArrayView text = m_engine.bytes(start, end);
    int depth = 0;
    for (qsizetype at = position; at >= start && at < end; at += forward ? 1 : -1) {
        const char byte = text[at - start];
        if ((byte != bracket && byte != partner) || m_engine.styleAt(at) != style)
            continue;
        depth += byte == bracket ? 1 : -1;
        if (depth == 0)
            return BracePair{position, position + 1, at, at + 1};
    }
    return std::nullopt;
}

std::optional<BracePair> BraceMatcher::tagPair(qsizetype position) const
{
    const qsizetype start = std::max<qsizetype>(0, position - reach);
    const QByteArrayView text = m_engine.bytes(start, std::min(m_engine.length(), position + reach));
    const auto isMarkup = [&](qsizetype offset) {
        return m_engine.styleAt(start + offset) == numberOf(SyntaxStyle::Operator);
    };
    // The caret is in a name, or at one of its ends.
    qsizetype nameStart = position - start;
    while (nameStart > 0 && isNameByte(text[nameStart - 1]))
        --nameStart;
    qsizetype lessThan = nameStart - 1;
    if (lessThan >= 0 && text[lessThan] == '/')
        --lessThan;
    if (lessThan < 0 || text[lessThan] != '<' || !isMarkup(lessThan))
        return std::nullopt;
    const auto own = tagNameAt(text, lessThan);
    if (!own || own->start != nameStart || position - start > own->end)
        return std::nullopt;
    const QByteArrayView name = text.sliced(own->start, own->end - own->start);
    const qsizetype step = own->closing ? -1 : 1;
    int depth = 1;
    for (qsizetype at = lessThan + step; at >= 0 && at < text.size(); at += step) {
        if (text[at] != '<')
            continue;
        const auto other = tagNameAt(text, at);
        if (!other || !sameName(text.sliced(other->start, other->end - other->start), name) || !isMarkup(at))
            continue;
        depth += other->closing == own->closing ? 1 : -1;
        if (depth == 0)
            return BracePair{start + own->start, start + own->end, start + other->start, start + other->end};
    }
    return std::nullopt;
}

void BraceMatcher::update()
{
    const bool plainCaret = m_engine.send(Sci::SCI_GETSELECTIONEMPTY) && m_engine.send(Sci::SCI_GETSELECTIONS) == 1;
    const auto pair = plainCaret ? pairAt(m_engine.caret()) : std::nullopt;
    if (pair == m_shown)
        return;
    clear();
    m_shown = pair;
    if (pair) {
        mark(pair->firstStart, pair->firstEnd, true);
        mark(pair->secondStart, pair->secondEnd, true);
    }
}

void BraceMatcher::clear()
{
    // Edits move the marks, so they are removed from the whole text.
    if (m_shown)
        mark(0, m_engine.length(), false);
    m_shown.reset();
}

void BraceMatcher::mark(qsizetype start, qsizetype end, bool on) const
{
    m_engine.send(Sci::SCI_SETINDICATORCURRENT, BraceIndicator);
    m_engine.send(on ? Sci::SCI_INDICATORFILLRANGE : Sci::SCI_INDICATORCLEARRANGE, start, end - start);
}

} // namespace zephira
