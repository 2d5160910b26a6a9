// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/filerow.h"
#include "ftp/internetoperations.h"

#include <QStringList>

namespace zephira {

/// The entries of a server folder: names of folders, and rows for its files, both in the server's order.
struct RemoteListing {
    QStringList folders;
    std::vector<FileRow> files;
};

/// Lists what matches the search path. A listing that can't be had is empty. Names are cut at their first NUL; entries
/// whose name could not stand for a file of one folder are left out.
RemoteListing readRemoteListing(InternetOperations &operations, InternetHandle connection, const QString &searchPath);

/// The row of a server's file. Of its size only the lower 32 bits are looked at.
FileRow remoteFileRow(const FindData &entry);

/// Day, month and year, directly followed by hour and minute; only the minute is padded: "5.3.20019:07".
QString remoteDateText(quint64 fileTime);

} // namespace zephira
