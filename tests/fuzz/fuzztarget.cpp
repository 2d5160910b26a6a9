// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/fuzztarget.h"

std::vector<zephira::fuzz::FuzzTarget> &zephira::fuzz::fuzzTargets()
{
    static std::vector<FuzzTarget> targets;
    return targets;
}
