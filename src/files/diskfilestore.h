// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/filestore.h"

#include <memory>

namespace zephira {

class FileSystemCalls;

/// The files of the disk. Holds no state, so that several may exist side by side.
class DiskFileStore final : public FileStore
{
public:
    DiskFileStore();
    /// Works through calls that a test lets fail; they must outlive the store.
    explicit DiskFileStore(FileSystemCalls &calls);
    ~DiskFileStore() override;

    using FileStore::write;
    /// The whole file. Folders and devices are refused, and so are files above `maximumFileSize` with Code::TooLarge.
    Result<QByteArray> read(const QString &path) const override;
    /// Large files are mapped, where the system can keep writers out meanwhile.
    Result<FileView> view(const QString &path) const override;
    /// See AtomicWrite for what is kept of the old file.
    Result<void> write(const QString &path, std::span<const QByteArrayView> pieces, int mode = 0666) override;
    Result<void> writeCopy(const QString &path, std::span<const QByteArrayView> pieces) override;
    bool mustBeWrittenInPlace(const QString &path) const override;
    Result<void> writeInPlace(const QString &path, std::span<const QByteArrayView> pieces) override;
    std::unique_ptr<IncomingFile> receiveCopy(const QString &path) override;
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
