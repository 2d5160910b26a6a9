// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary names and wildcards: the matches are those of the plainest rule.
#include "core/wildcard.h"
#include "ftp/namepattern.h"
#include "fuzz/fuzztarget.h"
#include "widgets/filenames.h"

#include <vector>

using namespace zephira;

namespace {

bool plainMatches(const QString &pattern, const QString &name)
{
    std::vector<bool> row(static_cast<std::size_t>(name.size()) + 1);
    row[0] = true;
    for (const QChar c : pattern) {
        std::vector<bool> next(row.size());
        next[0] = c == u'*' && row[0];
        for (std::size_t i = 1; i < row.size(); ++i)
            next[i] = c == u'*' ? row[i] || next[i - 1]
                                : row[i - 1] && (c == u'?' || c == name[static_cast<qsizetype>(i) - 1]);
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
    check(matchesWildcard(pattern, name) == plainMatches(pattern, name));
    check(matchesNamePattern(name, pattern) == (pattern.isEmpty() || pattern == u"*.*" || plainMatches(pattern, name)));
    if (name.isEmpty())
        return 0;
    const bool isMatch = FilePatterns(pattern).match(name);
    check(pattern != u"*.*" || isMatch != name.startsWith(u'.'));
    check(!isMatch || FilePatterns(pattern + u";x").match(name));
    check(name.startsWith(u'.') || FilePatterns(pattern + u";*").match(name));
    return 0;
}
