// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/diskfilestore.h"
#include "ftp/ftpclient.h"
#include "ftp/recordingdesk.h"
#include "ftp/recordingoperations.h"
#include "ftp/transferengine.h"
#include "support/scriptedprompts.h"
#include "support/testregistry.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;
using Direction = TransferQueue::Direction;

namespace {

struct KeptDisplay final : TransferDisplay {
    QStringList shown;
    TransferProgress last;
    int blocks = 0;

    void beginRun(qint64 total, double barMaximum) override
    {
        shown += u"run of %1, bar to %2"_s.arg(total).arg(barMaximum);
    }
    void beginFile(int number, const QString &line, double barMaximum) override
    {
        shown += u"%1: %2, bar to %3"_s.arg(number).arg(line).arg(barMaximum);
    }
    void moved(const TransferProgress &progress) override
    {
        last = progress;
        ++blocks;
    }
    void endFile(const TransferProgress &progress) override { last = progress; }
    void showAll() override {}
};

/// The time of day in the log of RecordingDesk.
QString noted()
{
    return timeOfDay(QDateTime(QDate(2001, 3, 5), QTime(9, 7)));
}

/// A run in a temporary folder with operations that record their calls. Each reading of the clock advances it by ten
/// milliseconds.
struct Run {
    QTemporaryDir folder;
    ScriptedPrompts prompts;
    RecordingOperations operations;
    RecordingDesk desk;
    DiskFileStore files;
    KeptDisplay display;
    FtpClient client{operations};
    quint32 ticks = 0;
    TransferEngine engine{client, files, prompts, {desk, desk, display}, [this] { return ticks += 10; }};

    Run()
    {
        client.session.ftpOpenHandle = 1;
        client.session.ftpConnectHandle = 2;
        client.session.ftpLocalFolder = folder.path() + u'/';
        client.session.ftpRemoteFolder = u"/pub/"_s;
    }

    QString path(const QString &name) const { return folder.filePath(name); }
    QByteArray local(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }
    void putLocal(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    TransferEngine::Outcome move(Direction direction, const std::vector<TransferQueue::File> &queue)
    {
        return engine.run({direction, queue});
    }
    QStringList calls(const QString &operation) const { return operations.log.filter(operation + u'('); }
};

QByteArray sample(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = static_cast<char>((i * 7 + i / 251) & 0xff);
    return bytes;
}

} // namespace

/// Downloads and uploads with operations that record their calls and a folder on the disk.
class TstTransferEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void download_data();
    void download();
    void upload_data();
    void upload();
    void orderOfDownload();
    void orderOfUpload();
    void severalFiles();
    void everyFileButTheLastAnnouncesAnother_data();
    void everyFileButTheLastAnnouncesAnother();
    void olderAndLongerFileKeepsItsTail();
    void refusedDownloadEndsTheQueue();
    void refusedUploadEndsTheQueue();
    void failedReadEndsTheFile();
    void failedWriteGoesOnWithTheNext();
    void failedCloseOfAnUploadIsTold();
    void transferTypeChangesNothing();
    void hostileNames_data();
    void hostileNames();
    void unwritableFile();
    void missingLocalFileLeavesTheServerAlone();
    void grownFileIsReadToItsEnd();
    void ticksMayWrapAround();
};

void TstTransferEngine::download_data()
{
    QTest::addColumn<qsizetype>("size");
    QTest::addColumn<qsizetype>("reads");

    QTest::newRow("empty") << static_cast<qsizetype>(0) << static_cast<qsizetype>(1);
    QTest::newRow("one byte") << static_cast<qsizetype>(1) << static_cast<qsizetype>(1);
    QTest::newRow("one byte less than a block") << static_cast<qsizetype>(1023) << static_cast<qsizetype>(1);
    QTest::newRow("a block: the second read gives nothing")
        << static_cast<qsizetype>(1024) << static_cast<qsizetype>(2);
    QTest::newRow("one byte more") << static_cast<qsizetype>(1025) << static_cast<qsizetype>(2);
    QTest::newRow("several chunks in memory")
        << static_cast<qsizetype>(3 * 1024 * 1024) << static_cast<qsizetype>(3 * 1024 + 1);
    QTest::newRow("several chunks and a bit")
        << static_cast<qsizetype>(2 * 1024 * 1024 + 17) << static_cast<qsizetype>(2 * 1024 + 1);
}

void TstTransferEngine::download()
{
    QFETCH(const qsizetype, size);
    QFETCH(const qsizetype, reads);
    Run run;
    run.operations.files[u"/pub/x.bin"_s] = sample(size);
    run.prompts.expectTell(u"Data transfer completed."_s);
    QCOMPARE(run.move(Direction::Download, {{u"x.bin"_s, size}}), TransferEngine::Outcome::Completed);
    QCOMPARE(run.local(u"x.bin"_s), sample(size));
    QCOMPARE(run.calls(u"InternetReadFile"_s).size(), reads);
    QCOMPARE(run.display.blocks, reads);
    QCOMPARE(run.display.last.doneAll, static_cast<qint64>(size));
    QCOMPARE(run.engine.handle(), 0u);
}

void TstTransferEngine::upload_data()
{
    QTest::addColumn<qsizetype>("size");
    QTest::addColumn<QList<int>>("writes");

    QTest::newRow("empty: one write of nothing") << static_cast<qsizetype>(0) << QList<int>{0};
    QTest::newRow("one byte") << static_cast<qsizetype>(1) << QList<int>{1};
    QTest::newRow("a block") << static_cast<qsizetype>(1024) << QList<int>{1024};
    QTest::newRow("one byte more") << static_cast<qsizetype>(1025) << QList<int>{1024, 1};
    QTest::newRow("two blocks") << static_cast<qsizetype>(2048) << QList<int>{1024, 1024};
}

void TstTransferEngine::upload()
{
    QFETCH(const qsizetype, size);
    QFETCH(const QList<int>, writes);
    Run run;
    run.putLocal(u"x.bin"_s, sample(size));
    run.prompts.expectTell(u"Data transfer completed."_s);
    QCOMPARE(run.move(Direction::Upload, {{u"x.bin"_s, size}}), TransferEngine::Outcome::Completed);
    QCOMPARE(run.operations.files[u"/pub/x.bin"_s], sample(size));
    QStringList wanted;
    for (const int count : writes)
        wanted += u"InternetWriteFile(1, %1)"_s.arg(count);
    QCOMPARE(run.calls(u"InternetWriteFile"_s), wanted);
}

void TstTransferEngine::orderOfDownload()
{
    Run run;
    run.operations.files[u"/pub/a.htm"_s] = sample(1030);
    run.prompts.expectTell(u"Data transfer completed."_s);
    run.move(Direction::Download, {{u"a.htm"_s, 1030}});
    QCOMPARE(run.operations.log,
             (QStringList{u"FtpOpenFileA(2, \"/pub/a.htm\", 0x80000000, 2, 0)"_s, u"InternetReadFile(1, 1024)"_s,
                          u"InternetReadFile(1, 1024)"_s, u"InternetCloseHandle(1)"_s}));
    QCOMPARE(
        run.display.shown,
        (QStringList{u"run of 1030, bar to 1054.72"_s, u"1: Downloading File: a.htm / 1030 bytù., bar to 1054.72"_s}));
    QCOMPARE(run.desk.logged,
             u"%1 > Accomplishing data transfer...\r\n > Downloading from: /pub/a.htm, to: %2\r\n"
             "%1 > OK\r\n"_s.arg(noted(), run.path(u"a.htm"_s)));
    QCOMPARE(run.desk.panels[2], u"Transfering data..., wait."_s);
}

void TstTransferEngine::orderOfUpload()
{
    Run run;
    run.putLocal(u"a.htm"_s, sample(1030));
    run.prompts.expectTell(u"Data transfer completed."_s);
    run.move(Direction::Upload, {{u"a.htm"_s, 1030}});
    QCOMPARE(run.operations.log,
             (QStringList{u"FtpOpenFileA(2, \"/pub/a.htm\", 0x40000000, 2, 0)"_s, u"InternetWriteFile(1, 1024)"_s,
                          u"InternetWriteFile(1, 6)"_s, u"InternetCloseHandle(1)"_s}));
    QCOMPARE(run.display.shown,
             (QStringList{u"run of 1030, bar to 1030"_s, u"1: Uploading file: a.htm / 1030 bytes., bar to 1030"_s}));
    QCOMPARE(run.desk.logged,
             u"%1 > Begining data transfer...\r\n > Uploading from: %2, to: /pub/a.htm\r\n"
             "%1 > OK\r\n"_s.arg(noted(), run.path(u"a.htm"_s)));
    QCOMPARE(run.desk.panels[2], u"uploading data..., wait."_s);
}

void TstTransferEngine::severalFiles()
{
    Run run;
    run.operations.files = {{u"/pub/a"_s, "aa"}, {u"/pub/b c #1;%.txt"_s, "b"}, {u"/pub/größe ζ"_s, ""}};
    run.prompts.expectTell(u"Data transfer completed."_s);
    run.move(Direction::Download, {{u"a"_s, 2}, {u"b c #1;%.txt"_s, 1}, {u"größe ζ"_s, 0}});
    QCOMPARE(run.local(u"a"_s), "aa");
    QCOMPARE(run.local(u"b c #1;%.txt"_s), "b");
    QCOMPARE(run.local(u"größe ζ"_s), "");
    QCOMPARE(run.display.shown.last(), u"3: Downloading File: größe ζ / 0 bytù., bar to 0"_s);
    QCOMPARE(run.display.last.doneAll, 3);
    QCOMPARE(run.display.last.doneFile, 0);
}

void TstTransferEngine::everyFileButTheLastAnnouncesAnother_data()
{
    QTest::addColumn<Direction>("direction");
    QTest::addColumn<QString>("access");

    QTest::newRow("download") << Direction::Download << u"0x80000000"_s;
    QTest::newRow("upload") << Direction::Upload << u"0x40000000"_s;
}

void TstTransferEngine::everyFileButTheLastAnnouncesAnother()
{
    QFETCH(Direction, direction);
    QFETCH(QString, access);
    Run run;
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
        run.putLocal(name, "x");
    run.operations.files = {{u"/pub/a"_s, "x"}, {u"/pub/b"_s, "x"}, {u"/pub/c"_s, "x"}};
    run.prompts.expectTell(u"Data transfer completed."_s);
    run.prompts.expectTell(u"Data transfer completed."_s);
    run.move(direction, {{u"a"_s, 1}, {u"b"_s, 1}, {u"c"_s, 1}});
    // A run of one file announces nothing, even if it follows another run.
    run.move(direction, {{u"a"_s, 1}});
    const QString opened = u"FtpOpenFileA(2, \"/pub/%1\", %2, 2, 0)"_s;
    QCOMPARE(run.operations.announcedBehind, (QStringList{opened.arg(u"a", access), opened.arg(u"b", access)}));
}

void TstTransferEngine::olderAndLongerFileKeepsItsTail()
{
    Run run;
    run.putLocal(u"x"_s, "0123456789");
    run.operations.files[u"/pub/x"_s] = "abc";
    run.prompts.expectTell(u"Data transfer completed."_s);
    run.move(Direction::Download, {{u"x"_s, 3}});
    QCOMPARE(run.local(u"x"_s), "abc3456789");
}

void TstTransferEngine::refusedDownloadEndsTheQueue()
{
    Run run;
    run.operations.failures[u"FtpOpenFileA"_s] = 1;
    run.putLocal(u"a"_s, "old");
    run.prompts.expectTell(u"Can't open file path!"_s, u"Problém s URL"_s, Question::Icon::Exclamation);
    QCOMPARE(run.move(Direction::Download, {{u"a"_s, 1}, {u"b"_s, 1}}), TransferEngine::Outcome::Stopped);
    QCOMPARE(run.calls(u"FtpOpenFileA"_s).size(), 1);
    QVERIFY(run.calls(u"InternetCloseHandle"_s).isEmpty());
    QVERIFY(run.desk.logged.endsWith(u"\r\n%1 > Can't open file path! Request canceled!\r\n"_s.arg(noted())));
    QCOMPARE(run.local(u"a"_s), "old");
    QCOMPARE(run.engine.handle(), 0u);
}

void TstTransferEngine::refusedUploadEndsTheQueue()
{
    Run run;
    run.putLocal(u"a"_s, "a");
    run.putLocal(u"b"_s, "b");
    run.operations.failures[u"FtpOpenFileA"_s] = 1;
    run.prompts.expectTell(u"Cant create requested file on server"_s, {}, Question::Icon::Exclamation);
    QCOMPARE(run.move(Direction::Upload, {{u"a"_s, 1}, {u"b"_s, 1}}), TransferEngine::Outcome::Stopped);
    QCOMPARE(run.calls(u"FtpOpenFileA"_s).size(), 1);
    QVERIFY(run.desk.logged.endsWith(
        u"\r\n%1 > Cant create requested file on server! request canceled!\r\n"_s.arg(noted())));
}

/// The connection breaks during a download: what has been received is kept, and no error is reported.
void TstTransferEngine::failedReadEndsTheFile()
{
    Run run;
    run.operations.files[u"/pub/a"_s] = sample(5000);
    int reads = 0;
    run.operations.onCall = [&](const QString &call) {
        if (call.startsWith(u"InternetReadFile"_s) && ++reads == 3)
            run.operations.failures[u"InternetReadFile"_s] = -1;
    };
    run.prompts.expectTell(u"Data transfer completed."_s);
    QCOMPARE(run.move(Direction::Download, {{u"a"_s, 5000}}), TransferEngine::Outcome::Completed);
    QCOMPARE(run.local(u"a"_s), sample(5000).first(2048));
    QVERIFY(run.desk.logged.endsWith(u"%1 > OK\r\n"_s.arg(noted())));
}

void TstTransferEngine::failedWriteGoesOnWithTheNext()
{
    Run run;
    run.putLocal(u"a"_s, sample(5000));
    run.putLocal(u"b"_s, "b");
    run.operations.failures[u"InternetWriteFile"_s] = 1;
    run.prompts.expectTell(u"Could Not Download!"_s, {}, Question::Icon::Exclamation);
    run.prompts.expectTell(u"Data transfer completed."_s);
    QCOMPARE(run.move(Direction::Upload, {{u"a"_s, 5000}, {u"b"_s, 1}}), TransferEngine::Outcome::Completed);
    QCOMPARE(run.operations.files[u"/pub/b"_s], "b");
    QVERIFY(run.desk.logged.contains(u"%1 > Could Not Download!\r\n%1 > OK\r\n%1 > Begining"_s.arg(noted())));
    QCOMPARE(run.calls(u"InternetCloseHandle"_s).size(), 2);
}

void TstTransferEngine::failedCloseOfAnUploadIsTold()
{
    Run run;
    run.putLocal(u"a"_s, "a");
    run.operations.failures[u"InternetCloseHandle"_s] = 1;
    run.prompts.expectTell(u"Could Not Download!"_s, {}, Question::Icon::Exclamation);
    run.prompts.expectTell(u"Data transfer completed."_s);
    run.move(Direction::Upload, {{u"a"_s, 1}});
    QVERIFY(run.desk.logged.endsWith(u"%1 > Could Not Download!\r\n%1 > OK\r\n"_s.arg(noted())));
}

void TstTransferEngine::transferTypeChangesNothing()
{
    Run run;
    run.client.session.ftpTransferType = 1;
    run.operations.files[u"/pub/a"_s] = "\r\n\n\r\0\xff";
    run.prompts.expectTell(u"Data transfer completed."_s);
    run.move(Direction::Download, {{u"a"_s, 6}});
    QCOMPARE(run.local(u"a"_s), run.operations.files[u"/pub/a"_s]);
}

void TstTransferEngine::hostileNames_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("out of the folder") << u"../x"_s;
    QTest::newRow("the folder above") << u".."_s;
    QTest::newRow("into another") << u"a/b"_s;
    QTest::newRow("backslash") << u"a\\b"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("line break") << u"a\r\nDELE b"_s;
    QTest::newRow("too long") << QString(260, u'a');
}

void TstTransferEngine::hostileNames()
{
    QFETCH(const QString, name);
    Run run;
    run.prompts.expectTell(u"This name can't be used for a file here: "_s + name, {}, Question::Icon::Exclamation);
    QCOMPARE(run.move(Direction::Download, {{name, 1}}), TransferEngine::Outcome::Stopped);
    QVERIFY(run.operations.log.isEmpty());
    QVERIFY(QDir(run.folder.path()).isEmpty());
}

void TstTransferEngine::unwritableFile()
{
    Run run;
    QVERIFY(QDir(run.folder.path()).mkdir(u"a"_s));
    run.operations.files[u"/pub/a"_s] = "text";
    bool told = false;
    run.prompts.expect(
        {run.files.write(run.path(u"a"_s), QByteArrayView("text")).error().sentence, {}, Question::Icon::Exclamation},
        Answer::Ok, [&told] { told = true; });
    QCOMPARE(run.move(Direction::Download, {{u"a"_s, 4}}), TransferEngine::Outcome::Stopped);
    QVERIFY(told);
    QCOMPARE(run.calls(u"InternetCloseHandle"_s).size(), 1);
    QVERIFY(!run.desk.logged.contains(u" > OK"_s));
}

void TstTransferEngine::missingLocalFileLeavesTheServerAlone()
{
    Run run;
    run.prompts.expectTell(u"Can't open the file %1: No such file or directory"_s.arg(run.path(u"gone"_s)), {},
                           Question::Icon::Exclamation);
    QCOMPARE(run.move(Direction::Upload, {{u"gone"_s, 4}}), TransferEngine::Outcome::Stopped);
    QVERIFY(run.operations.log.isEmpty());
}

void TstTransferEngine::grownFileIsReadToItsEnd()
{
    Run run;
    run.operations.files[u"/pub/a"_s] = sample(4000);
    run.prompts.expectTell(u"Data transfer completed."_s);
    run.move(Direction::Download, {{u"a"_s, 10}});
    QCOMPARE(run.local(u"a"_s), sample(4000));
    QCOMPARE(run.display.last.doneFile, 4000);
}

void TstTransferEngine::ticksMayWrapAround()
{
    Run run;
    run.ticks = 0xffff'ffff - 15;
    run.operations.files[u"/pub/a"_s] = sample(2000);
    run.prompts.expectTell(u"Data transfer completed."_s);
    run.move(Direction::Download, {{u"a"_s, 2000}});
    QCOMPARE(run.display.last.elapsed, 20);
}

ZEPHIRA_TEST(TstTransferEngine)
#include "tst_transferengine.moc"
