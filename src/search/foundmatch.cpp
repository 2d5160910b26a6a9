// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/foundmatch.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The most characters that are shown before a match, and in all.
constexpr qsizetype shownBefore = 60;
constexpr qsizetype shownInAll = 240;

/// A part of a line as it is shown: on one row, and without characters that show nothing or something else.
QString shown(QStringView part)
{
    QString text = part.toString();
    for (QChar &c : text) {
        if (c == u'\n')
            c = u'\u21B5';
        else if (c.category() == QChar::Other_Control)
            c = u' ';
    }
    return text;
}

/// Fills in what is shown of the line between two offsets.
void describe(FoundMatch &found, QStringView line, qsizetype matchStart, qsizetype matchEnd)
{
    qsizetype begin = 0;
    while (begin < matchStart && line[begin].isSpace())
        ++begin;
    const bool cutBefore = matchStart - begin > shownBefore;
    if (cutBefore) {
        begin = matchStart - shownBefore;
        if (line[begin].isLowSurrogate())
            ++begin;
    }
    qsizetype end = line.size();
    while (end > matchEnd && line[end - 1].isSpace())
        --end;
    const bool cutBehind = end - begin > shownInAll;
    if (cutBehind) {
        end = begin + shownInAll;
        if (line[end - 1].isHighSurrogate())
            --end;
    }
    const QString dots = u"\u2026"_s;
    found.text =
        (cutBefore ? dots : QString()) + shown(line.sliced(begin, end - begin)) + (cutBehind ? dots : QString());
    found.start = static_cast<int>(matchStart - begin + (cutBefore ? 1 : 0));
    found.length = static_cast<int>(std::clamp<qsizetype>(std::min(matchEnd, end) - matchStart, 0, end - begin));
}

/// Follows the matches of a text from line to line.
class Places
{
public:
    explicit Places(const QString &text) : m_text(text) {}

    /// Goes to the line of an offset, which isn't before the previous one.
    void goTo(qsizetype offset)
    {
        for (;;) {
            if (m_end < 0) {
                m_end = m_text.indexOf(u'\n', m_start);
                if (m_end < 0)
                    m_end = m_text.size();
            }
            if (offset <= m_end)
                return;
            m_start = m_end + 1;
            m_end = -1;
            ++m_line;
        }
    }
    int line() const { return m_line; }
    int column(qsizetype offset) const { return static_cast<int>(offset - m_start); }
    QStringView lineText() const { return QStringView(m_text).sliced(m_start, m_end - m_start); }

private:
    const QString &m_text;
    qsizetype m_start = 0;
    qsizetype m_end = -1;
    int m_line = 0;
};

} // namespace

FoundMatches findMatches(const PatternSearch &search, const QString &text, const QString &replacement, qsizetype atMost,
                         const std::function<bool()> &goesOn)
{
    FoundMatches result;
    Places places(text);
    result.gaveUp = !search.each(text, 0, text.size(), replacement, [&](TextMatch match) {
        if (static_cast<qsizetype>(result.matches.size()) >= atMost) {
            result.isCut = true;
            return false;
        }
        FoundMatch found;
        places.goTo(match.start);
        found.line = places.line();
        found.column = places.column(match.start);
        const QStringView line = places.lineText();
        describe(found, line, found.column, std::min<qsizetype>(found.column + match.end - match.start, line.size()));
        places.goTo(match.end);
        found.endLine = places.line();
        found.endColumn = places.column(match.end);
        found.replacement = std::move(match.replacement);
        result.matches.push_back(std::move(found));
        return goesOn();
    });
    return result;
}

QString withLineFeeds(const QString &text)
{
    if (!text.contains(u'\r'))
        return text;
    QString plain;
    plain.reserve(text.size());
    qsizetype begin = 0;
    for (qsizetype at = text.indexOf(u'\r'); at >= 0; at = text.indexOf(u'\r', begin)) {
        plain += QStringView(text).sliced(begin, at - begin);
        plain += u'\n';
        begin = at + 1;
        if (begin < text.size() && text[begin] == u'\n')
            ++begin;
    }
    plain += QStringView(text).sliced(begin);
    return plain;
}

ReplacedLine replacedLine(const FoundMatch &match)
{
    const QString replacement = shown(match.replacement.left(shownInAll));
    ReplacedLine line;
    line.start = match.start;
    line.length = static_cast<int>(replacement.size());
    line.text = match.text.left(match.start) + replacement + match.text.mid(match.start + match.length);
    return line;
}

} // namespace zephira
