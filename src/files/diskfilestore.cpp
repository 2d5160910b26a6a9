// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/diskfilestore.h"

#include "files/atomicwrite.h"
#include "files/fileerror.h"
#include "files/filesystemcalls.h"
#include "files/inplacewrite.h"
#include "files/mappedfile.h"
#include "files/temporaryfiles.h"
#include "files/textfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QScopeGuard>

#include <algorithm>
#include <cerrno>
#include <optional>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Opening must neither wait for the other end of a pipe nor acquire a controlling terminal.
constexpr int readFlags = O_RDONLY | O_NONBLOCK | O_NOCTTY;

/// In bytes. Smaller files are cheaper to copy than to map.
constexpr qint64 smallestMapped = 1024 * 1024;

/// The path in the system's encoding; nothing if it contains a NUL, at which it would be cut and so name another file.
std::optional<QByteArray> systemPath(const QString &path)
{
    QByteArray encoded = QFile::encodeName(path);
    return encoded.contains('\0') ? std::nullopt : std::optional(std::move(encoded));
}

/// Writes the bytes to the temporary file as they arrive.
class IncomingCopy final : public IncomingFile
{
public:
    IncomingCopy(FileSystemCalls &calls, const QString &path) : m_write(calls, path, AtomicWrite::Flush::WhenReplacing)
    {}

    void append(QByteArrayView bytes) override
    {
        if (begin())
            m_state = m_write.append(std::span(&bytes, 1));
    }
    Result<void> finish() override { return begin() ? m_write.finish() : m_state; }

private:
    /// Called with the first bytes, so that the existing file isn't examined before there is content to replace it.
    bool begin()
    {
        if (!std::exchange(m_isBegun, true))
            m_state = m_write.begin(0666);
        return m_state.ok();
    }

    AtomicWrite m_write;
    Result<void> m_state;
    bool m_isBegun = false;
};

Error tooLarge(const QString &path)
{
    return readError(
        path, Error::Code::TooLarge,
        QCoreApplication::translate("FileErrors", "it is larger than %1 MiB").arg(maximumFileSize / (1024 * 1024)));
}

} // namespace

DiskFileStore::DiskFileStore() : m_ownCalls(std::make_unique<FileSystemCalls>()), m_calls(*m_ownCalls) {}

DiskFileStore::DiskFileStore(FileSystemCalls &calls) : m_calls(calls) {}

DiskFileStore::~DiskFileStore() = default;

/// Opens a file that can be read completely: a regular file that is not too large.
Result<DiskFileStore::OpenFile> DiskFileStore::open(const QString &path) const
{
    const std::optional<QByteArray> name = systemPath(path);
    struct stat status = {};
    if (!name)
        return readError(path, ENOENT);
    // Checked before opening, because opening a device can already have side effects.
    if (m_calls.stat(name->constData(), status) != 0)
        return readError(path, errno);
    if (S_ISDIR(status.st_mode))
        return readError(path, EISDIR);
    if (!S_ISREG(status.st_mode))
        return readError(path, Error::Code::Unreadable,
                         QCoreApplication::translate("FileErrors", "it is not a regular file"));
    if (status.st_size > maximumFileSize)
        return tooLarge(path);
    const int file = m_calls.open(name->constData(), readFlags);
    if (file < 0)
        return readError(path, errno);
    return OpenFile{file, status.st_size};
}

Result<QByteArray> DiskFileStore::read(const QString &path) const
{
    const Result<OpenFile> opened = open(path);
    return opened ? readOpen(path, opened.value()) : opened.error();
}

Result<FileView> DiskFileStore::view(const QString &path) const
{
    const Result<OpenFile> opened = open(path);
    if (!opened)
        return opened.error();
    if (opened.value().size >= smallestMapped) {
        if (const auto mapped = MappedFile::map(opened.value().file)) {
            const QByteArrayView bytes = mapped->bytes();
            if (bytes.size() > maximumFileSize)
                return tooLarge(path);
            return FileView{QByteArray::fromRawData(bytes.data(), bytes.size()), mapped};
        }
    }
    Result<QByteArray> content = readOpen(path, opened.value());
    return content ? Result<FileView>(FileView{std::move(content).value()}) : content.error();
}

Result<QByteArray> DiskFileStore::readOpen(const QString &path, OpenFile open) const
{
    const auto [file, size] = open;
    const auto closing = qScopeGuard([this, file = file] { m_calls.close(file); });

    // One byte more than the size, so that the end is detected without growing the buffer. A file that grows meanwhile,
    // or a kernel file whose size is meaningless, is read to its end.
    QByteArray content(size + 1, Qt::Uninitialized);
    qsizetype length = 0;
    for (;;) {
        if (length == content.size())
            content.resize(std::max<qsizetype>(2 * length, 65536));
        const ssize_t got =
            m_calls.read(file, content.data() + length, static_cast<std::size_t>(content.size() - length));
        if (got < 0)
            return readError(path, errno);
        if (got == 0)
            break;
        length += got;
        if (length > maximumFileSize)
            return tooLarge(path);
    }
    content.truncate(length);
    return content;
}

Result<void> DiskFileStore::write(const QString &path, std::span<const QByteArrayView> pieces, int mode)
{
    return AtomicWrite(m_calls, path).run(pieces, static_cast<mode_t>(mode));
}

Result<void> DiskFileStore::writeCopy(const QString &path, std::span<const QByteArrayView> pieces)
{
    return AtomicWrite(m_calls, path, AtomicWrite::Flush::WhenReplacing).run(pieces, 0666);
}

bool DiskFileStore::mustBeWrittenInPlace(const QString &path) const
{
    return zephira::mustBeWrittenInPlace(m_calls, path);
}

Result<void> DiskFileStore::writeInPlace(const QString &path, std::span<const QByteArrayView> pieces)
{
    return zephira::writeInPlace(m_calls, path, pieces);
}

std::unique_ptr<IncomingFile> DiskFileStore::receiveCopy(const QString &path)
{
    return std::make_unique<IncomingCopy>(m_calls, path);
}

void DiskFileStore::removeLeavings(const QString &folder)
{
    if (const std::optional<QByteArray> name = systemPath(folder))
        sweepTemporaries(m_calls, name->endsWith('/') ? *name : *name + '/');
}

Result<void> DiskFileStore::remove(const QString &path)
{
    const std::optional<QByteArray> name = systemPath(path);
    if (!name)
        return removeError(path, ENOENT);
    if (m_calls.unlink(name->constData()) != 0)
        return removeError(path, errno);
    return {};
}

bool DiskFileStore::FileExists(const QString &path) const
{
    const std::optional<QByteArray> name = systemPath(path);
    struct stat status = {};
    if (!name || m_calls.stat(name->constData(), status) != 0 || S_ISDIR(status.st_mode))
        return false;
    const int file = m_calls.open(name->constData(), readFlags);
    if (file < 0)
        return false;
    m_calls.close(file);
    return true;
}

FileSignature DiskFileStore::signature(const QString &path) const
{
    const std::optional<QByteArray> name = systemPath(path);
    struct stat status = {};
    if (!name || m_calls.stat(name->constData(), status) != 0)
        return {};
    return {true, status.st_dev, status.st_ino, status.st_size,
            static_cast<qint64>(status.st_mtim.tv_sec) * 1'000'000'000 + status.st_mtim.tv_nsec};
}

} // namespace zephira
