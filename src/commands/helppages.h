// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

namespace zephira {

/// Opens the contents of the handbook that ships with the program. This function and the next two report a failure to
/// the user.
void openHelp(const AppContext &context);
/// Opens a page of the handbook, given by its file's name, or the contents if there is no such file.
void openHelpPage(const AppContext &context, const QString &file);
/// Opens the site of the program's makers.
void openWebsite(const AppContext &context);

} // namespace zephira
