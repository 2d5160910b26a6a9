// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

#include <sys/types.h>

namespace zephira {

/// Walks through the regular files of a folder and of the folders below it: first a folder's own files, then its folders,
/// each in the order of their names. Symbolic links are not followed, hidden folders and those of other file systems are
/// left out, and so are names that aren't valid text, because no file can be opened by them.
class FileWalk
{
public:
    /// What was left out so far.
    struct LeftOut {
        int unreadableFolders = 0;
        int otherFileSystems = 0;
        int invalidNames = 0;

        friend bool operator==(const LeftOut &, const LeftOut &) = default;
    };

    /// @param folder  a full path; it may be a symbolic link
    /// @param wanted  chooses files by their names
    FileWalk(const QString &folder, std::function<bool(const QString &name)> wanted);

    /// The full path of the next file in the system's encoding; nothing at the end.
    std::optional<QByteArray> next();
    const LeftOut &leftOut() const { return m_leftOut; }

private:
    void read(const QByteArray &folder);

    std::function<bool(const QString &)> m_wanted;
    LeftOut m_leftOut;
    dev_t m_device = 0;
    /// What is still to be visited, the next one last. Folders end in a separator.
    std::vector<QByteArray> m_folders;
    std::vector<QByteArray> m_files;
};

} // namespace zephira
