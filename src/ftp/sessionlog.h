// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QStringList>

namespace zephira {

/// The entries of the session log. The comments list the parts that an entry takes, in order.
enum class LogEntry {
    Banner, ///< site name, server
    ServiceFailed,
    HostSearched,
    ServerFailed,
    Connected,
    Disconnected,
    ListingBegun,
    FolderOpened, ///< search path
    ListingDone,
    DownloadQueued,
    UploadQueued,
    QueuedFile,    ///< number, path
    DownloadBegun, ///< server path, local path
    UploadBegun,   ///< local path, server path
    Done,
    DownloadRefused,
    UploadRefused,
    UploadFailed,
    LocalFileFailed, ///< sentence
    RenameBegun,     ///< old name, new name
    Renamed,         ///< new name
    RenameFailed,
    RenameError,
    FolderRemovalBegun, ///< path
    FolderRemoved,
    FolderRemovalFailed,
    FolderCreationBegun, ///< path
    FolderCreated,
    FolderCreationFailed,
    FolderCreationError,
    DeletionBegun,
    FileDeletion, ///< name
    DeletionFailed,
};

/// The lines of an entry, each ended by CR LF. `now` is formatted in the system's short forms; most lines begin with
/// the time of day.
QString logText(LogEntry entry, const QDateTime &now, const QStringList &parts = {});

/// The time of day in the system's short form.
QString timeOfDay(const QDateTime &time);

} // namespace zephira
