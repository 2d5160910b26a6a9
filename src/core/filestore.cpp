// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/filestore.h"

namespace zephira {

namespace {

/// Collects the bytes in memory and writes them in finish().
class GatheredFile final : public IncomingFile
{
public:
    GatheredFile(FileStore &files, QString path) : m_files(files), m_path(std::move(path)) {}

    void append(QByteArrayView bytes) override { m_bytes.append(bytes); }
    Result<void> finish() override
    {
        const QByteArrayView piece = m_bytes;
        return m_files.writeCopy(m_path, std::span(&piece, 1));
    }

private:
    FileStore &m_files;
    const QString m_path;
    QByteArray m_bytes;
};

} // namespace

std::unique_ptr<IncomingFile> FileStore::receiveCopy(const QString &path)
{
    return std::make_unique<GatheredFile>(*this, path);
}

} // namespace zephira
