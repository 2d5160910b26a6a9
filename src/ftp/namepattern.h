// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace zephira {

/// True if a name on the server matches a pattern, in which `*` stands for any characters and `?` for one. Upper and
/// lower case are told apart, as servers do. `*.*`, which people type for everything, matches names without a point too,
/// and so does the empty pattern.
bool matchesNamePattern(QStringView name, QStringView pattern);

} // namespace zephira
