// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/filesystemcalls.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace zephira {

template<typename Function>
auto FileSystemCalls::make(Call call, Function function)
{
    decltype(function()) result;
    do {
        errno = fault(call);
        result = errno == 0 ? function() : -1;
    } while (result == -1 && errno == EINTR);
    return result;
}

int FileSystemCalls::open(const char *path, int flags, mode_t mode)
{
    return make(Call::Open, [&] { return ::open(path, flags | O_CLOEXEC, mode); });
}

int FileSystemCalls::close(int file)
{
    // The descriptor is released whatever the call returns, so it must be closed even when a test asks for a failure.
    const int error = fault(Call::Close);
    const int result = ::close(file);
    if (error != 0)
        errno = error;
    return (error != 0 || result != 0) && errno != EINTR ? -1 : 0;
}

ssize_t FileSystemCalls::read(int file, void *buffer, std::size_t size)
{
    return make(Call::Read, [&] { return ::read(file, buffer, size); });
}

ssize_t FileSystemCalls::writev(int file, std::span<const iovec> parts)
{
    std::size_t total = 0;
    for (const iovec &part : parts)
        total += part.iov_len;
    return make(Call::Write, [&] {
        if (const std::size_t allowed = allowance(total); allowed < total)
            return ::write(file, parts.front().iov_base, std::min(allowed, parts.front().iov_len));
        return ::writev(file, parts.data(), static_cast<int>(std::min<std::size_t>(parts.size(), IOV_MAX)));
    });
}

int FileSystemCalls::fsync(int file)
{
    return make(Call::Sync, [&] { return ::fsync(file); });
}

int FileSystemCalls::rename(const char *from, const char *to)
{
    return make(Call::Rename, [&] { return ::rename(from, to); });
}

int FileSystemCalls::unlink(const char *path)
{
    return make(Call::Unlink, [&] { return ::unlink(path); });
}

int FileSystemCalls::stat(const char *path, struct stat &status)
{
    return make(Call::Stat, [&] { return ::stat(path, &status); });
}

int FileSystemCalls::lstat(const char *path, struct stat &status)
{
    return make(Call::LinkStat, [&] { return ::lstat(path, &status); });
}

int FileSystemCalls::fstat(int file, struct stat &status)
{
    return make(Call::HandleStat, [&] { return ::fstat(file, &status); });
}

ssize_t FileSystemCalls::readlink(const char *path, char *buffer, std::size_t size)
{
    return make(Call::ReadLink, [&] { return ::readlink(path, buffer, size); });
}

int FileSystemCalls::access(const char *path, int mode)
{
    return make(Call::Access, [&] { return ::faccessat(AT_FDCWD, path, mode, AT_EACCESS); });
}

int FileSystemCalls::fchmod(int file, mode_t mode)
{
    return make(Call::ChangeMode, [&] { return ::fchmod(file, mode); });
}

int FileSystemCalls::fchown(int file, uid_t owner, gid_t group)
{
    return make(Call::ChangeOwner, [&] { return ::fchown(file, owner, group); });
}

ssize_t FileSystemCalls::listxattr(const char *path, char *names, std::size_t size)
{
    return make(Call::ListAttributes, [&] { return ::listxattr(path, names, size); });
}

ssize_t FileSystemCalls::getxattr(const char *path, const char *name, void *value, std::size_t size)
{
    return make(Call::GetAttribute, [&] { return ::getxattr(path, name, value, size); });
}

int FileSystemCalls::fsetxattr(int file, const char *name, const void *value, std::size_t size)
{
    return make(Call::SetAttribute, [&] { return ::fsetxattr(file, name, value, size, 0); });
}

int FileSystemCalls::lock(int file)
{
    return make(Call::Lock, [&] { return ::flock(file, LOCK_EX | LOCK_NB); });
}

int FileSystemCalls::duplicate(int file)
{
    return make(Call::Duplicate, [&] { return ::fcntl(file, F_DUPFD_CLOEXEC, 0); });
}

int FileSystemCalls::allocate(int file, off_t size)
{
    return make(Call::Allocate, [&] { return ::fallocate(file, FALLOC_FL_KEEP_SIZE, 0, size); });
}

int FileSystemCalls::ftruncate(int file, off_t size)
{
    return make(Call::Truncate, [&] { return ::ftruncate(file, size); });
}

} // namespace zephira
