// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QMimeData;

namespace zephira {

/// Full path of the first file on this computer in what is dropped, or empty. The others don't count.
QString droppedFile(const QMimeData *data);

} // namespace zephira
