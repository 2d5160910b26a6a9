// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// True if a file in the program's folder `appPath` is needed by the program or was installed with it. Files that users
/// added, such as saved logs and profiles, don't count.
bool isProgramData(const QString &appPath, const QString &file);

} // namespace zephira
