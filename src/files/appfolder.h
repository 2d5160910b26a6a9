// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

namespace zephira {

/// The program folder, the root of all data files, without a separator at its end.
///
/// It is the folder of the executable where that is writable and holds zephira.ini. Otherwise it is the folder "zephira"
/// below `dataHome`; on the first start that is filled from the folder of the executable where it holds zephira.ini, as
/// one that another user unpacked does, and else from `installedData`, with mode 0700 for folders and 0600 for files. A
/// file that is there already is never overwritten, and a folder that holds zephira.ini counts as filled. Fails if the
/// folder can't be made or filled, or zephira.ini there can't be read.
Result<QString> prepareAppPath(const QString &executableFolder, const QString &installedData, const QString &dataHome);

/// The fixed folder for temporary files, "zephira/scratch" below `cacheHome`, made with mode 0700 if it isn't there.
/// A wider mode is narrowed. Refused if the place is taken by a link, a file, or a folder of another user.
Result<QString> scratchFolder(const QString &cacheHome);
/// The same below the desktop's own cache location.
Result<QString> scratchFolder();

} // namespace zephira
