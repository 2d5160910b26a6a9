// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QStringList>

namespace zephira {

class FileStore;

/// The single file number through which the program's lists are read. A failed read doesn't release the number, so that
/// every later read fails with "File already open" until the program ends.
class FileNumber
{
public:
    explicit FileNumber(const FileStore &files) : m_files(files) {}
    Q_DISABLE_COPY_MOVE(FileNumber)

    /// The lines of a file. Fails with "Input past end of file" if there are fewer than `least`.
    Result<QStringList> linesOf(const QString &path, qsizetype least = 0);

private:
    const FileStore &m_files;
    bool m_inUse = false;
};

} // namespace zephira
