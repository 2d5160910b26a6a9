// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/filetypekeys.h"
#include "core/filetypestore.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace zephira {

class FileStore;
struct DesktopTypes;

/// Keeps the types of files in a file of the user's own, and makes a freedesktop desktop follow them: through a package
/// of MIME types, a desktop entry and the user's list of default programs. Nothing but the user's data and settings is
/// written. As soon as this program opens nothing any more, that list is again what it was, byte for byte.
class DesktopFileTypes final : public FileTypeStore
{
public:
    struct Places {
        /// The user's folders of data and of settings, without trailing separators.
        QString dataHome;
        QString configHome;
        /// The program that opens the files, and its icon.
        QString executable;
        QString icon;
    };
    DesktopFileTypes(FileStore &files, Places places);

    void createKey(const QString &key, const QString &subKey = {}) override;
    QString readValue(const QString &key, const QString &subKey, const QString &name) const override;
    void setValue(const QString &key, const QString &subKey, const QString &name, const QString &text) override;
    void deleteKey(const QString &key) override;
    Result<void> refresh() override;
    Result<void> commit() override;

private:
    /// A file's content; nothing if there is no such file.
    using Content = std::optional<QByteArray>;
    struct Change {
        QString path;
        Content content;
    };

    QString keysFile() const;
    Result<Content> read(const QString &path) const;
    /// Creates, replaces or removes a file.
    Result<void> put(const Change &change);
    /// Makes all of the changes or none.
    Result<void> putAll(const std::vector<Change> &changes);
    /// What the user's list of programs becomes, and the record of what it was.
    Result<std::vector<Change>> listChanges(const DesktopTypes &types) const;

    FileStore &m_files;
    const Places m_places;
    FileTypeKeys m_keys;
    /// As they are in the file.
    FileTypeKeys m_kept;
};

} // namespace zephira
