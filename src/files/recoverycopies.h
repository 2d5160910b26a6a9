// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QByteArrayView>
#include <QString>

#include <span>

namespace zephira {

class Clock;
class FileStore;

/// A folder of copies that keep a text from being lost: one of the document that this process is editing, and versions of
/// files that other programs wrote and that a save was about to replace. The folder is made when it is first needed; it
/// and the copies are for the user alone. Copies carry the name of the file behind their own mark:
///
///     disk-20240229-120000-000-4711-001-index.htm      kept before a save
///     open-20240229-120000-000-4711-index.htm          the document of process 4711, from that time on
class RecoveryCopies
{
public:
    /// The folder is a full path without a separator at its end; store and clock outlive this.
    RecoveryCopies(QString folder, FileStore &files, const Clock &clock);

    /// Keeps what is on the disk under `path` and gives back the copy's path. A copy is never overwritten; of all of
    /// them the newest 50 are kept.
    Result<QString> keepDisk(const QString &path, QByteArrayView bytes);

    /// Writes the copy of the document, in place of the one before.
    Result<void> write(const QString &titleOrPath, std::span<const QByteArrayView> pieces);
    /// Keeps a text that gives way to another one and could not be saved. The copy stays when this process goes on, and
    /// is one that an ended program left when it is over.
    Result<void> keepUnsaved(const QString &titleOrPath, std::span<const QByteArrayView> pieces);
    /// Removes the copy of the document. There being none is fine.
    void removeOwn();
    QString folder() const { return m_folder; }
    /// The document's copy, or "".
    QString ownCopy() const { return m_own; }

private:
    Result<void> makeFolder() const;
    void removeOldest(const QString &newest) const;

    QString m_folder;
    FileStore &m_files;
    const Clock &m_clock;
    QString m_ownPrefix;
    QString m_own;
    int m_counter = 0;
};

} // namespace zephira
