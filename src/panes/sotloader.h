// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

class QTreeWidget;

namespace zephira {

class FileStore;

/// Clears a tree and fills it from a .sot file. If the file can't be read, the tree stays unchanged. If a line is
/// indented too far (Code::Malformed), the tree is filled up to that line.
Result<void> LoadSotTree(const FileStore &files, const QString &filePath, QTreeWidget &tree);

} // namespace zephira
