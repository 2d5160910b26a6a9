// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/failedstart.h"

#include "desktop/briefmessage.h"

#include <cstdio>
#include <cstdlib>

namespace zephira {

namespace {

constexpr int secondsShown = 5;

} // namespace

int tellFailedStart(const QString &sentence)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(sentence));
    showBriefMessage(sentence, secondsShown);
    return EXIT_FAILURE;
}

} // namespace zephira
