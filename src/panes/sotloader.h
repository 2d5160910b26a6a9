// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

class QTreeWidget;

namespace zephira {

class FileStore;

/// Clears a tree and fills it from a .sot file. A file that can't be read leaves the tree as it was. One with a line that
/// is indented too far (Code::Malformed) fills it up to there.
Result<void> LoadSotTree(const FileStore &files, const QString &filePath, QTreeWidget &tree);

} // namespace zephira
