// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <span>

namespace zephira {

/// What tells one state of a file on disk from another: device, inode, size in bytes, and modification time in
/// nanoseconds since 1970. `exists` is false for a file that isn't there.
struct FileSignature {
    bool exists = false;
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modifiedNs = 0;

    friend bool operator==(const FileSignature &, const FileSignature &) = default;
};

/// A file's bytes for a short look. Copies of `bytes` must not outlive the owner, which may be the file itself, mapped.
struct FileView {
    QByteArray bytes;
    std::shared_ptr<const void> owner = {};
};

/// Files by full path. The program works on the disk; tests work in memory or with a store that fails where they say.
/// A file whose bytes come one after another.
class IncomingFile
{
public:
    /// Without finish() the file stays what it was.
    virtual ~IncomingFile() = default;

    /// Puts bytes behind those before. A failure is told by finish().
    virtual void append(QByteArrayView bytes) = 0;
    /// Lets the bytes take the file's place, once.
    virtual Result<void> finish() = 0;
};

class FileStore
{
public:
    virtual ~FileStore() = default;

    virtual Result<QByteArray> read(const QString &path) const = 0;
    /// The same without a copy where the store can do that.
    virtual Result<FileView> view(const QString &path) const
    {
        Result<QByteArray> content = read(path);
        return content ? Result<FileView>(FileView{std::move(content).value()}) : content.error();
    }
    /// Replaces the file with the pieces, joined, so that at every moment the old or the new content is on the disk.
    /// Mode, owner where possible, and a symbolic link's target are kept. `mode` is for a file that is new.
    virtual Result<void> write(const QString &path, std::span<const QByteArrayView> pieces, int mode = 0666) = 0;
    /// As write(), for a copy of what can be had again: where the file is new, nothing waits for the disk, so that many
    /// small files cost little. Such a file can be lost when the machine stops soon afterwards, but not when the program
    /// does; one that takes another's place is as safe as ever.
    virtual Result<void> writeCopy(const QString &path, std::span<const QByteArrayView> pieces)
    {
        return write(path, pieces);
    }
    /// Whether write() would part the file from other names that it has, or can't replace it because its folder allows no
    /// new files. False for a file that isn't there.
    virtual bool mustBeWrittenInPlace(const QString &) const { return false; }
    /// Writes over what stands in the file, with all that goes with it. What is killed in the middle leaves neither the old
    /// nor the new content: whoever calls this has a copy.
    virtual Result<void> writeInPlace(const QString &path, std::span<const QByteArrayView> pieces)
    {
        return write(path, pieces);
    }
    /// As writeCopy(), for bytes that are still to come: where the store can do that, they needn't be held in memory.
    virtual std::unique_ptr<IncomingFile> receiveCopy(const QString &path);
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
