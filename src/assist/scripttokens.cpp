// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/scripttokens.h"

#include <QByteArray>

#include <algorithm>
#include <cstring>

namespace zephira {

namespace {

constexpr bool isWordPart(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '$'
        || static_cast<unsigned char>(c) >= 0x80;
}

/// In bytes; so a line of slashes is still read in one pass.
constexpr qsizetype longestPattern = 1000;

constexpr bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Behind these words a slash begins a pattern.
bool comesBeforeValue(QByteArrayView word)
{
    static constexpr QByteArrayView words[] = {"return", "typeof", "case",  "in", "of",
                                               "delete", "void",   "throw", "new"};
    return std::ranges::find(words, word) != std::end(words);
}

} // namespace

bool ScriptTokens::startsWith(const char *sign) const
{
    return m_text.sliced(m_at).startsWith(QByteArrayView(sign));
}

void ScriptTokens::skipLine()
{
    while (m_at < m_text.size() && m_text[m_at] != '\n' && m_text[m_at] != '\r')
        ++m_at;
}

void ScriptTokens::skipBehind(const char *end)
{
    const qsizetype found = m_text.indexOf(QByteArrayView(end), m_at);
    m_at = found < 0 ? m_text.size() : found + static_cast<qsizetype>(std::strlen(end));
}

bool ScriptTokens::skipComment()
{
    const auto block = [this](const char *start, const char *end) {
        m_at += static_cast<qsizetype>(std::strlen(start));
        skipBehind(end);
        return true;
    };
    const auto line = [this] {
        skipLine();
        return true;
    };
    if (m_syntax.slashComments && startsWith("/*"))
        return block("/*", "*/");
    if (m_syntax.slashComments && startsWith("//"))
        return line();
    // "#[" begins an attribute.
    if (m_syntax.hashComments && at(m_at) == '#' && at(m_at + 1) != '[')
        return line();
    if (m_syntax.dashComments && startsWith("--"))
        return line();
    if (m_syntax.quoteComments && at(m_at) == '\'')
        return line();
    if (m_syntax.braceComments && at(m_at) == '{')
        return block("{", "}");
    if (m_syntax.braceComments && startsWith("(*"))
        return block("(*", "*)");
    return false;
}

void ScriptTokens::skipString(char quote)
{
    for (++m_at; m_at < m_text.size(); ++m_at) {
        const char c = m_text[m_at];
        if (c == '\\' && m_syntax.backslashes)
            ++m_at;
        else if (c == '\n' || c == '\r')
            return;
        else if (c == quote)
            break;
    }
    m_at = std::min(m_at + 1, m_text.size());
}

/// What stands in "${…}" isn't looked at, but for its braces and the templates in it.
void ScriptTokens::skipTemplate()
{
    qsizetype depth = 1; // of templates
    QByteArray open;     // "`" for a template, "{" for a brace in it
    open.append('`');
    for (++m_at; m_at < m_text.size() && depth > 0; ++m_at) {
        const char c = m_text[m_at];
        const bool inText = open.back() == '`';
        if (c == '\\') {
            ++m_at;
        } else if (c == '`' && inText) {
            open.chop(1);
            --depth;
        } else if (c == '`') {
            open.append('`');
            ++depth;
        } else if (inText && c == '$' && at(m_at + 1) == '{') {
            open.append('{');
            ++m_at;
        } else if (!inText && c == '{') {
            open.append('{');
        } else if (!inText && c == '}') {
            open.chop(1);
        }
    }
    m_at = std::min(m_at, m_text.size());
}

/// Returns false, without a move, if no pattern ends in this line.
bool ScriptTokens::skipPattern()
{
    bool inClass = false;
    const qsizetype end = std::min(m_at + longestPattern, m_text.size());
    for (qsizetype at = m_at + 1; at < end; ++at) {
        const char c = m_text[at];
        if (c == '\n' || c == '\r')
            return false;
        if (c == '\\')
            ++at;
        else if (c == '[')
            inClass = true;
        else if (c == ']')
            inClass = false;
        else if (c == '/' && !inClass) {
            m_at = at + 1;
            return true;
        }
    }
    return false;
}

ScriptToken ScriptTokens::next()
{
    while (m_at < m_text.size()) {
        const char c = m_text[m_at];
        if (isBlank(c)) {
            ++m_at;
            continue;
        }
        if (skipComment())
            continue;
        const qsizetype start = m_at;
        if (isWordPart(c)) {
            while (m_at < m_text.size() && isWordPart(m_text[m_at]))
                ++m_at;
            const QByteArrayView word = m_text.sliced(start, m_at - start);
            if (m_syntax.quoteComments && word.compare("rem", Qt::CaseInsensitive) == 0) {
                skipLine();
                continue;
            }
            m_afterValue = !comesBeforeValue(word);
            return {ScriptToken::Kind::Word, word, start};
        }
        const bool isString = c == '"' || (c == '\'' && m_syntax.singleQuotes);
        if (isString || (c == '`' && m_syntax.templates)) {
            if (isString)
                skipString(c);
            else
                skipTemplate();
            m_afterValue = true;
            return {ScriptToken::Kind::Literal, {}, start};
        }
        if (c == '/' && m_syntax.patterns && !m_afterValue && skipPattern()) {
            m_afterValue = true;
            return {ScriptToken::Kind::Literal, {}, start};
        }
        ++m_at;
        m_afterValue = c == ')' || c == ']' || c == '}';
        return {ScriptToken::Kind::Sign, m_text.sliced(start, 1), start};
    }
    return {ScriptToken::Kind::End, {}, m_text.size()};
}

} // namespace zephira
