// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/atomicwrite.h"

#include "files/fileerror.h"

#include <QFile>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int maximumLinks = 40;
constexpr int maximumNameAttempts = 16;
constexpr char accessListName[] = "system.posix_acl_access";

/// Everything up to the last separator, which is kept; "" for a bare name.
QByteArray folderOf(const QByteArray &path)
{
    return path.left(path.lastIndexOf('/') + 1);
}

bool isUnsupported(int error)
{
    return error == ENOTSUP || error == ENOSYS || error == EINVAL;
}

} // namespace

Result<QByteArray> linkTarget(FileSystemCalls &calls, const QString &path)
{
    QByteArray target = QFile::encodeName(path);
    if (target.contains('\0'))
        return saveError(path, Error::Code::Unwritable, u"its name holds a NUL character"_s);
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
        target = link.startsWith('/') ? link : folderOf(target) + link;
    }
    return saveError(path, ELOOP);
}

AtomicWrite::~AtomicWrite()
{
    if (m_file >= 0)
        m_calls.close(m_file);
    if (m_folder >= 0)
        m_calls.close(m_folder);
    if (!m_temporary.isEmpty())
        m_calls.unlink(m_temporary.constData());
}

Result<void> AtomicWrite::run(std::span<const QByteArrayView> pieces, mode_t newMode)
{
    if (Result<void> examined = examineTarget(); !examined)
        return examined;
    if (const int error = createTemporary(newMode); error == EACCES || error == EPERM)
        return saveError(m_path, Error::Code::Unwritable, u"its folder does not allow new files"_s);
    else if (error != 0)
        return saveError(m_path, error);

    int error = writePieces(pieces);
    if (error == 0 && m_replaces)
        error = keepOwner();
    if (error == 0 && m_replaces)
        error = keepMode();
    if (error == 0 && m_replaces)
        error = keepAttributes();
    if (error == 0)
        error = flush();
    if (error == 0)
        error = takePlace();
    if (error != 0)
        return saveError(m_path, error);
    return {};
}

Result<void> AtomicWrite::examineTarget()
{
    Result<QByteArray> target = linkTarget(m_calls, m_path);
    if (!target)
        return target.error();
    m_target = std::move(target).value();
    if (m_calls.stat(m_target.constData(), m_old) != 0) {
        if (errno != ENOENT)
            return saveError(m_path, errno);
        return {};
    }
    if (S_ISDIR(m_old.st_mode))
        return saveError(m_path, EISDIR);
    if (!S_ISREG(m_old.st_mode))
        return saveError(m_path, Error::Code::Unwritable, u"it is not a regular file"_s);
    // The system lets the superuser write to everything; a file that nobody may write to is protected on purpose.
    if ((m_old.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0)
        return saveError(m_path, Error::Code::Unwritable, u"it is read-only"_s);
    if (m_calls.access(m_target.constData(), W_OK) != 0)
        return saveError(m_path, errno);
    m_replaces = true;
    return {};
}

QByteArray AtomicWrite::folder() const
{
    const QByteArray folder = folderOf(m_target);
    return folder.isEmpty() ? QByteArray("./") : folder;
}

int AtomicWrite::createTemporary(mode_t newMode)
{
    // The folder is opened first, so that nothing but its flush is left to fail once the new content is in place. One
    // that can be written but not listed can't be opened; its flush is left to the system.
    m_folder = m_calls.open(folder().constData(), O_RDONLY | O_DIRECTORY);
    if (m_folder < 0 && errno != EACCES)
        return errno;
    for (int attempt = 0; attempt < maximumNameAttempts; ++attempt) {
        const quint64 random = QRandomGenerator::system()->generate64();
        const QByteArray name = folder() + ".zephira-" + QByteArray::number(random, 16) + '~';
        // A new file gets its final mode from the system. One that takes another's place stays private until the end.
        m_file = m_calls.open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, m_replaces ? 0600 : newMode);
        if (m_file >= 0) {
            m_temporary = name;
            return 0;
        }
        if (errno != EEXIST)
            return errno;
    }
    return EEXIST;
}

int AtomicWrite::writePieces(std::span<const QByteArrayView> pieces)
{
    std::vector<iovec> parts;
    parts.reserve(pieces.size());
    for (const QByteArrayView piece : pieces) {
        if (!piece.isEmpty())
            parts.push_back({const_cast<char *>(piece.data()), static_cast<std::size_t>(piece.size())});
    }
    std::span<iovec> left = parts;
    while (!left.empty()) {
        const ssize_t result = m_calls.writev(m_file, left);
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

int AtomicWrite::keepOwner()
{
    struct stat created = {};
    if (m_calls.fstat(m_file, created) != 0)
        return errno;
    const auto give = [this](uid_t owner) {
        const int result = m_calls.fchown(m_file, owner, m_old.st_gid);
        return result == 0 ? 0 : errno;
    };
    // Only the superuser may give a file away; anybody may choose among the groups they are in.
    const auto isRefusal = [](int error) { return error == EPERM || error == EINVAL; };
    if (created.st_uid == m_old.st_uid && created.st_gid == m_old.st_gid)
        return 0;
    int error = give(m_old.st_uid);
    if (!isRefusal(error))
        return error;
    m_ownerKept = created.st_uid == m_old.st_uid;
    if (created.st_gid == m_old.st_gid)
        return 0;
    error = give(static_cast<uid_t>(-1));
    m_groupKept = !isRefusal(error);
    return m_groupKept ? error : 0;
}

int AtomicWrite::keepMode()
{
    m_hasAccessList = m_calls.getxattr(m_target.constData(), accessListName, nullptr, 0) >= 0;
    if (!m_hasAccessList && errno != ENODATA && !isUnsupported(errno))
        return errno;
    mode_t mode = m_old.st_mode & 07777;
    if (!m_ownerKept)
        mode &= ~static_cast<mode_t>(S_ISUID);
    if (!m_groupKept)
        mode &= ~static_cast<mode_t>(S_ISGID);
    // Another group must not inherit rights, and under an access list these bits are its mask, not the group's rights:
    // they come back with the list.
    if (!m_groupKept || m_hasAccessList)
        mode &= ~static_cast<mode_t>(S_IRWXG) | ((mode & S_IRWXO) << 3);
    return m_calls.fchmod(m_file, mode) == 0 ? 0 : errno;
}

int AtomicWrite::keepAttributes()
{
    const char *target = m_target.constData();
    const auto copy = [&](const char *name) {
        const ssize_t size = m_calls.getxattr(target, name, nullptr, 0);
        QByteArray value(std::max<ssize_t>(size, 0), Qt::Uninitialized);
        const ssize_t got = m_calls.getxattr(target, name, value.data(), static_cast<std::size_t>(value.size()));
        if (size >= 0 && got >= 0)
            m_calls.fsetxattr(m_file, name, value.constData(), static_cast<std::size_t>(got));
    };
    // An attribute that can't be copied is no reason to refuse a save.
    if (m_hasAccessList && m_groupKept)
        copy(accessListName);
    const ssize_t size = m_calls.listxattr(target, nullptr, 0);
    if (size <= 0)
        return 0;
    QByteArray names(size, Qt::Uninitialized);
    names.truncate(std::max<ssize_t>(m_calls.listxattr(target, names.data(), static_cast<std::size_t>(size)), 0));
    for (const QByteArray &name : names.split('\0')) {
        if (name.startsWith("user."))
            copy(name.constData());
    }
    return 0;
}

/// Ends the writing of the temporary file, on the disk where that is asked for.
int AtomicWrite::flush()
{
    if (flushes() && m_calls.fsync(m_file) != 0 && !isUnsupported(errno))
        return errno;
    const int file = std::exchange(m_file, -1);
    return m_calls.close(file) == 0 ? 0 : errno;
}

int AtomicWrite::takePlace()
{
    if (m_calls.rename(m_temporary.constData(), m_target.constData()) != 0)
        return errno;
    m_temporary.clear();
    if (flushes() && m_folder >= 0 && m_calls.fsync(m_folder) != 0 && !isUnsupported(errno))
        return errno;
    return 0;
}

} // namespace zephira
