// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>

#include <sys/stat.h>
#include <sys/types.h>
#include <sys/uio.h>

namespace zephira {

/// The system calls used for reading and saving, each with the result and errno of the call it is named after. Calls
/// interrupted by a signal are repeated. Tests derive from this class to make any call fail, or to end the process at
/// that point.
class FileSystemCalls
{
public:
    enum class Call {
        Open,
        Close,
        Read,
        Write,
        Sync,
        Rename,
        Unlink,
        Stat,
        LinkStat,
        HandleStat,
        ReadLink,
        Access,
        ChangeMode,
        ChangeOwner,
        ListAttributes,
        GetAttribute,
        SetAttribute,
        Lock,
        Duplicate,
        Allocate,
        Truncate
    };

    virtual ~FileSystemCalls() = default;

    int open(const char *path, int flags, mode_t mode = 0);
    /// An interrupted close() has still closed the file and counts as success.
    int close(int file);
    ssize_t read(int file, void *buffer, std::size_t size);
    ssize_t writev(int file, std::span<const iovec> parts);
    int fsync(int file);
    int rename(const char *from, const char *to);
    int unlink(const char *path);
    int stat(const char *path, struct stat &status);
    int lstat(const char *path, struct stat &status);
    int fstat(int file, struct stat &status);
    ssize_t readlink(const char *path, char *buffer, std::size_t size);
    /// Checks the permissions of the effective user, which the later calls use.
    int access(const char *path, int mode);
    int fchmod(int file, mode_t mode);
    int fchown(int file, uid_t owner, gid_t group);
    ssize_t listxattr(const char *path, char *names, std::size_t size);
    ssize_t getxattr(const char *path, const char *name, void *value, std::size_t size);
    int fsetxattr(int file, const char *name, const void *value, std::size_t size);
    /// Locks the whole file exclusively for this open file description, without waiting.
    int lock(int file);
    int duplicate(int file);
    /// Reserves disk space for `size` bytes; the file keeps its size.
    int allocate(int file, off_t size);
    int ftruncate(int file, off_t size);

protected:
    /// An errno with which the call fails instead of being made, or 0.
    virtual int fault(Call) { return 0; }
    /// How many of the bytes a single write may take.
    virtual std::size_t allowance(std::size_t wanted) { return wanted; }

private:
    template<typename Function>
    auto make(Call call, Function function);
};

} // namespace zephira
