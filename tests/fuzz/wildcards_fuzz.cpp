// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary names and wildcards: the matches are those of the plainest rule.
#include "core/wildcard.h"
#include "ftp/namepattern.h"
#include "fuzz/fuzztarget.h"
#include "widgets/filenames.h"

#include <QList>

#include <vector>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

bool plainMatches(const QList<uint> &pattern, const QList<uint> &name)
{
    std::vector<bool> row(static_cast<std::size_t>(name.size()) + 1);
    row[0] = true;
    for (const uint c : pattern) {
        std::vector<bool> next(row.size());
        next[0] = c == '*' && row[0];
        for (std::size_t i = 1; i < row.size(); ++i)
            next[i] =
                c == '*' ? row[i] || next[i - 1] : row[i - 1] && (c == '?' || c == name[static_cast<qsizetype>(i) - 1]);
        row = next;
    }
    return row.back();
}

} // namespace

FUZZ_TARGET(wildcards)
{
    // The plain rule takes the product of the lengths.
    if (size > 300)
        return 0;
    QString name = zephira::fuzz::inputText(data, size);
    const QString pattern = zephira::fuzz::takenLine(name);
    const bool isPlainMatch = plainMatches(pattern.toUcs4(), name.toUcs4());
    check(matchesWildcard(pattern, name) == isPlainMatch);
    check(matchesNamePattern(name, pattern) == (pattern.isEmpty() || pattern == u"*.*" || isPlainMatch));
    if (name.isEmpty())
        return 0;
    const bool isMatch = FilePatterns(pattern).match(name);
    check(pattern != u"*.*" || isMatch != name.startsWith(u'.'));
    check(isMatch == FilePatterns(pattern + u';' + pattern).match(name));
    check(name.startsWith(u'.') || FilePatterns(pattern + u";*"_s).match(name));
    return 0;
}
