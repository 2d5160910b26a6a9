// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "files/filesystemcalls.h"
#include "files/writetarget.h"

#include <QByteArray>
#include <QString>

#include <span>

namespace zephira {

/// Replaces a file so that at every moment, even if the process is killed or the machine stops, either the old or the
/// new content is found under its name: the new content goes into a temporary file in the same folder, is flushed to
/// the disk, and is then renamed over the old file.
///
/// Mode, owner and group, access list and user attributes are those of the old file. If the group can't be kept, its
/// permissions are reduced to those of others. Other hard links to the old file keep the old content. In a folder that
/// allows no new files the write fails even if the file itself could be overwritten; see writeInPlace().
///
/// Temporary files left in the folder by killed processes are removed after a flushed write.
class AtomicWrite
{
public:
    /// When the content is flushed to the disk before the name is taken over.
    enum class Flush { Always, WhenReplacing };

    AtomicWrite(FileSystemCalls &calls, QString path, Flush flush = Flush::Always)
        : m_calls(calls), m_path(std::move(path)), m_flush(flush)
    {}
    /// Removes the temporary file if it was not renamed.
    ~AtomicWrite();
    AtomicWrite(const AtomicWrite &) = delete;
    AtomicWrite &operator=(const AtomicWrite &) = delete;

    /// Performs the whole write; may be called once. `newMode` applies to a file that does not exist yet and is subject
    /// to the process's umask.
    Result<void> run(std::span<const QByteArrayView> pieces, mode_t newMode);
    /// The same in steps, for content that arrives piece by piece. After a failure no further step may be called.
    Result<void> begin(mode_t newMode);
    Result<void> append(std::span<const QByteArrayView> pieces);
    Result<void> finish();

private:
    // Each step returns 0 or an errno.
    int createTemporary(mode_t newMode);
    int keepOwner();
    int keepMode();
    int keepAttributes();
    int flush();
    bool flushes() const { return m_target.exists || m_flush == Flush::Always; }
    int takePlace();

    FileSystemCalls &m_calls;
    QString m_path;
    const Flush m_flush;
    WriteTarget m_target;
    QByteArray m_temporary;
    bool m_ownerKept = true;
    bool m_groupKept = true;
    bool m_hasAccessList = false;
    int m_file = -1;
    /// Keeps the temporary file claimed until it is renamed.
    int m_claim = -1;
    int m_folder = -1;
};

} // namespace zephira
