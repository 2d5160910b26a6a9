// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

// Arithmetic on paths of this machine, whose only separator is "/": a name may hold any other character.

/// The path with "/" at its end.
QString withSlash(const QString &folder);

/// The path before the last separator; that of the root where nothing stands before it.
QString parentFolder(const QString &folder);

/// What stands behind the last separator.
QString folderName(const QString &folder);

/// The folder as a label has room for it: up to 30 characters whole, else three points and the last 30, without the
/// blanks around.
QString shownFolder(const QString &folder);

} // namespace zephira
