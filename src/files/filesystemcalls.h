// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>

#include <sys/stat.h>
#include <sys/types.h>
#include <sys/uio.h>

namespace zephira {

/// The system calls that reading and saving need, each with the result and errno of the call it is named for. Calls that
/// a signal interrupted are made again. Tests derive from it to let any one call fail, or the process end in its place.
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
    /// A close that was interrupted has closed the file all the same, and counts as done.
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
    /// Asks for the effective user, as the later calls are made.
    int access(const char *path, int mode);
    int fchmod(int file, mode_t mode);
    int fchown(int file, uid_t owner, gid_t group);
    ssize_t listxattr(const char *path, char *names, std::size_t size);
    ssize_t getxattr(const char *path, const char *name, void *value, std::size_t size);
    int fsetxattr(int file, const char *name, const void *value, std::size_t size);
    /// Takes the whole file for this opening of it alone, without waiting.
    int lock(int file);
    int duplicate(int file);
    /// Makes sure of room for so many bytes; the file keeps its size.
    int allocate(int file, off_t size);
    int ftruncate(int file, off_t size);

protected:
    /// An errno with which the call is to fail instead of being made, or 0.
    virtual int fault(Call) { return 0; }
    /// How many of the bytes a single write may take.
    virtual std::size_t allowance(std::size_t wanted) { return wanted; }

private:
    template<typename Function>
    auto make(Call call, Function function);
};

} // namespace zephira
