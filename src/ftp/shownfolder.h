// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The folder as a label has room for it: up to 30 characters whole, else three points and the last 30, without the
/// blanks around.
QString shownFolder(const QString &folder);

} // namespace zephira
