// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace zephira {

/// Whether a name matches a wildcard: "*" stands for any characters, "?" for a single one, everything else for itself,
/// case-sensitive. The time grows at most with the product of the lengths.
bool matchesWildcard(QStringView wildcard, QStringView name);

} // namespace zephira
