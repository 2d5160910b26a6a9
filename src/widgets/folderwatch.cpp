// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/folderwatch.h"

#include <QFileInfo>
#include <QFileSystemWatcher>

#include <utility>

namespace zephira {

namespace {

constexpr int millisecondsToCollect = 100;
constexpr int millisecondsToWatch = 100;
constexpr int millisecondsBetweenLooks = 500;
/// File systems stamp their folders with a clock that ticks this seldom or more often.
constexpr int millisecondsOfTick = 20;

QDateTime lastChange(const QString &folder)
{
    return QFileInfo(folder).lastModified();
}

} // namespace

FolderWatch::FolderWatch(QObject *parent) : QObject(parent)
{
    m_watchSoon.setSingleShot(true);
    m_watchSoon.setInterval(millisecondsToWatch);
    connect(&m_watchSoon, &QTimer::timeout, this, &FolderWatch::watchWaiting);
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
    if (m_vanished.contains(folder) && !QFileInfo::exists(folder))
        return; // It is looked for already.
    m_folders.insert(folder);
    m_vanished.remove(folder);
    m_waiting.insert(folder, {lastChange(folder), QDateTime::currentDateTime()});
    if (!m_watchSoon.isActive())
        m_watchSoon.start();
}

void FolderWatch::watchWaiting()
{
    const QHash<QString, Look> waiting = std::exchange(m_waiting, {});
    for (const auto &[folder, look] : waiting.asKeyValueRange()) {
        if (!watch(folder)) {
            m_folders.remove(folder);
            if (!look.changed.isValid() || QFileInfo::exists(folder))
                continue; // It can't be watched.
        }
        // A change in the same tick of the clock as the one before doesn't show in the time, so that a fresh folder
        // counts as changed.
        if (look.changed.msecsTo(look.asked) < millisecondsOfTick || lastChange(folder) != look.changed)
            folderChanged(folder);
    }
}

/// Begins the system's watch; false if the folder can't be watched.
bool FolderWatch::watch(const QString &folder)
{
    if (!m_watcher) {
        m_watcher = new QFileSystemWatcher(this);
        connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, &FolderWatch::folderChanged);
    }
    return m_watcher->addPath(folder);
}

void FolderWatch::forget(const QString &folder)
{
    const auto isForgotten = [&](const QString &gone) { return gone == folder || gone.startsWith(folder + u'/'); };
    m_vanished.removeIf(isForgotten);
    m_folders.removeIf([&](const QString &gone) { return m_waiting.contains(gone) && isForgotten(gone); });
    m_waiting.removeIf([&](const std::pair<const QString &, Look &> &gone) { return isForgotten(gone.first); });
}

void FolderWatch::clear()
{
    if (m_watcher && !m_folders.isEmpty())
        m_watcher->removePaths(m_folders.values());
    m_folders.clear();
    m_waiting.clear();
    m_watchSoon.stop();
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
        if (!watch(folder))
            continue;
        m_folders.insert(folder);
        m_vanished.remove(folder);
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
