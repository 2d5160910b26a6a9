// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/writetarget.h"

#include "files/fileerror.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <climits>
#include <vector>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int maximumLinks = 40;

/// Everything up to and including the last separator; "" for a bare name.
QByteArray folderBytes(const QByteArray &path)
{
    return path.left(path.lastIndexOf('/') + 1);
}

} // namespace

Result<QByteArray> linkTarget(FileSystemCalls &calls, const QString &path)
{
    QByteArray target = QFile::encodeName(path);
    if (target.contains('\0'))
        return saveError(path, Error::Code::Unwritable,
                         QCoreApplication::translate("FileErrors", "its name contains a NUL character"));
    for (int links = 0; links <= maximumLinks; ++links) {
        struct stat status = {};
        if (calls.lstat(target.constData(), status) != 0) {
            if (errno == ENOENT)
                return target;
            return saveError(path, errno);
        }
        if (!S_ISLNK(status.st_mode))
            return target;
        QByteArray link(PATH_MAX, Qt::Uninitialized);
        const ssize_t length = calls.readlink(target.constData(), link.data(), static_cast<std::size_t>(link.size()));
        if (length < 0)
            return saveError(path, errno);
        link.truncate(length);
        target = link.startsWith('/') ? link : folderBytes(target) + link;
    }
    return saveError(path, ELOOP);
}

QByteArray WriteTarget::folder() const
{
    const QByteArray folder = folderBytes(path);
    return folder.isEmpty() ? QByteArray("./") : folder;
}

Result<WriteTarget> writeTarget(FileSystemCalls &calls, const QString &path)
{
    Result<QByteArray> found = linkTarget(calls, path);
    if (!found)
        return found.error();
    WriteTarget target{.path = std::move(found).value()};
    if (calls.stat(target.path.constData(), target.status) != 0) {
        if (errno != ENOENT)
            return saveError(path, errno);
        return target;
    }
    target.exists = true;
    const mode_t mode = target.status.st_mode;
    if (S_ISDIR(mode))
        return saveError(path, EISDIR);
    if (!S_ISREG(mode))
        return saveError(path, Error::Code::Unwritable,
                         QCoreApplication::translate("FileErrors", "it is not a regular file"));
    // access() allows the superuser to write everywhere, but a file that nobody may write to is protected on purpose.
    if ((mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0)
        return saveError(path, Error::Code::Unwritable, QCoreApplication::translate("FileErrors", "it is read-only"));
    if (calls.access(target.path.constData(), W_OK) != 0)
        return saveError(path, errno);
    return target;
}

int writePieces(FileSystemCalls &calls, int file, std::span<const QByteArrayView> pieces)
{
    std::vector<iovec> parts;
    parts.reserve(pieces.size());
    for (const QByteArrayView piece : pieces) {
        if (!piece.isEmpty())
            parts.push_back({const_cast<char *>(piece.data()), static_cast<std::size_t>(piece.size())});
    }
    std::span<iovec> left = parts;
    while (!left.empty()) {
        const ssize_t result = calls.writev(file, left);
        if (result < 0)
            return errno;
        if (result == 0)
            return ENOSPC;
        auto written = static_cast<std::size_t>(result);
        while (!left.empty() && written >= left.front().iov_len) {
            written -= left.front().iov_len;
            left = left.subspan(1);
        }
        if (!left.empty()) {
            left.front().iov_base = static_cast<char *>(left.front().iov_base) + written;
            left.front().iov_len -= written;
        }
    }
    return 0;
}

} // namespace zephira
