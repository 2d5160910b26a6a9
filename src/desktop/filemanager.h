// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

enum class FileManagerView { ItemProperties, Folder };

/// Asks the desktop's file manager, over the session's message bus, to show a file's properties or a folder, named by its
/// full path. Returns false if there is no bus, no file manager, or no answer within a few seconds.
bool showInFileManager(FileManagerView view, const QString &path);

} // namespace zephira
