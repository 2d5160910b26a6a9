// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/wildcard.h"

#include "core/textparts.h"

namespace zephira {

/// On a mismatch the last star takes one more character; earlier stars never need to be tried again.
bool matchesWildcard(QStringView wildcard, QStringView name)
{
    qsizetype w = 0;
    qsizetype n = 0;
    qsizetype behindStar = -1;
    qsizetype starEnd = 0;
    while (n < name.size()) {
        if (w < wildcard.size() && wildcard[w] == u'*') {
            behindStar = ++w;
            starEnd = n;
        } else if (w < wildcard.size() && wildcard[w] == u'?') {
            ++w;
            n = behindCharacter(name, n);
        } else if (w < wildcard.size() && wildcard[w] == name[n]) {
            ++w;
            ++n;
        } else if (behindStar >= 0) {
            w = behindStar;
            starEnd = behindCharacter(name, starEnd);
            n = starEnd;
        } else {
            return false;
        }
    }
    return wildcard.mid(w).count(u'*') == wildcard.size() - w;
}

} // namespace zephira
