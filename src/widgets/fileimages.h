// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

// Numbers in the image lists after those of the file types, which have 1 to 10.
constexpr int rootImage = 11;
constexpr int folderImage = 12;
constexpr int openFolderImage = 13;

/// Number of the picture for a file's extension, without regard to case; 10 for an unknown one.
int imageForFile(const QString &name);

} // namespace zephira
