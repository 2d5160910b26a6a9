// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// Whether a file is one of those that the program can't do without or has brought along, in its folder `appPath`. What
/// users put there themselves, such as saved logs and profiles, isn't.
bool isProgramData(const QString &appPath, const QString &file);

} // namespace zephira
