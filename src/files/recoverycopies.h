// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QByteArrayView>
#include <QString>

#include <span>

namespace zephira {

class Clock;
class FileStore;

/// A folder of copies that keep text from being lost: one of the document that this process is editing, and versions of
/// files that other programs wrote and a save was about to replace. The folder is created when first needed; it and the
/// copies are accessible only to the user. The name of a copy is a prefix and the name of the file:
///
///     disk-20240229-120000-000-4711-001-index.htm      kept before a save
///     open-20240229-120000-000-4711-index.htm          the document of process 4711, from that time on
///     replaced-20240229-120000-000-4711-00001-index.htm  kept by a run of "Replace in files"
class RecoveryCopies
{
public:
    /// The folder is a full path without a trailing separator; store and clock must outlive this object.
    RecoveryCopies(QString folder, FileStore &files, const Clock &clock);

    /// Keeps the bytes found on disk under `path` and returns the copy's path. A copy is never overwritten; the newest
    /// 50 are kept.
    Result<QString> keepDisk(const QString &path, QByteArrayView bytes);

    /// Begins a run that changes many files and returns its name. Removes the copies of all runs but the latest nine.
    QString beginReplacing();
    /// Keeps what such a run is about to replace. No copy of the run is removed before it has become the tenth.
    Result<void> keepReplaced(const QString &run, const QString &path, QByteArrayView bytes);

    /// Writes the copy of the document, replacing the previous one.
    Result<void> write(const QString &titleOrPath, std::span<const QByteArrayView> pieces);
    /// Keeps a text that could not be saved and is about to be replaced in the editor. The copy stays while this
    /// process runs; after it has ended, it is one of leftCopies().
    Result<void> keepUnsaved(const QString &titleOrPath, std::span<const QByteArrayView> pieces);
    /// Removes the copy of the document, if there is one.
    void removeOwn();
    QString folder() const { return m_folder; }
    /// Full path of the document's copy, or "".
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
    int m_replaced = 0;
};

} // namespace zephira
