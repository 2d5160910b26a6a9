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

/// Replaces a file so that at every moment, even if the process is killed or the machine stops, either the old or the
/// new content stands under its name: the new one goes into a temporary file in the same folder, is flushed to the disk
/// and takes the name over.
///
/// Mode, owner and group, access list and user attributes are those of the old file. Where the group can't be kept, its
/// members get no more than everybody. Other hard links to the old file keep the old content. A folder that takes no new
/// file makes the write fail even where the file itself could be overwritten, because overwriting in place would risk
/// the old content.
class AtomicWrite
{
public:
    /// When the content has to be on the disk before the name is taken over.
    enum class Flush { Always, WhenReplacing };

    AtomicWrite(FileSystemCalls &calls, QString path, Flush flush = Flush::Always)
        : m_calls(calls), m_path(std::move(path)), m_flush(flush)
    {}
    /// A temporary file that did not take its place is removed.
    ~AtomicWrite();
    AtomicWrite(const AtomicWrite &) = delete;
    AtomicWrite &operator=(const AtomicWrite &) = delete;

    /// Does the whole write, once. `newMode` is for a file that does not exist yet and is subject to the process's mask.
    Result<void> run(std::span<const QByteArrayView> pieces, mode_t newMode);

private:
    // Each step gives 0 or an errno.
    int createTemporary(mode_t newMode);
    int writePieces(std::span<const QByteArrayView> pieces);
    int keepOwner();
    int keepMode();
    int keepAttributes();
    int flush();
    bool flushes() const { return m_replaces || m_flush == Flush::Always; }
    int takePlace();

    Result<void> examineTarget();
    QByteArray folder() const;

    FileSystemCalls &m_calls;
    QString m_path;
    const Flush m_flush;
    QByteArray m_target;
    QByteArray m_temporary;
    struct stat m_old = {};
    bool m_replaces = false;
    bool m_ownerKept = true;
    bool m_groupKept = true;
    bool m_hasAccessList = false;
    int m_file = -1;
    int m_folder = -1;
};

} // namespace zephira
