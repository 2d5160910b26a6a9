// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/folderwatch.h"

#include <QFileSystemWatcher>

#include <utility>

namespace zephira {

namespace {

constexpr int millisecondsToCollect = 100;
constexpr int millisecondsBetweenLooks = 500;

} // namespace

FolderWatch::FolderWatch(QObject *parent) : QObject(parent)
{
    m_tellSoon.setSingleShot(true);
    m_tellSoon.setInterval(millisecondsToCollect);
    connect(&m_tellSoon, &QTimer::timeout, this, &FolderWatch::tell);
    m_look.setInterval(millisecondsBetweenLooks);
    connect(&m_look, &QTimer::timeout, this, &FolderWatch::lookForVanished);
}

void FolderWatch::add(const QString &folder)
{
    if (folder.isEmpty() || m_folders.contains(folder))
        return;
    if (!m_watcher) {
        m_watcher = new QFileSystemWatcher(this);
        connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, &FolderWatch::folderChanged);
    }
    if (m_watcher->addPath(folder)) {
        m_folders.insert(folder);
        m_vanished.remove(folder);
    }
}

void FolderWatch::forget(const QString &folder)
{
    m_vanished.removeIf([&](const QString &gone) { return gone == folder || gone.startsWith(folder + u'/'); });
}

void FolderWatch::clear()
{
    if (!m_folders.isEmpty())
        m_watcher->removePaths(m_folders.values());
    m_folders.clear();
    m_changed.clear();
    m_vanished.clear();
    m_tellSoon.stop();
    m_look.stop();
}

void FolderWatch::folderChanged(const QString &folder)
{
    if (!m_watcher->directories().contains(folder)) {
        m_folders.remove(folder);
        m_vanished.insert(folder);
        m_look.start();
    }
    m_changed.insert(folder);
    // A running timer isn't restarted: endless changes must not delay the signal for ever.
    if (!m_tellSoon.isActive())
        m_tellSoon.start();
}

void FolderWatch::lookForVanished()
{
    const QSet<QString> vanished = m_vanished;
    for (const QString &folder : vanished) {
        add(folder);
        if (contains(folder))
            folderChanged(folder);
    }
    if (m_vanished.isEmpty())
        m_look.stop();
}

void FolderWatch::tell()
{
    Q_EMIT changed(std::exchange(m_changed, {}));
}

} // namespace zephira
