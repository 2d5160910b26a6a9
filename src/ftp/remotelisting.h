// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/internetoperations.h"
#include "widgets/filerow.h"

#include <QStringList>

namespace zephira {

/// The entries of a server folder: the names of its folders and the rows for its files, both in the server's order.
struct RemoteListing {
    QStringList folders;
    std::vector<FileRow> files;
};

/// Lists what matches the search path; the result is empty if the listing fails. Names are cut at their first NUL;
/// entries are skipped if their name isn't a safe name for a file in a folder.
RemoteListing readRemoteListing(InternetOperations &operations, InternetHandle connection, const QString &searchPath);

/// The row for a file on the server. Only the lower 32 bits of its size are used.
FileRow remoteFileRow(const FindData &entry);

/// Day, month and year, directly followed by hour and minute; only the minute is padded: "5.3.20019:07".
QString remoteDateText(quint64 fileTime);

} // namespace zephira
