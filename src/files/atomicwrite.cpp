// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/atomicwrite.h"

#include "files/fileerror.h"
#include "files/temporaryfiles.h"

#include <QCoreApplication>
#include <QList>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int maximumNameAttempts = 16;
constexpr char accessListName[] = "system.posix_acl_access";

bool isUnsupported(int error)
{
    return error == ENOTSUP || error == ENOSYS || error == EINVAL;
}

} // namespace

AtomicWrite::~AtomicWrite()
{
    if (m_file >= 0)
        m_calls.close(m_file);
    if (m_claim >= 0)
        m_calls.close(m_claim);
    if (m_folder >= 0)
        m_calls.close(m_folder);
    if (!m_temporary.isEmpty())
        m_calls.unlink(m_temporary.constData());
}

Result<void> AtomicWrite::run(std::span<const QByteArrayView> pieces, mode_t newMode)
{
    if (Result<void> begun = begin(newMode); !begun)
        return begun;
    if (Result<void> written = append(pieces); !written)
        return written;
    return finish();
}

Result<void> AtomicWrite::begin(mode_t newMode)
{
    Result<WriteTarget> target = writeTarget(m_calls, m_path);
    if (!target)
        return target.error();
    m_target = std::move(target).value();
    if (const int error = createTemporary(newMode); error == EACCES || error == EPERM)
        return saveError(m_path, Error::Code::Unwritable,
                         QCoreApplication::translate("FileErrors", "its folder does not allow new files"));
    else if (error != 0)
        return saveError(m_path, error);
    return {};
}

Result<void> AtomicWrite::append(std::span<const QByteArrayView> pieces)
{
    const int error = writePieces(m_calls, m_file, pieces);
    return error == 0 ? Result<void>() : saveError(m_path, error);
}

Result<void> AtomicWrite::finish()
{
    int error = m_target.exists ? keepOwner() : 0;
    if (error == 0 && m_target.exists)
        error = keepMode();
    if (error == 0 && m_target.exists)
        error = keepAttributes();
    if (error == 0)
        error = flush();
    if (error == 0)
        error = takePlace();
    if (error != 0)
        return saveError(m_path, error);
    // Thousands of copies may go into one folder, which shouldn't be scanned for each of them.
    if (m_flush == Flush::Always)
        sweepTemporaries(m_calls, m_target.folder());
    return {};
}

int AtomicWrite::createTemporary(mode_t newMode)
{
    // The folder is opened first, so that once the new content is in place only flushing the folder can fail. A folder
    // that is writable but not readable can't be opened; the system flushes it later.
    m_folder = m_calls.open(m_target.folder().constData(), O_RDONLY | O_DIRECTORY);
    if (m_folder < 0 && errno != EACCES)
        return errno;
    for (int attempt = 0; attempt < maximumNameAttempts; ++attempt) {
        const quint64 random = QRandomGenerator::system()->generate64();
        const QByteArray name = temporaryName(m_target.folder(), random);
        // A new file gets its final mode from the system. A replacement for an existing file stays private until the
        // end.
        m_file =
            m_calls.open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, m_target.exists ? 0600 : newMode);
        if (m_file < 0 && errno != EEXIST)
            return errno;
        if (m_file < 0)
            continue;
        m_temporary = name;
        if (claimTemporary(m_calls, m_file))
            return 0;
        m_calls.close(std::exchange(m_file, -1));
        m_temporary.clear();
    }
    return EEXIST;
}

int AtomicWrite::keepOwner()
{
    struct stat created = {};
    if (m_calls.fstat(m_file, created) != 0)
        return errno;
    const auto give = [this](uid_t owner) {
        const int result = m_calls.fchown(m_file, owner, m_target.status.st_gid);
        return result == 0 ? 0 : errno;
    };
    // Only the superuser may change a file's owner; other users may choose among their own groups.
    const auto isRefusal = [](int error) { return error == EPERM || error == EINVAL; };
    if (created.st_uid == m_target.status.st_uid && created.st_gid == m_target.status.st_gid)
        return 0;
    int error = give(m_target.status.st_uid);
    if (!isRefusal(error))
        return error;
    m_ownerKept = created.st_uid == m_target.status.st_uid;
    if (created.st_gid == m_target.status.st_gid)
        return 0;
    error = give(static_cast<uid_t>(-1));
    m_groupKept = !isRefusal(error);
    return m_groupKept ? error : 0;
}

int AtomicWrite::keepMode()
{
    m_hasAccessList = m_calls.getxattr(m_target.path.constData(), accessListName, nullptr, 0) >= 0;
    if (!m_hasAccessList && errno != ENODATA && !isUnsupported(errno))
        return errno;
    mode_t mode = m_target.status.st_mode & 07777;
    if (!m_ownerKept)
        mode &= ~static_cast<mode_t>(S_ISUID);
    if (!m_groupKept)
        mode &= ~static_cast<mode_t>(S_ISGID);
    // Another group must not inherit permissions. With an access list these bits are its mask rather than the group's
    // permissions; they are restored together with the list.
    if (!m_groupKept || m_hasAccessList)
        mode &= ~static_cast<mode_t>(S_IRWXG) | ((mode & S_IRWXO) << 3);
    return m_calls.fchmod(m_file, mode) == 0 ? 0 : errno;
}

int AtomicWrite::keepAttributes()
{
    const char *target = m_target.path.constData();
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
    const QList<QByteArray> all = names.split('\0');
    for (const QByteArray &name : all) {
        if (name.startsWith("user."))
            copy(name.constData());
    }
    return 0;
}

/// Finishes writing the temporary file, flushing it to the disk if required.
int AtomicWrite::flush()
{
    if (flushes() && m_calls.fsync(m_file) != 0 && !isUnsupported(errno))
        return errno;
    // The claim lasts as long as any descriptor is open, and an error on close must be known before the name is taken
    // over.
    m_claim = m_calls.duplicate(m_file);
    const int file = std::exchange(m_file, -1);
    return m_calls.close(file) == 0 ? 0 : errno;
}

int AtomicWrite::takePlace()
{
    if (m_calls.rename(m_temporary.constData(), m_target.path.constData()) != 0)
        return errno;
    m_temporary.clear();
    if (m_claim >= 0)
        m_calls.close(std::exchange(m_claim, -1));
    if (flushes() && m_folder >= 0 && m_calls.fsync(m_folder) != 0 && !isUnsupported(errno))
        return errno;
    return 0;
}

} // namespace zephira
