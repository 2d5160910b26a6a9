// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// Whether only the user and the system's administrator can change what the module contains: the file, its folder and
/// the program folder belong to one of them, and neither their group nor others may write there. Links are followed. A
/// file that doesn't exist isn't trusted.
///
/// Folders further up aren't looked at: whoever can exchange the program folder can exchange the program itself.
bool isTrustedModule(const QString &file, const QString &programFolder);

} // namespace zephira
