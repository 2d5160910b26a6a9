// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QRegularExpression>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace zephira {

struct SearchRequest {
    QString pattern;
    bool matchCase = false;
    bool wholeWord = false;
    bool regularExpression = false;

    friend bool operator==(const SearchRequest &, const SearchRequest &) = default;
};

/// A match and the text that replaces it. Offsets are 0-based and count UTF-16 code units.
struct TextMatch {
    qsizetype start = 0;
    qsizetype end = 0;
    QString replacement = {};

    friend bool operator==(const TextMatch &, const TextMatch &) = default;
};

/// Finds a pattern in a text whose lines end in line feeds. In a regular expression "^" and "$" match at the beginning
/// and end of each line, and a match may contain line feeds. Empty matches count; a search never gets stuck at one.
class PatternSearch
{
public:
    /// Fails with Code::Malformed for an invalid regular expression, with the error and its position.
    static Result<PatternSearch> make(const SearchRequest &request);

    /// The first match at or after `from` that ends at or before `limit`.
    std::optional<TextMatch> next(const QString &text, qsizetype from, qsizetype limit,
                                  const QString &replacement) const;
    /// The last match that begins at or after `limit` and ends at or before `from`.
    std::optional<TextMatch> previous(const QString &text, qsizetype from, qsizetype limit,
                                      const QString &replacement) const;
    /// All non-overlapping matches from start to end, from left to right.
    std::vector<TextMatch> all(const QString &text, qsizetype start, qsizetype end, const QString &replacement) const;
    /// Passes the same to `take` one by one until that returns false. Returns false if the expression gave up on this text,
    /// because it needed too many steps.
    bool each(const QString &text, qsizetype start, qsizetype end, const QString &replacement,
              const std::function<bool(TextMatch)> &take) const;

private:
    explicit PatternSearch(QRegularExpression expression, bool groups)
        : m_expression(std::move(expression)), m_groups(groups)
    {}
    TextMatch toMatch(const QRegularExpressionMatch &match, const QString &replacement) const;

    QRegularExpression m_expression;
    bool m_groups;
};

/// Expands a replacement for a regular expression: "\0" to "\9" and "$0" to "$9" are the groups, "\n" and "\r\n" a line
/// feed, "\t" a tab, "\\" and "\$" a backslash and a dollar sign. "\U" and "\L" make what follows capital or small
/// letters, up to "\E" or the end, "\u" and "\l" the next letter alone. Anything else is literal.
QString expandReplacement(const QString &replacement, const QRegularExpressionMatch &match);

} // namespace zephira
