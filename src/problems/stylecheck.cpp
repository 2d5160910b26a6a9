// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/stylecheck.h"

#include "completion/completiontext.h"
#include "problems/markupreader.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// At-rules whose blocks contain rules, or declarations as rules do. All others have words of their own.
constexpr std::array<QByteArrayView, 12> groups{"media",     "supports",       "layer",    "container",
                                                "scope",     "starting-style", "document", "-moz-document",
                                                "keyframes", "page",           "nest",     "-webkit-keyframes"};

class StyleReader
{
public:
    StyleReader(const TextPart &part, const KnownNames &names, ProblemSink &sink)
        : m_text(part.text), m_start(part.start), m_names(names), m_sink(sink), m_hasServerCode(isDynamic(part.text))
    {}

    void readSheet(const TidyWatch &watch);
    void readDeclarations();

private:
    struct Block {
        qsizetype at = 0;
        /// Whether declarations in it are those of rules.
        bool isJudged = true;
    };

    void readStatement();
    void skipString();
    qsizetype behindComment(qsizetype at) const;
    void judge(qsizetype from, qsizetype to);
    bool isJudgedBlock(QByteArrayView prelude) const;

    const QByteArrayView m_text;
    const qsizetype m_start;
    const KnownNames &m_names;
    ProblemSink &m_sink;
    const bool m_hasServerCode;
    /// No round bracket closes from here on.
    bool m_hasNoBracket = false;
    qsizetype m_at = 0;
    std::vector<Block> m_blocks;
    /// A brace too many is told once.
    bool m_isUneven = false;
};

qsizetype StyleReader::behindComment(qsizetype at) const
{
    const qsizetype end = m_text.indexOf("*/", at + 2);
    return end < 0 ? m_text.size() : end + 2;
}

/// A string ends with its line unless the line end is escaped.
void StyleReader::skipString()
{
    const char quote = m_text[m_at++];
    while (m_at < m_text.size() && m_text[m_at] != quote && m_text[m_at] != '\n')
        m_at += m_text[m_at] == '\\' ? 2 : 1;
    m_at = std::min(m_at + 1, m_text.size());
}

bool StyleReader::isJudgedBlock(QByteArrayView prelude) const
{
    const bool isInJudged = m_blocks.empty() || m_blocks.back().isJudged;
    if (!prelude.startsWith('@'))
        return isInJudged;
    qsizetype end = 1;
    while (end < prelude.size() && isNameByte(prelude[end]))
        ++end;
    const QByteArray name = lowered(prelude.sliced(1, end - 1));
    return isInJudged && std::ranges::find(groups, QByteArrayView(name)) != groups.end();
}

/// Judges what stands before a semicolon or the end of a block.
void StyleReader::judge(qsizetype from, qsizetype to)
{
    const auto skipBlanks = [&](qsizetype at) {
        while (at < to) {
            if (isBlankOrBreak(m_text[at]))
                ++at;
            else if (m_text.sliced(at).startsWith("/*"))
                at = behindComment(at);
            else
                break;
        }
        return at;
    };
    from = skipBlanks(from);
    qsizetype end = from;
    while (end < to && (isAsciiLetter(m_text[end]) || m_text[end] == '-' || isAsciiDigit(m_text[end])))
        ++end;
    if (end >= to || end == from || !isAsciiLetter(m_text[from]))
        return;
    const qsizetype colon = skipBlanks(end);
    const QByteArrayView written = m_text.sliced(from, end - from);
    // Word processors have properties of their own.
    const bool isKnown = m_names.isProperty(lowered(written)) || standsAt(written, 0, "mso-");
    if (colon < to && m_text[colon] == ':') {
        if (!isKnown)
            m_sink.warning(m_start + from, m_start + end,
                           QCoreApplication::translate("Problems", "The property %1 isn't known.")
                               .arg(QString::fromUtf8(written)));
    } else if (isKnown && colon < to && colon > end && !isDynamic(m_text.sliced(from, to - from))) {
        m_sink.error(m_start + from, m_start + end,
                     QCoreApplication::translate("Problems", "There is no colon behind the property %1.")
                         .arg(QString::fromUtf8(written)));
    }
}

/// Reads up to the next semicolon or brace outside of strings, comments and brackets.
void StyleReader::readStatement()
{
    const qsizetype from = m_at;
    int depth = 0;
    while (m_at < m_text.size()) {
        const char c = m_text[m_at];
        if (c == '/' && m_text.sliced(m_at).startsWith("/*")) {
            m_at = behindComment(m_at);
            continue;
        }
        if (c == '"' || c == '\'') {
            skipString();
            continue;
        }
        if (c == '\\') {
            m_at = std::min(m_at + 2, m_text.size());
            continue;
        }
        if (c == '(' && !m_hasNoBracket && m_at >= 3 && standsAt(m_text, m_at - 3, "url")) {
            // An address without quotation marks may contain anything but a bracket.
            const qsizetype end = m_text.indexOf(')', m_at);
            m_hasNoBracket = end < 0;
            const qsizetype first = m_at + 1;
            const bool isQuoted = first < m_text.size()
                && (m_text[first] == '"' || m_text[first] == '\'' || isBlankOrBreak(m_text[first]));
            if (end >= 0 && !isQuoted) {
                m_at = end + 1;
                continue;
            }
        }
        depth += c == '(' || c == '[' ? 1 : c == ')' || c == ']' ? -1 : 0;
        depth = std::max(depth, 0);
        const bool isJudged = !m_blocks.empty() && m_blocks.back().isJudged;
        // A bracket that isn't closed doesn't go beyond its block.
        if (c == '}' || (c == ';' && depth == 0)) {
            if (isJudged)
                judge(from, m_at);
            if (c == '}' && !m_blocks.empty())
                m_blocks.pop_back();
            else if (c == '}' && !m_isUneven && !m_hasServerCode) {
                m_isUneven = true;
                m_sink.error(m_start + m_at, m_start + m_at + 1,
                             QCoreApplication::translate("Problems", "This } closes nothing."));
            }
            ++m_at;
            return;
        }
        if (c == '{') {
            // A value in braces belongs to a variable.
            const QByteArrayView prelude = m_text.sliced(from, m_at - from).trimmed();
            m_blocks.push_back({m_at, !prelude.startsWith("--") && isJudgedBlock(prelude)});
            ++m_at;
            return;
        }
        ++m_at;
    }
}

void StyleReader::readSheet(const TidyWatch &watch)
{
    constexpr int step = 256;
    for (int count = 0; m_at < m_text.size() && !m_sink.isFull(); ++count) {
        if (count % step == 0 && watch.isCancelled())
            return;
        readStatement();
    }
    if (!m_blocks.empty() && m_at >= m_text.size() && !m_hasServerCode) {
        const qsizetype at = m_start + m_blocks.back().at;
        m_sink.error(at, at + 1, QCoreApplication::translate("Problems", "This { isn't closed."));
    }
}

void StyleReader::readDeclarations()
{
    m_blocks.push_back({});
    while (m_at < m_text.size() && !m_blocks.empty()) {
        const qsizetype from = m_at;
        readStatement();
        const bool isLast = m_at >= m_text.size() && !m_text.endsWith(';') && !m_text.endsWith('}');
        if (isLast)
            judge(from, m_at);
    }
}

} // namespace

void checkStyleSheet(const TextPart &sheet, const KnownNames &names, ProblemSink &sink, const TidyWatch &watch)
{
    if (names.hasProperties())
        StyleReader(sheet, names, sink).readSheet(watch);
}

void checkDeclarations(const TextPart &style, const KnownNames &names, ProblemSink &sink)
{
    if (names.hasProperties())
        StyleReader(style, names, sink).readDeclarations();
}

} // namespace zephira
