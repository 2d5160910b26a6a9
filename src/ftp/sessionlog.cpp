// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/sessionlog.h"

#include <QLocale>

#include <algorithm>

namespace zephira {

namespace {

/// In a template, "%t" stands for the time of day, "%d" for the date, and "%1" and "%2" for the parts.
struct LogForm {
    LogEntry entry;
    QStringView form;
};

constexpr LogForm logForms[] = {
    {LogEntry::Banner, u"%d, %t *** %1 ***\r\n%t > Connecting to: %2...\r\n"},
    {LogEntry::ServiceFailed, u"Connection to service failed.\r\n"},
    {LogEntry::HostSearched, u"%t > Connected to service, looking for host.\r\n"},
    {LogEntry::ServerFailed, u"%t > Connection to server failed.\r\n"},
    {LogEntry::Connected, u"%t > Connected to server.\r\n"},
    {LogEntry::Disconnected, u"%t > Server disconnected.\r\n"},
    {LogEntry::ListingBegun, u"%t > Transfering data...\r\n"},
    {LogEntry::FolderOpened, u"%t > Opening folder: \"%1\"\r\n"},
    {LogEntry::ListingDone, u"%t > Data transfer completed succesfully.\r\n"},
    {LogEntry::DownloadQueued, u"%t > Colecting informations about files:\r\n"},
    {LogEntry::UploadQueued, u"%t > Colecting files information:\r\n"},
    {LogEntry::QueuedFile, u"%1.) %2\r\n"},
    {LogEntry::DownloadBegun, u"%t > Accomplishing data transfer...\r\n > Downloading from: %1, to: %2\r\n"},
    {LogEntry::UploadBegun, u"%t > Begining data transfer...\r\n > Uploading from: %1, to: %2\r\n"},
    {LogEntry::Done, u"%t > OK\r\n"},
    {LogEntry::DownloadRefused, u"%t > Can't open file path! Request canceled!\r\n"},
    {LogEntry::UploadRefused, u"%t > Cant create requested file on server! request canceled!\r\n"},
    {LogEntry::UploadFailed, u"%t > Could Not Download!\r\n"},
    {LogEntry::LocalFileFailed, u"%t > %1\r\n"},
    {LogEntry::RenameBegun, u"%t > Sending request to rename file: \"%1\" to: \"%2\"\r\n"},
    {LogEntry::Renamed, u"%t > File renamed to: \"%1\"\r\n"},
    {LogEntry::RenameFailed, u"%t > request accomplished with no success at all!\r\n"},
    {LogEntry::RenameError, u"%t > wrong file parameter!\r\n"},
    {LogEntry::FolderRemovalBegun, u"%t > Sending request to remove folder: %1\r\n"},
    {LogEntry::FolderRemoved, u"%t > Request accomplished successfuly.\r\n"},
    {LogEntry::FolderRemovalFailed, u"%t > An error occured while removing folder!\r\n"},
    {LogEntry::FolderCreationBegun, u"%t > Sending request to create folder: %1\r\n"},
    {LogEntry::FolderCreated, u"%t > Folder created.\r\n"},
    {LogEntry::FolderCreationFailed, u"%t > An error osccured while creating folder!\r\n"},
    {LogEntry::FolderCreationError, u"%t > Wrong folder parameter.\r\n"},
    {LogEntry::DeletionBegun, u"%t > Sending request.\r\n"},
    {LogEntry::FileDeletion, u"%t > Deleting: %1\r\n"},
    {LogEntry::DeletionFailed, u"%t > An error occured while deleting file!\r\n"},
};

/// The text for a mark in a template. A missing part is empty.
QString meaning(QChar mark, const QDateTime &now, const QStringList &parts)
{
    if (mark == u't')
        return timeOfDay(now);
    if (mark == u'd')
        return QLocale::system().toString(now.date(), QLocale::ShortFormat);
    return parts.value(mark.digitValue() - 1);
}

} // namespace

QString logText(LogEntry entry, const QDateTime &now, const QStringList &parts)
{
    const QStringView form = std::ranges::find(logForms, entry, &LogForm::entry)->form;
    // The parts are not expanded: a name that looks like a mark stays as it is.
    QString text;
    for (qsizetype i = 0; i < form.size(); ++i) {
        if (form[i] == u'%')
            text += meaning(form[++i], now, parts);
        else
            text += form[i];
    }
    return text;
}

QString timeOfDay(const QDateTime &time)
{
    return QLocale::system().toString(time.time(), QLocale::ShortFormat);
}

} // namespace zephira
