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
/// new content stands under its name: the new one goes into a temporary file in the same folder, is flushed to the disk
/// and takes the name over.
///
/// Mode, owner and group, access list and user attributes are those of the old file. Where the group can't be kept, its
/// members get no more than everybody. Other hard links to the old file keep the old content. A folder that takes no new
/// file makes the write fail even where the file itself could be overwritten; see writeInPlace().
///
/// What killed writers have left in the folder is removed after a write that is flushed.
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
    /// The same in steps, for bytes that come one after another. After a failure nothing else may follow.
    Result<void> begin(mode_t newMode);
    Result<void> append(std::span<const QByteArrayView> pieces);
    Result<void> finish();

private:
    // Each step gives 0 or an errno.
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
    /// Keeps the temporary file claimed while it waits for its place.
    int m_claim = -1;
    int m_folder = -1;
};

} // namespace zephira
