// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/filewalk.h"

#include "files/utf8.h"

#include <QFile>

#include <algorithm>
#include <memory>
#include <tuple>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace zephira {

namespace {

struct CloseFolder {
    void operator()(DIR *folder) const { ::closedir(folder); }
};

struct Entry {
    QString folded;
    QByteArray path;
};

/// The paths in reverse order of their names, so that the first is taken from the end.
void appendReversed(std::vector<QByteArray> &to, std::vector<Entry> &entries)
{
    std::ranges::sort(entries, [](const Entry &a, const Entry &b) {
        return std::tie(a.folded, a.path) > std::tie(b.folded, b.path);
    });
    for (Entry &entry : entries)
        to.push_back(std::move(entry.path));
}

/// The type of an entry, as in a folder's listing; some file systems don't list it.
unsigned char typeOf(DIR *folder, const dirent &entry)
{
    if (entry.d_type != DT_UNKNOWN)
        return entry.d_type;
    struct stat status = {};
    if (::fstatat(::dirfd(folder), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return DT_UNKNOWN;
    return static_cast<unsigned char>(IFTODT(status.st_mode));
}

} // namespace

FileWalk::FileWalk(const QString &folder, std::function<bool(const QString &)> wanted) : m_wanted(std::move(wanted))
{
    QByteArray path = QFile::encodeName(folder);
    if (!path.endsWith('/'))
        path += '/';
    struct stat status = {};
    if (::stat(path.constData(), &status) != 0) {
        ++m_leftOut.unreadableFolders;
        return;
    }
    m_device = status.st_dev;
    m_folders.push_back(std::move(path));
}

std::optional<QByteArray> FileWalk::next()
{
    while (m_files.empty()) {
        if (m_folders.empty())
            return std::nullopt;
        const QByteArray folder = std::move(m_folders.back());
        m_folders.pop_back();
        read(folder);
    }
    QByteArray file = std::move(m_files.back());
    m_files.pop_back();
    return file;
}

void FileWalk::read(const QByteArray &folder)
{
    const std::unique_ptr<DIR, CloseFolder> listing(::opendir(folder.constData()));
    struct stat status = {};
    if (!listing || ::fstat(::dirfd(listing.get()), &status) != 0) {
        ++m_leftOut.unreadableFolders;
        return;
    }
    if (status.st_dev != m_device) {
        ++m_leftOut.otherFileSystems;
        return;
    }
    std::vector<Entry> files;
    std::vector<Entry> folders;
    while (const dirent *entry = ::readdir(listing.get())) {
        const QByteArrayView name(entry->d_name);
        const unsigned char type = typeOf(listing.get(), *entry);
        const bool isFolder = type == DT_DIR;
        if ((!isFolder && type != DT_REG) || (isFolder && name.startsWith('.')))
            continue;
        if (!isValidUtf8(name)) {
            ++m_leftOut.invalidNames;
            continue;
        }
        const QString text = QString::fromUtf8(name);
        if (isFolder)
            folders.push_back({text.toCaseFolded(), folder + name.toByteArray() + '/'});
        else if (m_wanted(text))
            files.push_back({text.toCaseFolded(), folder + name.toByteArray()});
    }
    appendReversed(m_files, files);
    appendReversed(m_folders, folders);
}

} // namespace zephira
