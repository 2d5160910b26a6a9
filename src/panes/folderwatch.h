// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

class QFileSystemWatcher;

namespace zephira {

/// Tells when names appear in some folders, or vanish. One command of the user's can change a folder a thousand times, so
/// the changes are collected for a tenth of a second. A folder that can't be watched is never told of; one that vanished is
/// told of again when it is back. Paths have no separator at their end.
class FolderWatch : public QObject
{
    Q_OBJECT

public:
    explicit FolderWatch(QObject *parent = nullptr);

    void add(const QString &folder);
    /// No longer waits for a folder that vanished, nor for those that were below it.
    void forget(const QString &folder);
    void clear();
    /// Whether changes of the folder will be told; no longer true once it has vanished itself.
    bool contains(const QString &folder) const { return m_folders.contains(folder); }

Q_SIGNALS:
    void changed(const QSet<QString> &folders);

private:
    void folderChanged(const QString &folder);
    void tell();
    void lookForVanished();

    /// Made with the first folder, because most starts of the program need none.
    QFileSystemWatcher *m_watcher = nullptr;
    QSet<QString> m_folders;
    QSet<QString> m_changed;
    QTimer m_tellSoon;
    /// The folders that were watched until they vanished, and the looking for them, which nobody else tells of.
    QSet<QString> m_vanished;
    QTimer m_look;
};

} // namespace zephira
