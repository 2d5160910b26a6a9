// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// Branch of the per-user store that is named after the executable: window placement and switches.
inline QString executableBranch()
{
    return QStringLiteral("zephira");
}
/// Branch that every copy of the program shares, whatever its executable is called.
inline QString sharedBranch()
{
    return QStringLiteral("Zephira");
}

/// Section and key, below executableBranch(), of the switch for tips at the start: "1" or "0", and "1" where it was
/// never set.
inline QString optionsSection()
{
    return QStringLiteral("Options");
}
inline QString showTipsKey()
{
    return QStringLiteral("Show Tips at Startup");
}
inline QString showTipsDefault()
{
    return QStringLiteral("1");
}

} // namespace zephira
