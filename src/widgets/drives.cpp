// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/drives.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace zephira {

QStringList drivesOf(QStringList mountPoints)
{
    mountPoints.removeAll(QDir::rootPath());
    mountPoints.sort();
    mountPoints.removeDuplicates();
    mountPoints.prepend(QDir::rootPath());
    return mountPoints;
}

QStringList mountedDrives()
{
    QStringList mountPoints;
    const QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    for (const QStorageInfo &volume : volumes) {
        // Pseudo file systems have no size and no files to edit. A mount point can also be a single file.
        if (volume.isReady() && volume.bytesTotal() > 0 && QFileInfo(volume.rootPath()).isDir())
            mountPoints.append(volume.rootPath());
    }
    return drivesOf(std::move(mountPoints));
}

} // namespace zephira
