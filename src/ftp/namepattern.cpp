// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/namepattern.h"

#include "core/wildcard.h"

namespace zephira {

bool matchesNamePattern(QStringView name, QStringView pattern)
{
    return pattern.isEmpty() || pattern == u"*.*" || matchesWildcard(pattern, name);
}

} // namespace zephira
