// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "files/filesystemcalls.h"

#include <QByteArray>
#include <QString>

#include <span>

namespace zephira {

/// The file that a path leads to when the symbolic links at its end are followed, whether it exists or not. Both paths
/// are in the system's encoding. Fails with the errno of the call that failed, ELOOP for links that go round.
Result<QByteArray> linkTarget(FileSystemCalls &calls, const QString &path);

/// What is about to be written.
struct WriteTarget {
    /// In the system's encoding, behind all symbolic links.
    QByteArray path;
    bool exists = false;
    /// Meaningless where nothing exists.
    struct stat status = {};

    /// With the separator at its end; "./" for a bare name.
    QByteArray folder() const;
};

/// Finds what a path leads to. Fails where that may not be written to: a folder, a pipe or device, a protected file.
Result<WriteTarget> writeTarget(FileSystemCalls &calls, const QString &path);

/// Writes all pieces to the file, from where it stands. Gives 0 or an errno.
int writePieces(FileSystemCalls &calls, int file, std::span<const QByteArrayView> pieces);

} // namespace zephira
