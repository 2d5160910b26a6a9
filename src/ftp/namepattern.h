// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace zephira {

/// True if a name on the server matches a pattern, in which `*` stands for any characters and `?` for one. Matching is
/// case-sensitive, as on servers. `*.*`, which people type for everything, also matches names without a dot, and so
/// does the empty pattern.
bool matchesNamePattern(QStringView name, QStringView pattern);

} // namespace zephira
