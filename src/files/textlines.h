// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QStringList>

namespace zephira {

class FileStore;

/// The lines of a text without their line ends, which may be CR LF, LF, CR or a mixture. A line end at the end of the
/// text doesn't start another line, so an empty text has no lines and a single line end is one blank line.
QStringList textLines(const QString &text);

/// The lines of a file in any encoding that decodeText() knows. Fails for a file with maximumLineCount lines or more.
Result<QStringList> readLines(const FileStore &files, const QString &path);

/// A file with this many line ends can't be a hand-written list.
constexpr qsizetype maximumLineCount = 1'000'000;

} // namespace zephira
