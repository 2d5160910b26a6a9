// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/namepattern.h"

namespace zephira {

namespace {

/// Backtracks only to the last `*`, so the time grows at most with the product of the lengths.
bool matches(QStringView name, QStringView pattern)
{
    qsizetype at = 0;
    qsizetype inPattern = 0;
    qsizetype star = -1;
    qsizetype starAt = 0;
    while (at < name.size()) {
        if (inPattern < pattern.size() && pattern[inPattern] == u'*') {
            star = inPattern++;
            starAt = at;
        } else if (inPattern < pattern.size() && (pattern[inPattern] == u'?' || pattern[inPattern] == name[at])) {
            ++inPattern;
            ++at;
        } else if (star >= 0) {
            inPattern = star + 1;
            at = ++starAt;
        } else {
            return false;
        }
    }
    while (inPattern < pattern.size() && pattern[inPattern] == u'*')
        ++inPattern;
    return inPattern == pattern.size();
}

} // namespace

bool matchesNamePattern(QStringView name, QStringView pattern)
{
    return pattern.isEmpty() || pattern == u"*.*" || matches(name, pattern);
}

} // namespace zephira
