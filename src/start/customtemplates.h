// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>
#include <QStringList>

namespace zephira {

class FileStore;

/// Names of all files in the folder, with their extensions, sorted without regard to case. Empty if the folder doesn't
/// exist.
QStringList customTemplateNames(const QString &folder);

/// Copies the file to its new name and then deletes the old one, without comparing the names: a file that is renamed to
/// its own name is gone. If copying fails, the old file is kept.
Result<void> renameCustomTemplate(FileStore &files, const QString &folder, const QString &oldName,
                                  const QString &newName);

} // namespace zephira
