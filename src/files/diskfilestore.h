// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/filestore.h"

#include <memory>

namespace zephira {

class FileSystemCalls;

/// The files on disk. Has no state, so several instances may coexist.
class DiskFileStore final : public FileStore
{
public:
    DiskFileStore();
    /// Uses system calls that a test can make fail; they must outlive the store.
    explicit DiskFileStore(FileSystemCalls &calls);
    ~DiskFileStore() override;

    using FileStore::write;
    /// Reads the whole file. Fails for folders and devices, and with Code::TooLarge for files larger than
    /// `maximumFileSize`.
    Result<QByteArray> read(const QString &path) const override;
    /// Large files are mapped if the system can block writers meanwhile.
    Result<FileView> view(const QString &path) const override;
    /// See AtomicWrite for the properties of the old file that are kept.
    Result<void> write(const QString &path, std::span<const QByteArrayView> pieces, int mode = 0666) override;
    Result<void> writeCopy(const QString &path, std::span<const QByteArrayView> pieces) override;
    bool mustBeWrittenInPlace(const QString &path) const override;
    Result<void> writeInPlace(const QString &path, std::span<const QByteArrayView> pieces) override;
    std::unique_ptr<IncomingFile> receiveCopy(const QString &path) override;
    void removeLeavings(const QString &folder) override;
    Result<void> remove(const QString &path) override;
    bool FileExists(const QString &path) const override;
    FileSignature signature(const QString &path) const override;

private:
    struct OpenFile {
        int file = -1;
        qint64 size = 0;
    };
    Result<OpenFile> open(const QString &path) const;
    Result<QByteArray> readOpen(const QString &path, OpenFile open) const;

    std::unique_ptr<FileSystemCalls> m_ownCalls;
    FileSystemCalls &m_calls;
};

} // namespace zephira
