// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak/writefence.h"

#include <QFile>
#include <QScopeGuard>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Rights that were added after the first version, each with its version. Older headers don't name them.
struct LaterRight {
    long version;
    quint64 right;
};

constexpr LaterRight laterRights[] = {{2, 1ULL << 13}, {3, 1ULL << 14}};

quint64 fencedRights(long version)
{
    quint64 rights = LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR
        | LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR | LANDLOCK_ACCESS_FS_MAKE_DIR
        | LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO
        | LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;
    for (const LaterRight &later : laterRights) {
        if (version >= later.version)
            rights |= later.right;
    }
    return rights;
}

Error failure(const QString &what)
{
    return {Error::Code::Failed, what + u": "_s + QString::fromLocal8Bit(std::strerror(errno))};
}

} // namespace

Result<void> fenceWrites(const QStringList &folders)
{
    const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return failure(u"the kernel has no Landlock"_s);
    landlock_ruleset_attr rules{};
    rules.handled_access_fs = fencedRights(version);
    const int fence = static_cast<int>(syscall(SYS_landlock_create_ruleset, &rules, sizeof rules, 0));
    if (fence < 0)
        return failure(u"the fence can't be made"_s);
    const auto closeFence = qScopeGuard([fence] { ::close(fence); });
    for (const QString &folder : folders) {
        landlock_path_beneath_attr below{};
        below.allowed_access = rules.handled_access_fs & ~static_cast<quint64>(LANDLOCK_ACCESS_FS_EXECUTE);
        const int opened = ::open(QFile::encodeName(folder).constData(), O_PATH | O_CLOEXEC);
        if (opened < 0)
            return failure(folder);
        const auto closeFolder = qScopeGuard([opened] { ::close(opened); });
        below.parent_fd = opened;
        if (syscall(SYS_landlock_add_rule, fence, LANDLOCK_RULE_PATH_BENEATH, &below, 0) != 0)
            return failure(folder);
    }
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || syscall(SYS_landlock_restrict_self, fence, 0) != 0)
        return failure(u"the fence can't be put up"_s);
    return {};
}

} // namespace zephira
