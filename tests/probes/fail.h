// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdio>

namespace zephira {

/// Tells on the standard error stream what went wrong; returns the exit status of a probe that failed.
inline int fail(const QString &sentence)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(sentence));
    return 1;
}

} // namespace zephira
