// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/remotelisting.h"

#include "core/vbtext.h"
#include "ftp/safenames.h"
#include "widgets/fileimages.h"

using namespace Qt::StringLiterals;

namespace zephira {

RemoteListing readRemoteListing(InternetOperations &operations, InternetHandle connection, const QString &searchPath)
{
    RemoteListing listing;
    FindData entry;
    const InternetHandle find = operations.FtpFindFirstFileA(connection, searchPath, entry,
                                                             INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE, 0);
    for (bool found = find != 0; found; found = operations.InternetFindNextFileA(find, entry)) {
        if (const qsizetype end = entry.fileName.indexOf(QChar::Null); end >= 0)
            entry.fileName.truncate(end);
        if (!isSafeRemoteName(entry.fileName))
            continue;
        if (entry.isFolder())
            listing.folders.append(entry.fileName);
        else
            listing.files.push_back(remoteFileRow(entry));
    }
    // A listing that failed to start is closed as well; handle 0 does no harm.
    operations.InternetCloseHandle(find);
    return listing;
}

FileRow remoteFileRow(const FindData &entry)
{
    constexpr double kilobyte = 1024;
    return {.name = entry.fileName,
            .size = Format(entry.sizeLow / kilobyte, u"### ### ###.##") + u"Kb"_s,
            .date = remoteDateText(entry.lastWriteTime),
            .bytes = QString::number(entry.sizeLow),
            .image = imageForFile(entry.fileName)};
}

QString remoteDateText(quint64 fileTime)
{
    SystemTime time;
    FileTimeToSystemTime(fileTime, time);
    return u"%1.%2.%3%4:%5"_s.arg(time.day)
        .arg(time.month)
        .arg(time.year)
        .arg(time.hour)
        .arg(time.minute, 2, 10, QChar(u'0'));
}

} // namespace zephira
