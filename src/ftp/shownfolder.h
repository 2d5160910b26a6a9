// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The folder's text for a label: up to 30 characters in full, else three dots and the last 30, with blanks trimmed at
/// both ends.
QString shownFolder(const QString &folder);

} // namespace zephira
