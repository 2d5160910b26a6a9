// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/temporaryfiles.h"

#include <QByteArrayView>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <vector>

#include <dirent.h>
#include <fcntl.h>

namespace zephira {

namespace {

constexpr QByteArrayView prefix = ".zephira-";

bool isTemporaryName(QByteArrayView name)
{
    if (!name.startsWith(prefix) || !name.endsWith('~'))
        return false;
    const QByteArrayView number = name.sliced(prefix.size()).chopped(1);
    return !number.isEmpty() && number.size() <= 16
        && std::ranges::all_of(number, [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
}

std::vector<QByteArray> temporariesIn(const QByteArray &folder)
{
    std::vector<QByteArray> paths;
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(opendir(folder.constData()), closedir);
    while (const dirent *entry = entries ? readdir(entries.get()) : nullptr) {
        if (isTemporaryName(entry->d_name))
            paths.push_back(folder + entry->d_name);
    }
    return paths;
}

/// Whether the file is an abandoned temporary file. The lock is held until the file is closed.
bool takeAbandoned(FileSystemCalls &calls, int file)
{
    struct stat status = {};
    return calls.fstat(file, status) == 0 && S_ISREG(status.st_mode) && calls.lock(file) == 0;
}

} // namespace

QByteArray temporaryName(const QByteArray &folder, quint64 number)
{
    return folder + prefix.toByteArray() + QByteArray::number(number, 16) + '~';
}

bool claimTemporary(FileSystemCalls &calls, int file)
{
    // A file system without locks still allows writing, and nobody removes temporary files there.
    if (calls.lock(file) != 0)
        return errno != EWOULDBLOCK;
    struct stat status = {};
    return calls.fstat(file, status) != 0 || status.st_nlink > 0;
}

void sweepTemporaries(FileSystemCalls &calls, const QByteArray &folder)
{
    for (const QByteArray &path : temporariesIn(folder)) {
        // The flags avoid following links, waiting for pipes and acquiring a terminal.
        const int file = calls.open(path.constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
        if (file < 0)
            continue;
        if (takeAbandoned(calls, file))
            calls.unlink(path.constData());
        calls.close(file);
    }
}

} // namespace zephira
