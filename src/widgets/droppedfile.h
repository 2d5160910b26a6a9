// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QMimeData;

namespace zephira {

/// Full path of the first local file in the dropped data, or empty. Further files are ignored.
QString droppedFile(const QMimeData *data);

} // namespace zephira
