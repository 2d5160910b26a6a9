// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QPixmap>

namespace zephira {

class FileStore;

/// Pictures with more pixels than this are refused with a message, before memory is taken for them.
constexpr qint64 maximumPicturePixels = 100'000'000;

/// The first picture of a file in any format that can be read; the format is told by the content, not the name.
Result<QPixmap> readPicture(const FileStore &files, const QString &path);

} // namespace zephira
