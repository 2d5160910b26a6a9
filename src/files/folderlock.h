// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/filesystemcalls.h"

#include <QByteArray>

#include <chrono>

namespace zephira {

/// Makes other processes that read, change and write a file of the same folder wait. The lock is on the folder itself,
/// so that no lock file is left next to the file, and it is released when the process that holds it ends.
class FolderLock
{
public:
    /// Waits for the lock. The folder's name is in the encoding of the file system.
    explicit FolderLock(const QByteArray &folder);
    /// Gives up after some time; then the lock isn't held.
    FolderLock(const QByteArray &folder, std::chrono::milliseconds longest);
    ~FolderLock();
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

    /// Also true on a file system without locks, which still allows writing; then the last writer wins.
    bool isHeld() const { return m_error == 0; }
    /// Why the folder isn't locked, as errno.
    int error() const { return m_error; }

private:
    void setState(int result);

    FileSystemCalls m_calls;
    int m_file;
    int m_error = 0;
};

} // namespace zephira
