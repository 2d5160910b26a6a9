// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QStringList>

namespace zephira {

class FileStore;

/// The lines of a text without their ends, which may be CR LF, LF or CR, also mixed. An end after the last line begins
/// no further line, so that an empty text has none and a line end alone is one blank line.
QStringList textLines(const QString &text);

/// The lines of a file in whatever encoding it comes. A file of more lines than a list can show within reason is refused.
Result<QStringList> readLines(const FileStore &files, const QString &path);

/// From this many line ends on a file is no list that a person made.
constexpr qsizetype maximumLineCount = 1'000'000;

} // namespace zephira
