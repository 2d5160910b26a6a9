// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/extensionchange.h"
#include "ftp/ftpcommandtables.h"
#include "ftp/recordingoperations.h"
#include "ftp/remotelisting.h"
#include "ftp/sessionlog.h"
#include "ftp/shownfolder.h"
#include "ftp/transferqueue.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The small rules of the file transfer: dates, paths, texts and tables.
class TstFtpRules final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void extensionQuestion_data();
    void extensionQuestion();
    void date_data();
    void date();
    void remoteRow_data();
    void remoteRow();
    void listing();
    void shownFolder_data();
    void shownFolder();
    void queueTexts();
    void logForms_data();
    void logForms();
    void everyToolKeyHasItsEntry();
};

void TstFtpRules::extensionQuestion_data()
{
    QTest::addColumn<QString>("oldName");
    QTest::addColumn<QString>("newName");
    QTest::addColumn<QString>("text");
    const QString none;
    QTest::newRow("htm to html") << u"a.htm"_s << u"a.html"_s
                                 << u"Are you sure to exchange the file extension from: \"htm\" to: \"html\""_s;
    QTest::newRow("before the point") << u"a.htm"_s << u"b.htm"_s << none;
    QTest::newRow("a new one") << u"readme"_s << u"readme.txt"_s
                               << u"Are you sure to exchange the file extension from: \"\" to: \"txt\""_s;
    QTest::newRow("taken away") << u"a.txt"_s << u"a"_s
                                << u"Are you sure to exchange the file extension from: \"txt\" to: \"\""_s;
    QTest::newRow("another case") << u"a.htm"_s << u"a.HTM"_s
                                  << u"Are you sure to exchange the file extension from: \"htm\" to: \"HTM\""_s;
    QTest::newRow("the last point counts") << u"a.tar.gz"_s << u"a.zip.gz"_s << none;
}

void TstFtpRules::extensionQuestion()
{
    QFETCH(QString, oldName);
    QFETCH(QString, newName);
    QFETCH(QString, text);
    const ExtensionChange change(oldName, newName);
    QCOMPARE(change.isNone(), text.isEmpty());
    if (!text.isEmpty())
        QCOMPARE(change.question(), (Question{text, {}, Question::Icon::Question, Question::Buttons::YesNo}));
}

void TstFtpRules::date_data()
{
    QTest::addColumn<quint64>("time");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const SystemTime &time, const QString &text) {
        QTest::newRow(name) << systemTimeToFileTime(time).value() << text;
    };
    row("the blank is missing", {2001, 3, 5, 9, 7, 0}, u"5.3.20019:07"_s);
    row("two digits", {2023, 12, 31, 23, 59, 59}, u"31.12.202323:59"_s);
    row("midnight", {1999, 1, 1, 0, 0, 0}, u"1.1.19990:00"_s);
    row("ten past", {2024, 2, 29, 13, 10, 0}, u"29.2.202413:10"_s);
    QTest::newRow("none given") << static_cast<quint64>(0) << u"1.1.16010:00"_s;
}

void TstFtpRules::date()
{
    QFETCH(quint64, time);
    QTEST(remoteDateText(time), "text");
}

void TstFtpRules::remoteRow_data()
{
    QTest::addColumn<quint64>("bytes");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("exact");
    QTest::newRow("empty") << static_cast<quint64>(0) << u"0Kb"_s << u"0"_s;
    QTest::newRow("half a kilobyte") << static_cast<quint64>(512) << u"0.5Kb"_s << u"512"_s;
    QTest::newRow("a kilobyte") << static_cast<quint64>(1024) << u"1Kb"_s << u"1024"_s;
    QTest::newRow("decimals") << static_cast<quint64>(1500) << u"1.46Kb"_s << u"1500"_s;
    QTest::newRow("groups") << static_cast<quint64>(1234567890) << u"1 205 632.71Kb"_s << u"1234567890"_s;
    QTest::newRow("just below 4 GiB") << static_cast<quint64>(4294967295) << u"4 194 304Kb"_s << u"4294967295"_s;
    QTest::newRow("4 GiB") << static_cast<quint64>(4294967296) << u"0Kb"_s << u"0"_s;
    QTest::newRow("above 4 GiB") << static_cast<quint64>(4294967296 + 2048) << u"2Kb"_s << u"2048"_s;
}

void TstFtpRules::remoteRow()
{
    QFETCH(quint64, bytes);
    QFETCH(QString, size);
    QFETCH(QString, exact);
    const FileRow expected{u"page.html"_s, size, u"5.3.20019:07"_s, exact, 2};
    QCOMPARE(remoteFileRow(foundFile(u"page.html"_s, bytes)), expected);
}

void TstFtpRules::listing()
{
    RecordingOperations operations;
    FindData cut = foundFile(u"cut.txt"_s, 1);
    cut.fileName += QChar::Null + u"rest"_s;
    FindData hiddenFolder = foundFolder(u"docs"_s);
    hiddenFolder.attributes |= 2;
    FindData oddFile = foundFile(u"odd.gif"_s, 2);
    oddFile.attributes = 0xffffffef;
    operations.folders[u"/*.*"_s] = {foundFolder(u"pub"_s), foundFile({}, 1),       cut,     hiddenFolder,
                                     foundFolder(u".."_s),  foundFile(u"a/b"_s, 1), oddFile, foundFile(u"..\\x"_s, 1)};
    const RemoteListing listing = readRemoteListing(operations, 7, u"/*.*"_s);
    QCOMPARE(listing.folders, (QStringList{u"pub"_s, u"docs"_s}));
    QCOMPARE(listing.files.size(), static_cast<std::size_t>(2));
    QCOMPARE(listing.files[0].name, u"cut.txt"_s);
    QCOMPARE(listing.files[1].name, u"odd.gif"_s);
    QCOMPARE(operations.log.first(), u"FtpFindFirstFileA(7, \"/*.*\", 0x84000000, 0)"_s);
    QCOMPARE(operations.log.last(), u"InternetCloseHandle(1)"_s);

    operations.log.clear();
    const RemoteListing nothing = readRemoteListing(operations, 7, u"/empty/*.*"_s);
    QVERIFY(nothing.folders.isEmpty() && nothing.files.empty());
    QCOMPARE(operations.log,
             (QStringList{u"FtpFindFirstFileA(7, \"/empty/*.*\", 0x84000000, 0)"_s, u"InternetCloseHandle(0)"_s}));
}

void TstFtpRules::shownFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("shown");
    const QString thirty = u"/home/somebody/projects/page1/"_s;
    QCOMPARE(thirty.size(), 30);
    QTest::newRow("30 characters") << thirty << thirty;
    QTest::newRow("31 characters") << u"/"_s + thirty << u"..."_s + thirty;
    QTest::newRow("the last 30") << u"/srv"_s + thirty << u"..."_s + thirty;
    QTest::newRow("trimmed as a whole") << u"/x/ 2345678901234567890123456789 "_s
                                        << u"... 2345678901234567890123456789"_s;
    QTest::newRow("root") << u"/"_s << u"/"_s;
}

void TstFtpRules::shownFolder()
{
    QFETCH(QString, folder);
    QTEST(zephira::shownFolder(folder), "shown");
}

void TstFtpRules::queueTexts()
{
    TransferQueue queue{TransferQueue::Direction::Download, {{u"a"_s, 5'000'000'000}, {u"b"_s, 24}}};
    QCOMPARE(queue.total(), 5'000'000'024);
    QCOMPARE(queue.countText(), u"File:             /2"_s);
    QCOMPARE(queue.startCaption(), u"Download"_s);
    QCOMPARE(queue.movedCaption(), u"Bytes received:"_s);
    queue.direction = TransferQueue::Direction::Upload;
    QCOMPARE(queue.countText(), u"File:       /2"_s);
    QCOMPARE(queue.startCaption(), u"Upload"_s);
    QCOMPARE(queue.movedCaption(), u"Bytes send:"_s);
}

void TstFtpRules::logForms_data()
{
    QTest::addColumn<LogEntry>("entry");
    QTest::addColumn<QStringList>("parts");
    QTest::addColumn<QString>("text");
    // "t" and "d" stand for the time and the date.
    const auto row = [](const char *name, LogEntry entry, const QStringList &parts, const QString &text) {
        QTest::newRow(name) << entry << parts << text;
    };
    row("banner", LogEntry::Banner, {u"MY SITE"_s, u"ftp.example.com"_s},
        u"d, t *** MY SITE ***\r\nt > Connecting to: ftp.example.com...\r\n"_s);
    row("service failed", LogEntry::ServiceFailed, {}, u"Connection to service failed.\r\n"_s);
    row("host searched", LogEntry::HostSearched, {}, u"t > Connected to service, looking for host.\r\n"_s);
    row("server failed", LogEntry::ServerFailed, {}, u"t > Connection to server failed.\r\n"_s);
    row("connected", LogEntry::Connected, {}, u"t > Connected to server.\r\n"_s);
    row("disconnected", LogEntry::Disconnected, {}, u"t > Server disconnected.\r\n"_s);
    row("listing begun", LogEntry::ListingBegun, {}, u"t > Transfering data...\r\n"_s);
    row("folder opened", LogEntry::FolderOpened, {u"/pub/*.*"_s}, u"t > Opening folder: \"/pub/*.*\"\r\n"_s);
    row("listing done", LogEntry::ListingDone, {}, u"t > Data transfer completed succesfully.\r\n"_s);
    row("download queued", LogEntry::DownloadQueued, {}, u"t > Colecting informations about files:\r\n"_s);
    row("upload queued", LogEntry::UploadQueued, {}, u"t > Colecting files information:\r\n"_s);
    row("queued file", LogEntry::QueuedFile, {u"3"_s, u"/pub/a.htm"_s}, u"3.) /pub/a.htm\r\n"_s);
    row("download begun", LogEntry::DownloadBegun, {u"/r/a"_s, u"/l/a"_s},
        u"t > Accomplishing data transfer...\r\n > Downloading from: /r/a, to: /l/a\r\n"_s);
    row("upload begun", LogEntry::UploadBegun, {u"/l/a"_s, u"/r/a"_s},
        u"t > Begining data transfer...\r\n > Uploading from: /l/a, to: /r/a\r\n"_s);
    row("done", LogEntry::Done, {}, u"t > OK\r\n"_s);
    row("download refused", LogEntry::DownloadRefused, {}, u"t > Can't open file path! Request canceled!\r\n"_s);
    row("upload refused", LogEntry::UploadRefused, {},
        u"t > Cant create requested file on server! request canceled!\r\n"_s);
    row("upload failed", LogEntry::UploadFailed, {}, u"t > Could Not Download!\r\n"_s);
    row("rename begun", LogEntry::RenameBegun, {u"a.htm"_s, u"b.htm"_s},
        u"t > Sending request to rename file: \"a.htm\" to: \"b.htm\"\r\n"_s);
    row("renamed", LogEntry::Renamed, {u"b.htm"_s}, u"t > File renamed to: \"b.htm\"\r\n"_s);
    row("rename failed", LogEntry::RenameFailed, {}, u"t > request accomplished with no success at all!\r\n"_s);
    row("rename error", LogEntry::RenameError, {}, u"t > wrong file parameter!\r\n"_s);
    row("removal begun", LogEntry::FolderRemovalBegun, {u"/pub"_s},
        u"t > Sending request to remove folder: /pub\r\n"_s);
    row("removed", LogEntry::FolderRemoved, {}, u"t > Request accomplished successfuly.\r\n"_s);
    row("removal failed", LogEntry::FolderRemovalFailed, {}, u"t > An error occured while removing folder!\r\n"_s);
    row("creation begun", LogEntry::FolderCreationBegun, {u"/pub"_s},
        u"t > Sending request to create folder: /pub\r\n"_s);
    row("created", LogEntry::FolderCreated, {}, u"t > Folder created.\r\n"_s);
    row("creation failed", LogEntry::FolderCreationFailed, {}, u"t > An error osccured while creating folder!\r\n"_s);
    row("creation error", LogEntry::FolderCreationError, {}, u"t > Wrong folder parameter.\r\n"_s);
    row("deletion begun", LogEntry::DeletionBegun, {}, u"t > Sending request.\r\n"_s);
    row("file deletion", LogEntry::FileDeletion, {u"a.htm"_s}, u"t > Deleting: a.htm\r\n"_s);
    row("deletion failed", LogEntry::DeletionFailed, {}, u"t > An error occured while deleting file!\r\n"_s);
    row("a name full of marks", LogEntry::RenameBegun, {u"%2%t"_s, u"%1%d%%"_s},
        u"t > Sending request to rename file: \"%2%t\" to: \"%1%d%%\"\r\n"_s);
}

void TstFtpRules::logForms()
{
    QFETCH(LogEntry, entry);
    QFETCH(QStringList, parts);
    QFETCH(QString, text);
    const QDateTime now(QDate(2001, 3, 5), QTime(9, 7, 2));
    const QString time = QLocale::system().toString(now.time(), QLocale::ShortFormat);
    const QString date = QLocale::system().toString(now.date(), QLocale::ShortFormat);
    if (text.startsWith(u"d, t"))
        text.replace(0, 4, date + u", "_s + time);
    text.replace(u"\r\nt > Connecting"_s, u"\r\n"_s + time + u" > Connecting"_s);
    if (text.startsWith(u"t >"))
        text.replace(0, 1, time);
    QCOMPARE(logText(entry, now, parts), text);
}

void TstFtpRules::everyToolKeyHasItsEntry()
{
    QStringList entries;
    const auto collect = [&](const auto &self, std::span<const FtpMenuItem> items) -> void {
        for (const FtpMenuItem &item : items) {
            QVERIFY2(!entries.contains(item.name.toString()), "an entry stands twice in the menus");
            entries.append(item.name.toString());
            self(self, item.children);
        }
    };
    collect(collect, ftpMenus());
    QStringList keys;
    for (const auto &row : {localToolKeys(), remoteToolKeys()}) {
        for (const FtpToolKey &key : row) {
            QVERIFY2(entries.contains(key.entry.toString()), qPrintable(key.key.toString()));
            keys.append(key.key.toString());
        }
    }
    QCOMPARE(keys.join(u' '),
             u"Connect Disconnect Reload Upload NewFolder DelFolder DelFile Rename "
             "Reload2 DownLoad NewFolder2 DelFolder2 DelFile2 Rename2"_s);
}

ZEPHIRA_TEST(TstFtpRules)

#include "tst_ftprules.moc"
