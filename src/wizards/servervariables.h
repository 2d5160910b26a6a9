// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace zephira {

/// The variables that a page's server offers to its scripts, in the order of the list. Three names end in a tab, which
/// is inserted with them.
QStringList serverVariables();

} // namespace zephira
