// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <span>

namespace zephira {

/// Identifies one state of a file on disk: device, inode, size in bytes, and modification time in nanoseconds since
/// 1970. `exists` is false if there is no such file.
struct FileSignature {
    bool exists = false;
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modifiedNs = 0;

    friend bool operator==(const FileSignature &, const FileSignature &) = default;
};

/// A file's bytes for short use. Copies of `bytes` must not outlive `owner`, which may be a mapping of the file.
struct FileView {
    QByteArray bytes;
    std::shared_ptr<const void> owner = {};
};

/// A file that is written piece by piece.
class IncomingFile
{
public:
    /// Without finish() the file stays unchanged.
    virtual ~IncomingFile() = default;

    /// Appends bytes. A failure is reported by finish().
    virtual void append(QByteArrayView bytes) = 0;
    /// Replaces the file with the bytes. Must be called only once.
    virtual Result<void> finish() = 0;
};

/// Access to files by full path. The program works on the disk; tests work in memory, or with a store whose operations
/// can be made to fail.
class FileStore
{
public:
    virtual ~FileStore() = default;

    virtual Result<QByteArray> read(const QString &path) const = 0;
    /// The same, without copying if the store can do that.
    virtual Result<FileView> view(const QString &path) const
    {
        Result<QByteArray> content = read(path);
        return content ? Result<FileView>(FileView{std::move(content).value()}) : content.error();
    }
    /// Replaces the file with the concatenated pieces atomically: at every moment either the old or the new content is
    /// on the disk. Mode and, where possible, owner are kept, and symbolic links are followed. `mode` applies to new
    /// files.
    virtual Result<void> write(const QString &path, std::span<const QByteArrayView> pieces, int mode = 0666) = 0;
    /// Like write(), for a copy of something that can be obtained again. A new file isn't flushed to the disk, so that
    /// many small files cost little; it can be lost if the machine stops soon afterwards, but not if only the program
    /// does. Replacing an existing file is as safe as with write().
    virtual Result<void> writeCopy(const QString &path, std::span<const QByteArrayView> pieces)
    {
        return write(path, pieces);
    }
    /// Whether write() would separate the file from its other hard links, or can't replace it because its folder allows
    /// no new files. False if there is no such file.
    virtual bool mustBeWrittenInPlace(const QString &) const { return false; }
    /// Overwrites the content of the existing file. If the write is interrupted, the file holds neither the old nor the
    /// new content, so the caller must have kept a copy.
    virtual Result<void> writeInPlace(const QString &path, std::span<const QByteArrayView> pieces)
    {
        return write(path, pieces);
    }
    /// Like writeCopy(), for bytes that arrive piece by piece; if the store can do that, they aren't collected in
    /// memory.
    virtual std::unique_ptr<IncomingFile> receiveCopy(const QString &path);
    /// Removes what writes that were killed have left in a folder.
    virtual void removeLeavings(const QString &) {}
    virtual Result<void> remove(const QString &path) = 0;
    /// True if the path can be opened for reading; an existing file that can't be read counts as absent.
    virtual bool FileExists(const QString &path) const = 0;
    virtual FileSignature signature(const QString &path) const = 0;

    Result<void> write(const QString &path, QByteArrayView content, int mode = 0666)
    {
        return write(path, std::span<const QByteArrayView>(&content, 1), mode);
    }
};

} // namespace zephira
