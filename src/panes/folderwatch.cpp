// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/folderwatch.h"

#include <QFileSystemWatcher>

#include <utility>

namespace zephira {

namespace {

constexpr int millisecondsToCollect = 100;

} // namespace

FolderWatch::FolderWatch(QObject *parent) : QObject(parent)
{
    m_tellSoon.setSingleShot(true);
    m_tellSoon.setInterval(millisecondsToCollect);
    connect(&m_tellSoon, &QTimer::timeout, this, &FolderWatch::tell);
}

void FolderWatch::add(const QString &folder)
{
    if (folder.isEmpty() || m_folders.contains(folder))
        return;
    if (!m_watcher) {
        m_watcher = new QFileSystemWatcher(this);
        connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, &FolderWatch::folderChanged);
    }
    if (m_watcher->addPath(folder))
        m_folders.insert(folder);
}

void FolderWatch::clear()
{
    if (!m_folders.isEmpty())
        m_watcher->removePaths(m_folders.values());
    m_folders.clear();
    m_changed.clear();
    m_tellSoon.stop();
}

void FolderWatch::folderChanged(const QString &folder)
{
    if (!m_watcher->directories().contains(folder))
        m_folders.remove(folder);
    m_changed.insert(folder);
    // A timer that is running is left alone: endless changes must not put the news off for ever.
    if (!m_tellSoon.isActive())
        m_tellSoon.start();
}

void FolderWatch::tell()
{
    Q_EMIT changed(std::exchange(m_changed, {}));
}

} // namespace zephira
