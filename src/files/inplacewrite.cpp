// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/inplacewrite.h"

#include "files/fileerror.h"
#include "files/writetarget.h"

#include <QScopeGuard>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace zephira {

namespace {

bool isOutOfRoom(int error)
{
    return error == ENOSPC || error == EDQUOT || error == EFBIG;
}

off_t totalSize(std::span<const QByteArrayView> pieces)
{
    off_t size = 0;
    for (const QByteArrayView piece : pieces)
        size += piece.size();
    return size;
}

/// Returns 0 or an errno.
int overwrite(FileSystemCalls &calls, int file, std::span<const QByteArrayView> pieces)
{
    const off_t size = totalSize(pieces);
    // File systems that can't reserve space report various errors; only a lack of space counts.
    if (size > 0 && calls.allocate(file, size) != 0 && isOutOfRoom(errno))
        return errno;
    if (const int error = writePieces(calls, file, pieces); error != 0)
        return error;
    if (calls.ftruncate(file, size) != 0)
        return errno;
    if (calls.fsync(file) != 0 && errno != ENOTSUP && errno != ENOSYS && errno != EINVAL)
        return errno;
    return 0;
}

} // namespace

bool mustBeWrittenInPlace(FileSystemCalls &calls, const QString &path)
{
    const Result<WriteTarget> target = writeTarget(calls, path);
    if (!target || !target.value().exists)
        return false;
    return target.value().status.st_nlink > 1
        || (calls.access(target.value().folder().constData(), W_OK | X_OK) != 0 && errno == EACCES);
}

Result<void> writeInPlace(FileSystemCalls &calls, const QString &path, std::span<const QByteArrayView> pieces)
{
    const Result<WriteTarget> target = writeTarget(calls, path);
    if (!target)
        return target.error();
    int file = calls.open(target.value().path.constData(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    if (file < 0)
        return saveError(path, errno);
    const auto closing = qScopeGuard([&] {
        if (file >= 0)
            calls.close(file);
    });
    if (const int error = overwrite(calls, file, pieces); error != 0)
        return saveError(path, error);
    if (calls.close(std::exchange(file, -1)) != 0)
        return saveError(path, errno);
    return {};
}

} // namespace zephira
