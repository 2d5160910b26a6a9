// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

namespace zephira {

class FileStore;
class RecoveryCopies;

/// Copies the file to its new name and then deletes the old one, without comparing the names: a file that is renamed to
/// its own name is gone. What exists under the new name is kept as a recovery copy first. If anything fails, or if
/// checkTemplateName() refuses the new name, the old file stays.
Result<void> renameCustomTemplate(FileStore &files, RecoveryCopies &recovery, const QString &folder,
                                  const QString &oldName, const QString &newName);

} // namespace zephira
