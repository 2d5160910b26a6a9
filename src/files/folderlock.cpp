// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/folderlock.h"

#include <cerrno>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>

using namespace std::chrono_literals;

namespace zephira {

FolderLock::FolderLock(const QByteArray &folder) : m_file(m_calls.open(folder.constData(), O_RDONLY | O_DIRECTORY))
{
    int result = -1;
    while (m_file >= 0 && (result = flock(m_file, LOCK_EX)) != 0 && errno == EINTR) {}
    setState(result);
}

FolderLock::FolderLock(const QByteArray &folder, std::chrono::milliseconds longest)
    : m_file(m_calls.open(folder.constData(), O_RDONLY | O_DIRECTORY))
{
    constexpr auto step = 5ms;
    const auto end = std::chrono::steady_clock::now() + longest;
    int result = -1;
    while (m_file >= 0 && (result = flock(m_file, LOCK_EX | LOCK_NB)) != 0 && (errno == EINTR || errno == EWOULDBLOCK)
           && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(step);
    setState(result);
}

/// The result is that of the last call, whose error number is still the system's.
void FolderLock::setState(int result)
{
    const bool withoutLocks = m_file >= 0 && (errno == ENOLCK || errno == ENOTSUP || errno == EBADF);
    m_error = result == 0 || withoutLocks ? 0 : errno;
}

FolderLock::~FolderLock()
{
    if (m_file >= 0)
        m_calls.close(m_file);
}

} // namespace zephira
