// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/abbreviationcommands.h"

#include "assist/abbreviations/abbreviations.h"
#include "assist/texthelpers.h"

namespace zephira {

void expandAbbreviation(TextHelpers &helpers)
{
    helpers.abbreviations().expand();
}

void wrapWithAbbreviation(TextHelpers &helpers)
{
    helpers.abbreviations().askForWrapping();
}

} // namespace zephira
