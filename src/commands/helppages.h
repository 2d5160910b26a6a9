// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

namespace zephira {

/// Opens the guide that ships with the program. This function and the next report a failure to the user.
void openHelp(const AppContext &context);
/// Opens the site of the program's makers.
void openWebsite(const AppContext &context);

} // namespace zephira
