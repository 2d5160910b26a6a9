// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QPixmap>

namespace zephira {

class FileStore;

/// Pictures with more pixels are refused with a message before memory is allocated for them.
constexpr qint64 maximumPicturePixels = 100'000'000;

/// The first picture of a file in any readable format, which is determined by the content, not the name.
Result<QPixmap> readPicture(const FileStore &files, const QString &path);

} // namespace zephira
