// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

// Paths that the user or a document may have written: "\" and "/" divide folders alike.

/// What follows the last separator.
QString fileTitleOf(const QString &path);
/// The path up to and with its last separator.
QString folderOf(const QString &path);
/// The folder with a separator at its end; the platform's where it had none.
QString withSeparator(const QString &folder);

// Paths as this machine and a server have them, whose only separator is "/": a name may hold any other character.

/// The path with "/" at its end.
QString withSlash(const QString &folder);
/// The path before the last separator; that of the root where nothing stands before it.
QString parentFolder(const QString &folder);
/// What follows the last separator.
QString lastName(const QString &path);

} // namespace zephira
