// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/bulkreader.h"

#include "files/textfile.h"

#include <QScopeGuard>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zephira {

namespace {

/// In bytes. A file of at most this size is read at once.
constexpr qsizetype blockSize = 1024 * 1024;
/// The part of a file that shows whether it is binary, in bytes.
constexpr qsizetype beginningSize = 8192;

constexpr int readFlags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW | O_CLOEXEC;

} // namespace

bool isBinary(QByteArrayView beginning)
{
    const QByteArrayView part = beginning.first(std::min(beginning.size(), beginningSize));
    if (part.startsWith("\xFF\xFE") || part.startsWith("\xFE\xFF"))
        return false;
    return part.contains('\0');
}

BulkReader::Content BulkReader::read(const QByteArray &path)
{
    const int file = ::open(path.constData(), readFlags);
    if (file < 0)
        return {};
    const auto closing = qScopeGuard([file] { ::close(file); });
    return readOpen(file);
}

BulkReader::Content BulkReader::readOpen(int file)
{
    struct stat status = {};
    if (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    Content content;
    content.signature = {true, status.st_dev, status.st_ino, status.st_size,
                         static_cast<qint64>(status.st_mtim.tv_sec) * 1'000'000'000 + status.st_mtim.tv_nsec};
    if (m_filter.isAlwaysWanted && m_filter.isAlwaysWanted(content.signature)) {
        content.kind = Kind::Wanted;
        return content;
    }
    const qsizetype size = status.st_size;
    // What a single large file needed isn't kept for the rest of the search.
    if (m_buffer.size() > 2 * blockSize)
        m_buffer = QByteArray();
    if (m_buffer.isEmpty())
        m_buffer = QByteArray(2 * blockSize, Qt::Uninitialized);
    const qsizetype begun = fill(file, 0, std::min(size, blockSize));
    if (begun < 0)
        return content;
    const QByteArrayView beginning(m_buffer.constData(), begun);
    content.kind = isBinary(beginning) ? Kind::Binary : Kind::Unwanted;
    if (content.kind == Kind::Binary || begun == 0)
        return content;
    if (size > maximumFileSize) {
        content.kind = Kind::TooLarge;
        return content;
    }
    if (size <= blockSize) {
        if (m_filter.mayHold(beginning))
            content = {Kind::Wanted, beginning, content.signature};
        return content;
    }
    if (!mayHoldLarge(file, begun)) {
        content.kind = m_filter.isStopped() ? Kind::Stopped : Kind::Unwanted;
        return content;
    }
    m_buffer = QByteArray(size, Qt::Uninitialized);
    const qsizetype length = ::lseek(file, 0, SEEK_SET) == 0 ? fill(file, 0, size) : -1;
    content.kind = length < 0 ? Kind::Unreadable : m_filter.isStopped() ? Kind::Stopped : Kind::Wanted;
    if (content.kind == Kind::Wanted)
        content.bytes = QByteArrayView(m_buffer.constData(), length);
    return content;
}

/// Reads up to `size` bytes to the place `from` of the buffer. Returns how many, fewer at the end of the file, or -1.
qsizetype BulkReader::fill(int file, qsizetype from, qsizetype size)
{
    qsizetype length = 0;
    while (length < size) {
        const ssize_t got = ::read(file, m_buffer.data() + from + length, static_cast<std::size_t>(size - length));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return -1;
        if (got == 0)
            break;
        length += got;
        if (m_filter.isStopped())
            break;
    }
    return length;
}

/// Looks through a file whose first block is in the buffer, block by block.
bool BulkReader::mayHoldLarge(int file, qsizetype begun)
{
    qsizetype kept = 0;
    for (qsizetype got = begun; got > 0; got = fill(file, kept, blockSize)) {
        const QByteArrayView part(m_buffer.constData(), kept + got);
        if (m_filter.isStopped())
            return false;
        if (m_filter.mayHold(part))
            return true;
        kept = std::min({m_filter.overlap, part.size(), blockSize});
        std::memmove(m_buffer.data(), part.data() + part.size() - kept, static_cast<std::size_t>(kept));
    }
    return false;
}

} // namespace zephira
