// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>
#include <QStringList>

namespace zephira {

class FileStore;

/// Names of all files in the folder, with their extensions, sorted without regard to case. A folder that isn't there
/// has none.
QStringList customTemplateNames(const QString &folder);

/// Copies the file to its new name and then deletes the old one, in this order and without looking at the names: a file
/// that is renamed to its own name is gone. A copy that fails leaves the old file.
Result<void> renameCustomTemplate(FileStore &files, const QString &folder, const QString &oldName,
                                  const QString &newName);

} // namespace zephira
