// SPDX-License-Identifier: GPL-3.0-or-later
// Stands before the C library: each function has the name and the arguments of one of its functions and calls that, unless
// a fault is due. Nothing here allocates memory, because it also runs in processes that were just forked off.
#include "trust/faultyfiles.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace zephira {

namespace {

/// What a call does, for the errors that it can fail with.
enum class Use { Looks, Opens, Reads, Writes, Changes, Flushes, Closes, Locks };

constexpr int mostFiles = 1024;

bool isOn = false;
char folder[4096];
std::size_t folderLength = 0;
FileFault fault;
bool isWatched[mostFiles];

/// Made before any process is forked off.
FileFaultReport *makeReport()
{
    void *memory = mmap(nullptr, sizeof(FileFaultReport), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return static_cast<FileFaultReport *>(memory);
}

FileFaultReport *const sharedReport = makeReport();

bool isBelow(const char *path)
{
    return isOn && path && std::strncmp(path, folder, folderLength) == 0
        && (path[folderLength] == '/' || path[folderLength] == '\0');
}

bool isBelow(int file)
{
    return isOn && file >= 0 && file < mostFiles && isWatched[file];
}

bool canFail(Use use)
{
    switch (fault.error) {
    case ENOSPC:
    case EDQUOT:
        return use == Use::Writes || use == Use::Changes || use == Use::Flushes;
    case EROFS:
    case EACCES:
    case EPERM:
        return use == Use::Opens || use == Use::Changes || (fault.error == EACCES && use == Use::Looks);
    case EINTR:
        return use == Use::Opens || use == Use::Reads || use == Use::Writes || use == Use::Locks;
    case EMFILE:
        return use == Use::Opens;
    default:
        return true;
    }
}

/// Counts a call. Returns whether it is due to go wrong; it doesn't return if the process is to die here.
bool isDue(const char *name, Use use)
{
    if (fault.kind == FaultKind::Error && !canFail(use))
        return false;
    if (fault.kind == FaultKind::Short && use != Use::Reads && use != Use::Writes)
        return false;
    FileFaultReport &report = fileFaultReport();
    const int number = ++report.calls;
    if (number != fault.call && !(fault.lasts && number > fault.call))
        return false;
    if (report.struck++ == 0)
        std::snprintf(report.name, sizeof report.name, "%s", name);
    if (fault.kind == FaultKind::Kill || (fault.kind == FaultKind::KillHalf && use != Use::Writes))
        raise(SIGKILL);
    return true;
}

/// Whether the call is to fail; errno then says how.
bool fails(const char *name, Use use)
{
    if (!isDue(name, use) || fault.kind != FaultKind::Error)
        return false;
    errno = fault.error;
    return true;
}

template<typename Function>
Function *real(Function *, const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

void watch(int file, bool on)
{
    if (file >= 0 && file < mostFiles)
        isWatched[file] = on;
}

/// Reads or writes, or a part of that.
template<typename Move>
ssize_t moved(const char *name, Use use, std::size_t size, Move move)
{
    if (!isDue(name, use))
        return move(size);
    switch (fault.kind) {
    case FaultKind::Short:
        return move(size > 1 ? 1 : size);
    case FaultKind::KillHalf:
        move(size / 2);
        raise(SIGKILL);
        return 0;
    case FaultKind::Kill:
    case FaultKind::Error:
        break;
    }
    errno = fault.error;
    return -1;
}

int opened(const char *name, const char *path, int file)
{
    static_cast<void>(name);
    watch(file, isBelow(path));
    return file;
}

std::size_t sizeOf(const iovec *parts, int count)
{
    std::size_t size = 0;
    for (int i = 0; i < count; ++i)
        size += parts[i].iov_len;
    return size;
}

} // namespace

FileFaultReport &fileFaultReport()
{
    return *sharedReport;
}

void beginFileFaults(const char *path, const FileFault &due)
{
    std::snprintf(folder, sizeof folder, "%s", path);
    folderLength = std::strlen(folder);
    fault = due;
    fileFaultReport() = {};
    isOn = true;
}

void endFileFaults()
{
    isOn = false;
}

} // namespace zephira

using namespace zephira;

#define REAL(name) static const auto call = real(&::name, #name)

extern "C" {

// NOLINTBEGIN: these are the C library's names and declarations.

#define OPENS(name)                                                                                                    \
    int name(const char *path, int flags, ...)                                                                         \
    {                                                                                                                  \
        REAL(name);                                                                                                    \
        va_list rest;                                                                                                  \
        va_start(rest, flags);                                                                                         \
        const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;                           \
        va_end(rest);                                                                                                  \
        const bool changes = (flags & (O_CREAT | O_TRUNC)) != 0;                                                       \
        if (isBelow(path) && (fails(#name, changes ? Use::Changes : Use::Opens)))                                      \
            return -1;                                                                                                 \
        return opened(#name, path, call(path, flags, mode));                                                           \
    }
OPENS(open)
OPENS(open64)

#define OPENS_AT(name)                                                                                                 \
    int name(int at, const char *path, int flags, ...)                                                                 \
    {                                                                                                                  \
        REAL(name);                                                                                                    \
        va_list rest;                                                                                                  \
        va_start(rest, flags);                                                                                         \
        const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;                           \
        va_end(rest);                                                                                                  \
        const bool changes = (flags & (O_CREAT | O_TRUNC)) != 0;                                                       \
        if (isBelow(path) && fails(#name, changes ? Use::Changes : Use::Opens))                                        \
            return -1;                                                                                                 \
        return opened(#name, path, call(at, path, flags, mode));                                                       \
    }
OPENS_AT(openat)
OPENS_AT(openat64)

int close(int file)
{
    REAL(close);
    const bool below = isBelow(file);
    watch(file, false);
    const bool isFailure = below && fails("close", Use::Closes);
    const int error = errno;
    const int result = call(file);
    if (isFailure)
        errno = error;
    return isFailure ? -1 : result;
}

ssize_t read(int file, void *buffer, size_t size)
{
    REAL(read);
    return isBelow(file) ? moved("read", Use::Reads, size, [&](size_t some) { return call(file, buffer, some); })
                         : call(file, buffer, size);
}

ssize_t write(int file, const void *buffer, size_t size)
{
    REAL(write);
    return isBelow(file) ? moved("write", Use::Writes, size, [&](size_t some) { return call(file, buffer, some); })
                         : call(file, buffer, size);
}

ssize_t writev(int file, const iovec *parts, int count)
{
    REAL(writev);
    if (!isBelow(file))
        return call(file, parts, count);
    static const auto one = real(&::write, "write");
    const std::size_t size = sizeOf(parts, count);
    return moved("writev", Use::Writes, size, [&](size_t some) {
        if (some == size)
            return call(file, parts, count);
        ssize_t done = 0;
        for (int i = 0; i < count && some > 0; ++i) {
            const std::size_t part = parts[i].iov_len < some ? parts[i].iov_len : some;
            done += one(file, parts[i].iov_base, part);
            some -= part;
        }
        return done;
    });
}

#define FILE_CALL(name, use, parameters, arguments)                                                                    \
    int name parameters                                                                                                \
    {                                                                                                                  \
        REAL(name);                                                                                                    \
        return isBelow(file) && fails(#name, use) ? -1 : call arguments;                                               \
    }
#define PATH_CALL(type, name, use, parameters, arguments)                                                              \
    type name parameters                                                                                               \
    {                                                                                                                  \
        REAL(name);                                                                                                    \
        return isBelow(path) && fails(#name, use) ? -1 : call arguments;                                               \
    }
#define TWO_PATHS(name, parameters, arguments)                                                                         \
    int name parameters                                                                                                \
    {                                                                                                                  \
        REAL(name);                                                                                                    \
        return (isBelow(from) || isBelow(to)) && fails(#name, Use::Changes) ? -1 : call arguments;                     \
    }

// Only a machine that stops needs what is flushed.
#define FLUSHES(name)                                                                                                  \
    int name(int file)                                                                                                 \
    {                                                                                                                  \
        REAL(name);                                                                                                    \
        if (!isBelow(file))                                                                                            \
            return call(file);                                                                                         \
        return fails(#name, Use::Flushes) ? -1 : 0;                                                                    \
    }
FLUSHES(fsync)
FLUSHES(fdatasync)

FILE_CALL(ftruncate, Use::Changes, (int file, off_t size) noexcept, (file, size))
FILE_CALL(ftruncate64, Use::Changes, (int file, off64_t size) noexcept, (file, size))
FILE_CALL(fallocate, Use::Writes, (int file, int mode, off_t start, off_t size), (file, mode, start, size))
FILE_CALL(fallocate64, Use::Writes, (int file, int mode, off64_t start, off64_t size), (file, mode, start, size))
FILE_CALL(fchmod, Use::Changes, (int file, mode_t mode) noexcept, (file, mode))
FILE_CALL(fchown, Use::Changes, (int file, uid_t owner, gid_t group) noexcept, (file, owner, group))
FILE_CALL(fstat, Use::Looks, (int file, struct stat *status) noexcept, (file, status))
FILE_CALL(fstat64, Use::Looks, (int file, struct stat64 *status) noexcept, (file, status))
FILE_CALL(flock, Use::Locks, (int file, int kind) noexcept, (file, kind))
FILE_CALL(fsetxattr, Use::Changes,
          (int file, const char *attribute, const void *value, size_t size, int flags) noexcept,
          (file, attribute, value, size, flags))

PATH_CALL(int, stat, Use::Looks, (const char *path, struct stat *status) noexcept, (path, status))
PATH_CALL(int, stat64, Use::Looks, (const char *path, struct stat64 *status) noexcept, (path, status))
PATH_CALL(int, lstat, Use::Looks, (const char *path, struct stat *status) noexcept, (path, status))
PATH_CALL(int, lstat64, Use::Looks, (const char *path, struct stat64 *status) noexcept, (path, status))
PATH_CALL(int, statx, Use::Looks,
          (int at, const char *path, int flags, unsigned int mask, struct statx *status) noexcept,
          (at, path, flags, mask, status))
PATH_CALL(int, access, Use::Looks, (const char *path, int mode) noexcept, (path, mode))
PATH_CALL(int, faccessat, Use::Looks, (int at, const char *path, int mode, int flags) noexcept, (at, path, mode, flags))
PATH_CALL(ssize_t, readlink, Use::Looks, (const char *path, char *buffer, size_t size) noexcept, (path, buffer, size))
PATH_CALL(ssize_t, listxattr, Use::Looks, (const char *path, char *names, size_t size) noexcept, (path, names, size))
PATH_CALL(ssize_t, getxattr, Use::Looks, (const char *path, const char *attribute, void *value, size_t size) noexcept,
          (path, attribute, value, size))
PATH_CALL(int, unlink, Use::Changes, (const char *path) noexcept, (path))
PATH_CALL(int, rmdir, Use::Changes, (const char *path) noexcept, (path))
PATH_CALL(int, mkdir, Use::Changes, (const char *path, mode_t mode) noexcept, (path, mode))
PATH_CALL(int, chmod, Use::Changes, (const char *path, mode_t mode) noexcept, (path, mode))

TWO_PATHS(rename, (const char *from, const char *to) noexcept, (from, to))
TWO_PATHS(renameat, (int a, const char *from, int b, const char *to) noexcept, (a, from, b, to))
TWO_PATHS(renameat2, (int a, const char *from, int b, const char *to, unsigned int flags) noexcept,
          (a, from, b, to, flags))
TWO_PATHS(link, (const char *from, const char *to) noexcept, (from, to))
TWO_PATHS(linkat, (int a, const char *from, int b, const char *to, int flags) noexcept, (a, from, b, to, flags))

#define CONTROLS(name)                                                                                                 \
    int name(int file, int command, ...)                                                                               \
    {                                                                                                                  \
        REAL(name);                                                                                                    \
        va_list rest;                                                                                                  \
        va_start(rest, command);                                                                                       \
        void *const argument = va_arg(rest, void *);                                                                   \
        va_end(rest);                                                                                                  \
        const bool below = isBelow(file);                                                                              \
        if (below && fails(#name, Use::Opens))                                                                         \
            return -1;                                                                                                 \
        const int result = call(file, command, argument);                                                              \
        if (command == F_DUPFD || command == F_DUPFD_CLOEXEC)                                                          \
            watch(result, below);                                                                                      \
        return result;                                                                                                 \
    }
CONTROLS(fcntl)
CONTROLS(fcntl64)

// NOLINTEND

} // extern "C"
