// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

namespace zephira {

/// Creates a folder and its missing parents, accessible only to the user.
Result<void> makePrivateFolder(const QString &path);

/// The program folder, the root of all data files, without a trailing separator.
///
/// It is the executable's folder if that is writable and contains zephira.ini, otherwise the folder "zephira" below
/// `dataHome`. On the first start the latter is filled from the executable's folder if that contains zephira.ini (as
/// when another user unpacked the program), otherwise from `installedData` and from the folders in the executable's, with
/// mode 0700 for folders and 0600 for files. Existing files are never overwritten, and a folder that contains zephira.ini
/// counts as filled; the first start of another `version` only adds files that none before has brought. Fails if the
/// folder can't be created or filled, if it belongs to another user, or if zephira.ini in it can't be read. One that others
/// may look into is restricted.
Result<QString> prepareAppPath(const QString &executableFolder, const QString &installedData, const QString &dataHome,
                               const QString &version);

/// The folder in which the desktop keeps the user's settings and recovery copies, without a trailing separator; it may not
/// exist yet.
QString userFolder();

/// Creates it if it is missing, and sees to it that nobody else can look into it. If that fails, whoever wants to write
/// there reports it.
void makeUserFolder();

/// The fixed folder for temporary files, "zephira/scratch" below `cacheHome`, created with mode 0700 if it is missing.
/// A more permissive mode is restricted. Fails if a link, a file or another user's folder is in its place.
Result<QString> scratchFolder(const QString &cacheHome);
/// The same below the desktop's own cache location.
Result<QString> scratchFolder();

} // namespace zephira
