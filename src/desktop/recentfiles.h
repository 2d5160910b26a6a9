// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <future>

namespace zephira {

class FileStore;

/// Tells the desktop which files the user has opened, through the list of recent files that all programs of the user
/// share. It is written in a thread of its own, a moment after a file was opened, so that nobody waits for it. A list
/// that can't be understood is left alone, and nothing is written for users who want no such list.
class RecentFiles final : public QObject
{
    Q_OBJECT

public:
    struct Places {
        /// The folder of the user's data, where the list is, and that of the desktop's settings.
        QString dataHome;
        QString configHome;
        /// Full path of this program.
        QString executable;
    };

    /// How many entries of this program alone the list may have.
    static constexpr int maximum = 100;

    /// The store is also used in the thread; it must outlive this object.
    RecentFiles(FileStore &files, Places places);
    /// Writes what is not in the list yet.
    ~RecentFiles() override;

    /// The file was opened, or saved under its name, now. A name that isn't a file's has no effect.
    void note(const QString &path);

private:
    struct Use {
        QString path;
        QDateTime time;
    };

    void begin();
    static void write(FileStore &files, const Places &places, const QList<Use> &uses);

    FileStore &m_files;
    const Places m_places;
    QList<Use> m_uses;
    QTimer m_timer;
    std::future<void> m_writing;
};

/// Whether one of the desktop's settings says that the user wants no list of recent files: `gtk-recent-files-enabled` or
/// `gtk-recent-files-max-age` in a settings.ini, or `UseRecent` in a kdeglobals.
bool forbidsRecentFiles(QByteArrayView settings);

/// The command that opens a file with the program, as the list wants it: in single quotes, "%f" for the file.
QString recentCommand(const QString &executable);

} // namespace zephira
