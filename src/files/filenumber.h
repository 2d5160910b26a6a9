// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QStringList>

namespace zephira {

class FileStore;

/// The one file number through which the program's lists are read. A reading that fails doesn't give the number back, so
/// that each later one fails too, with the words "File already open", until the program ends.
class FileNumber
{
public:
    explicit FileNumber(const FileStore &files) : m_files(files) {}
    Q_DISABLE_COPY_MOVE(FileNumber)

    /// The lines of a file. One that has fewer than `least` fails with the words "Input past end of file".
    Result<QStringList> readLines(const QString &path, qsizetype least = 0);

private:
    const FileStore &m_files;
    bool m_inUse = false;
};

} // namespace zephira
