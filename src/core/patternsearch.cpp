// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/patternsearch.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace zephira {

using namespace Qt::StringLiterals;

namespace {

/// How far a backward search looks back at first, in UTF-16 code units. It looks further if it finds nothing.
constexpr qsizetype firstWindow = 16 * 1024;

/// The searched text has line feeds as line ends, so a carriage return in a pattern, with a line feed after it if there
/// is one, is replaced by a line feed.
QString withLineFeeds(const QString &pattern)
{
    QString plain;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        if (pattern[i] != u'\\' || i + 1 == pattern.size()) {
            plain += pattern[i];
            continue;
        }
        const QChar code = pattern[++i];
        if (code != u'r') {
            plain += u'\\';
            plain += code;
            continue;
        }
        const bool mayRepeat = i + 1 < pattern.size() && QStringView(u"?*+").contains(pattern[i + 1]);
        if (QStringView(pattern).sliced(i + 1 + mayRepeat).startsWith(u"\\n"))
            i += mayRepeat;
        else
            plain += u"\\n"_s;
    }
    return plain;
}

/// The expression that finds the text itself. Qt writes a NUL as "\0", which would take digits that follow.
QString escaped(const QString &text)
{
    QStringList parts = text.split(QChar(u'\0'));
    for (QString &part : parts)
        part = QRegularExpression::escape(part);
    return parts.join(u"\\x{0}"_s);
}

} // namespace

Result<PatternSearch> PatternSearch::make(const SearchRequest &request)
{
    QString pattern = request.regularExpression ? withLineFeeds(request.pattern) : escaped(request.pattern);
    if (request.wholeWord)
        pattern = u"(?<!\\w)(?:"_s + pattern + u")(?!\\w)"_s;
    QRegularExpression::PatternOptions options =
        QRegularExpression::MultilineOption | QRegularExpression::UseUnicodePropertiesOption;
    if (!request.matchCase)
        options |= QRegularExpression::CaseInsensitiveOption;
    QRegularExpression expression(pattern, options);
    // The marks added for whole words would shift the position of an error, so the expression is also checked without
    // them.
    const QRegularExpression asTyped(request.regularExpression ? request.pattern : QString(), options);
    const QRegularExpression &checked = asTyped.isValid() ? expression : asTyped;
    if (!checked.isValid()) {
        return Error{Error::Code::Malformed,
                     u"The regular expression is invalid at character %1: %2."_s.arg(checked.patternErrorOffset() + 1)
                         .arg(checked.errorString())};
    }
    return PatternSearch(expression, request.regularExpression);
}

TextMatch PatternSearch::toMatch(const QRegularExpressionMatch &match, const QString &replacement) const
{
    return {match.capturedStart(), match.capturedEnd(), m_groups ? expandReplacement(replacement, match) : replacement};
}

std::optional<TextMatch> PatternSearch::next(const QString &text, qsizetype from, qsizetype limit,
                                             const QString &replacement) const
{
    const QRegularExpressionMatch match = m_expression.match(QStringView(text).first(limit), from);
    if (!match.hasMatch())
        return std::nullopt;
    return toMatch(match, replacement);
}

std::optional<TextMatch> PatternSearch::previous(const QString &text, qsizetype from, qsizetype limit,
                                                 const QString &replacement) const
{
    const QStringView searched = QStringView(text).first(from);
    for (qsizetype window = firstWindow;; window *= 4) {
        // Windows start at a line start, so that no match is cut within its line.
        qsizetype start = std::max(limit, from - window);
        if (start > limit)
            start = std::max(limit, text.lastIndexOf(u'\n', start - 1) + 1);
        std::optional<TextMatch> last;
        auto matches = m_expression.globalMatch(searched, start);
        while (matches.hasNext())
            last = toMatch(matches.next(), replacement);
        if (last || start == limit)
            return last;
    }
}

std::vector<TextMatch> PatternSearch::all(const QString &text, qsizetype start, qsizetype end,
                                          const QString &replacement) const
{
    std::vector<TextMatch> found;
    auto matches = m_expression.globalMatch(QStringView(text).first(end), start);
    while (matches.hasNext())
        found.push_back(toMatch(matches.next(), replacement));
    return found;
}

bool PatternSearch::each(const QString &text, qsizetype start, qsizetype end, const QString &replacement,
                         const std::function<bool(TextMatch)> &take) const
{
    auto matches = m_expression.globalMatch(QStringView(text).first(end), start);
    while (matches.hasNext()) {
        if (!take(toMatch(matches.next(), replacement)))
            return true;
    }
    return matches.isValid();
}

namespace {

/// Collects a replacement, with the changes of case that it asks for.
class CasedText
{
public:
    void add(const QString &part)
    {
        if (part.isEmpty())
            return;
        const qsizetype first = m_next == Case::AsItIs ? 0 : part.size() > 1 && part[0].isHighSurrogate() ? 2 : 1;
        m_text += changed(part.first(first), std::exchange(m_next, Case::AsItIs));
        m_text += changed(part.sliced(first), m_case);
    }

    /// Takes the letter of an escape; false if it says nothing about case.
    bool takeCode(QChar code)
    {
        switch (code.unicode()) {
        case u'U':
            m_case = Case::Capital;
            return true;
        case u'L':
            m_case = Case::Small;
            return true;
        case u'E':
            m_case = Case::AsItIs;
            return true;
        case u'u':
            m_next = Case::Capital;
            return true;
        case u'l':
            m_next = Case::Small;
            return true;
        default:
            return false;
        }
    }

    const QString &text() const { return m_text; }

private:
    enum class Case { AsItIs, Capital, Small };

    static QString changed(const QString &text, Case to)
    {
        return to == Case::Capital ? text.toUpper() : to == Case::Small ? text.toLower() : text;
    }

    QString m_text;
    Case m_case = Case::AsItIs;
    Case m_next = Case::AsItIs;
};

} // namespace

QString expandReplacement(const QString &replacement, const QRegularExpressionMatch &match)
{
    if (!replacement.contains(u'\\') && !replacement.contains(u'$'))
        return replacement;
    CasedText expanded;
    for (qsizetype i = 0; i < replacement.size(); ++i) {
        const QChar c = replacement[i];
        const QChar code = i + 1 < replacement.size() ? replacement[i + 1] : QChar();
        const bool digit = code >= u'0' && code <= u'9';
        if (code.isNull() || (c != u'\\' && (c != u'$' || !digit))) {
            // Both halves of a surrogate pair are one letter.
            const bool isPair = c.isHighSurrogate() && code.isLowSurrogate();
            expanded.add(replacement.sliced(i, isPair ? 2 : 1));
            i += isPair ? 1 : 0;
            continue;
        }
        ++i;
        if (digit)
            expanded.add(match.captured(code.unicode() - u'0'));
        else if (code == u'n')
            expanded.add(u"\n"_s);
        else if (code == u'r')
            expanded.add(QStringView(replacement).sliced(i + 1).startsWith(u"\\n") ? QString() : u"\n"_s);
        else if (code == u'$')
            expanded.add(u"$"_s);
        else if (code == u't')
            expanded.add(u"\t"_s);
        else if (code == u'\\')
            expanded.add(u"\\"_s);
        else if (!expanded.takeCode(code))
            expanded.add(QString(c) + code);
    }
    return expanded.text();
}

} // namespace zephira
