// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "files/filesystemcalls.h"

#include <QByteArray>
#include <QString>

#include <span>

namespace zephira {

/// The file that a path refers to after following the symbolic links at its end, whether it exists or not. The result
/// is in the system's encoding. Fails with the error of the failed call, ELOOP for a loop of links.
Result<QByteArray> linkTarget(FileSystemCalls &calls, const QString &path);

/// The file about to be written.
struct WriteTarget {
    /// In the system's encoding, with symbolic links resolved.
    QByteArray path;
    bool exists = false;
    /// Meaningless if the file doesn't exist.
    struct stat status = {};

    /// With a trailing separator; "./" for a bare name.
    QByteArray folder() const;
};

/// Resolves a path to the file to write. Fails if that isn't writable: a folder, a pipe or device, or a protected file.
Result<WriteTarget> writeTarget(FileSystemCalls &calls, const QString &path);

/// Writes all pieces at the file's current position. Returns 0 or an errno.
int writePieces(FileSystemCalls &calls, int file, std::span<const QByteArrayView> pieces);

} // namespace zephira
