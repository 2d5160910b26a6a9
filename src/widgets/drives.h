// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace zephira {

/// The root first, then the other mount points in alphabetical order, without duplicates.
QStringList drivesOf(QStringList mountPoints);

/// The mount points of the mounted volumes that contain files, in the same order.
QStringList mountedDrives();

} // namespace zephira
