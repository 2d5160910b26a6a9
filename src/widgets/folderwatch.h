// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

class QFileSystemWatcher;

namespace zephira {

/// Reports when names appear in or vanish from some folders. A single user command can change a folder a thousand
/// times, so changes are collected for a tenth of a second. A folder that can't be watched is never reported; a folder
/// that vanished is reported again when it is back. Paths have no trailing separator.
///
/// The system's watch of a folder begins a tenth of a second after add(): in a folder with many names it takes the
/// kernel milliseconds, and must not delay the window's first picture. Changes in between are reported as well.
class FolderWatch : public QObject
{
    Q_OBJECT

public:
    explicit FolderWatch(QObject *parent = nullptr);

    void add(const QString &folder);
    /// Stops waiting for a folder that vanished, and for those that were below it.
    void forget(const QString &folder);
    void clear();
    /// Whether changes of the folder will be reported; false once it has vanished.
    bool contains(const QString &folder) const { return m_folders.contains(folder); }

Q_SIGNALS:
    void changed(const QSet<QString> &folders);

private:
    /// When the names in a folder last changed, and when that was asked.
    struct Look {
        QDateTime changed;
        QDateTime asked;
    };

    void watchWaiting();
    bool watch(const QString &folder);
    void folderChanged(const QString &folder);
    void tell();
    void lookForVanished();

    /// Created with the first folder, because most starts of the program need none.
    QFileSystemWatcher *m_watcher = nullptr;
    QSet<QString> m_folders;
    /// The folders that the system doesn't watch yet.
    QHash<QString, Look> m_waiting;
    QTimer m_watchSoon;
    QSet<QString> m_changed;
    QTimer m_tellSoon;
    /// The watched folders that have vanished, and a timer to look for them, because nothing signals their return.
    QSet<QString> m_vanished;
    QTimer m_look;
};

} // namespace zephira
