// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/styleplace.h"

#include "completion/completiontext.h"

#include <algorithm>
#include <array>
#include <vector>

namespace zephira {

namespace {

/// At-rules whose block holds rules; that of any other holds declarations.
constexpr std::array<QByteArrayView, 12> groups{
    "media",     "supports",          "layer",          "container",    "scope",         "document", "-moz-document",
    "keyframes", "-webkit-keyframes", "-moz-keyframes", "-o-keyframes", "starting-style"};

class StyleScan
{
public:
    StyleScan(QByteArrayView text, bool isDeclarations) : m_text(text)
    {
        if (isDeclarations)
            m_holdsRules.push_back(false);
    }

    CompletionPlace place()
    {
        while (m_at < m_text.size()) {
            if (!step())
                return m_found;
        }
        return endPlace();
    }

private:
    /// Goes behind the next token. False if the text ends in one: then m_found is the place.
    bool step();
    bool skipString();
    bool skipUrl();
    void openBlock();
    void closeBlock();
    void beginStatement() { m_statement = m_at; }
    bool isFirstInStatement() const;
    CompletionPlace endPlace() const;
    CompletionPlace declarationPlace(QByteArrayView statement, qsizetype word) const;
    CompletionPlace selectorPlace(qsizetype word) const;
    CompletionPlace filePlace(qsizetype start) const;

    QByteArrayView m_text;
    qsizetype m_at = 0;
    /// Where the current declaration, selector or at-rule begins.
    qsizetype m_statement = 0;
    /// For each open block whether it holds rules.
    std::vector<bool> m_holdsRules;
    CompletionPlace m_found;
};

/// Whether nothing but blanks stands before the current byte in its statement.
bool StyleScan::isFirstInStatement() const
{
    return std::ranges::all_of(m_text.sliced(m_statement, m_at - m_statement), isBlankOrBreak);
}

bool StyleScan::step()
{
    const char c = m_text[m_at];
    if (c == '/' && m_at + 1 < m_text.size() && m_text[m_at + 1] == '*') {
        const bool isFirst = isFirstInStatement();
        const qsizetype end = m_text.indexOf("*/", m_at + 2);
        if (end < 0)
            return false;
        m_at = end + 2;
        if (isFirst)
            beginStatement();
        return true;
    }
    if (c == '<') {
        const qsizetype end = behindServerBlock(m_text, m_at);
        if (end == m_text.size() && !m_text.endsWith("%>") && !m_text.endsWith("?>"))
            return false;
        m_at = std::max(end, m_at + 1);
        return true;
    }
    if (c == '"' || c == '\'')
        return skipString();
    if (c == '(' && m_at >= 3 && standsAt(m_text, m_at - 3, "url"))
        return skipUrl();
    if (c == '\\') {
        m_at = std::min(m_at + 2, m_text.size());
        return true;
    }
    ++m_at;
    if (c == '{')
        openBlock();
    else if (c == '}')
        closeBlock();
    if (c == '{' || c == '}' || c == ';')
        beginStatement();
    return true;
}

/// A string ends with its line if its quote is missing.
bool StyleScan::skipString()
{
    const char quote = m_text[m_at];
    const qsizetype start = m_at + 1;
    for (qsizetype at = start; at < m_text.size(); ++at) {
        if (m_text[at] == quote || m_text[at] == '\n' || m_text[at] == '\r') {
            m_at = at + 1;
            return true;
        }
        if (m_text[at] == '\\')
            ++at;
    }
    const QByteArrayView statement = m_text.sliced(m_statement, start - m_statement).trimmed();
    if (standsAt(statement, 0, "@import"))
        m_found = filePlace(start);
    return false;
}

bool StyleScan::skipUrl()
{
    qsizetype start = m_at + 1;
    const qsizetype line = std::min(m_text.indexOf('\n', start), m_text.size());
    const qsizetype end = m_text.indexOf(')', start);
    if (end >= 0 || line >= 0) {
        m_at = end < 0 || (line >= 0 && line < end) ? line + 1 : end + 1;
        return true;
    }
    while (start < m_text.size() && isBlankOrBreak(m_text[start]))
        ++start;
    if (start < m_text.size() && (m_text[start] == '"' || m_text[start] == '\'')) {
        const char quote = m_text[start++];
        if (m_text.indexOf(quote, start) >= 0)
            return false;
    }
    m_found = filePlace(start);
    return false;
}

CompletionPlace StyleScan::filePlace(qsizetype start) const
{
    const QByteArrayView value = m_text.sliced(start);
    const qsizetype name = value.lastIndexOf('/') + 1;
    return {.kind = PlaceKind::File,
            .start = start + name,
            .tag = "link",
            .attribute = "href",
            .quoted = true,
            .folder = value.first(name).toByteArray()};
}

void StyleScan::openBlock()
{
    const QByteArrayView prelude = m_text.sliced(m_statement, m_at - 1 - m_statement).trimmed();
    bool holdsRules = false;
    if (prelude.startsWith('@')) {
        qsizetype end = 1;
        while (end < prelude.size() && isNameByte(prelude[end]))
            ++end;
        holdsRules = std::ranges::find(groups, lowered(prelude.sliced(1, end - 1))) != groups.end();
    }
    // Within a rule, a group holds declarations too.
    if (holdsRules && std::ranges::find(m_holdsRules, false) != m_holdsRules.end())
        holdsRules = false;
    m_holdsRules.push_back(holdsRules);
}

void StyleScan::closeBlock()
{
    if (!m_holdsRules.empty())
        m_holdsRules.pop_back();
}

CompletionPlace StyleScan::endPlace() const
{
    qsizetype first = m_statement;
    while (first < m_text.size() && isBlankOrBreak(m_text[first]))
        ++first;
    const QByteArrayView statement = m_text.sliced(first);
    const qsizetype word = nameStart(m_text, m_text.size());
    if (statement.startsWith('@'))
        return word == first + 1 ? CompletionPlace{.kind = PlaceKind::AtRule, .start = first} : CompletionPlace{};
    const bool inRule = !m_holdsRules.empty() && !m_holdsRules.back();
    if (!inRule)
        return selectorPlace(word);
    // What begins like this is a rule within the rule.
    if (!statement.isEmpty() && QByteArrayView("&.#>+~*[:").contains(statement.front()))
        return selectorPlace(word);
    return declarationPlace(statement, word);
}

CompletionPlace StyleScan::declarationPlace(QByteArrayView statement, qsizetype word) const
{
    const qsizetype colon = statement.indexOf(':');
    if (colon < 0) {
        const bool isAlone = word + statement.size() == m_text.size() || statement.isEmpty();
        return isAlone ? CompletionPlace{.kind = PlaceKind::Property, .start = word} : CompletionPlace{};
    }
    CompletionPlace place{.kind = PlaceKind::PropertyValue,
                          .start = word,
                          .attribute = lowered(statement.first(colon).trimmed()),
                          .quoted = true};
    const char lead = m_text[word - 1];
    if (lead == '!')
        --place.start;
    else if (lead == '#' || lead == '.' || lead == '@' || (word < m_text.size() && isAsciiDigit(m_text[word])))
        return {};
    return place;
}

CompletionPlace StyleScan::selectorPlace(qsizetype word) const
{
    const char lead = word > 0 ? m_text[word - 1] : ' ';
    switch (lead) {
    case '.':
        return {.kind = PlaceKind::Class, .start = word};
    case '#':
        return {.kind = PlaceKind::Id, .start = word};
    case ':':
        return {.kind = PlaceKind::Pseudo, .start = word - (word > 1 && m_text[word - 2] == ':' ? 2 : 1)};
    case '[':
    case '=':
    case '&':
        return {};
    default:
        return {.kind = PlaceKind::Selector, .start = word};
    }
}

} // namespace

CompletionPlace stylePlace(QByteArrayView before, bool isDeclarations)
{
    return StyleScan(before, isDeclarations).place();
}

} // namespace zephira
