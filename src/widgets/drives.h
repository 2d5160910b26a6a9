// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace zephira {

/// The root first, then the other mount points in alphabetical order, each once.
QStringList drivesOf(QStringList mountPoints);

/// The volumes that are mounted now and hold files, by their mount points, in that order.
QStringList mountedDrives();

} // namespace zephira
