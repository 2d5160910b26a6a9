// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/appfolder.h"
#include "ftp/fakeviews.h"
#include "ftp/ftpclient.h"
#include "ftp/recordingdesk.h"
#include "ftp/recordingoperations.h"
#include "ftp/remotecommands.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct Bench {
    TestContext world;
    RecordingOperations operations;
    RecordingDesk desk;
    FakeRemoteView view;
    FtpClient client{operations};
    RemoteCommands commands{client, desk, view, world};
    QString time = timeOfDay(desk.now);

    Bench() { view.addRoot(); }

    /// A connection in the folder /pub/, which is selected and holds three files.
    void enterPub()
    {
        client.session.ftpOpenHandle = 1;
        client.session.ftpConnectHandle = 2;
        client.session.ftpRemoteFolder = u"/pub/"_s;
        client.session.ftpSearchPath = u"/pub/*.*"_s;
        view.addFolders(u"/"_s, {u"pub"_s});
        view.selection = RemoteNode{u"/pub/"_s, u"pub"_s};
        view.list.rows = {remoteFile(u"a.htm"_s, 1024), remoteFile(u"b.gif"_s, 500), remoteFile(u"c"_s, 4'000'000)};
    }
    static FileRow remoteFile(const QString &name, qint64 size)
    {
        return {name, u"shown size"_s, u"shown date"_s, QString::number(size), 10};
    }
    void expectExclamation(const QString &text) { world.prompts.expectTell(text, {}, Question::Icon::Exclamation); }
    void expectYesNo(const QString &text, Answer answer)
    {
        world.prompts.expect({text, {}, Question::Icon::Question, Question::Buttons::YesNo}, answer);
    }
    QString panel() const { return desk.panels.at(textPanel); }
};

/// The calls that a refresh of /pub/ makes.
QStringList refreshCalls(const QString &searchPath = u"/pub/*.*"_s)
{
    return {u"FtpSetCurrentDirectoryA(1, \"%1\")"_s.arg(searchPath),
            u"FtpFindFirstFileA(2, \"%1\", 0x84000000, 0)"_s.arg(searchPath), u"InternetCloseHandle(0)"_s};
}

} // namespace

class TstRemoteCommands final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void notConnected_data();
    void notConnected();
    void staleHandlesCountAsConnected();
    void list();
    void emptyFolder();
    void listDoesNotFailOnAFailure();
    void openRoot();
    void openFolder();
    void refreshWithoutSelection();
    void downloadNothing();
    void download();
    void downloadOverTheProgramsFiles();
    void newFolder();
    void newFolderWithoutName_data();
    void newFolderWithoutName();
    void newFolderFails();
    void newFolderWithALineBreak();
    void removeFolder();
    void removesTheFolderThatWasAskedAbout();
    void removeFolderNotSure();
    void removeRoot();
    void removeWithoutSelection();
    void removeFolderFails();
    void deleteNothing();
    void deleteFiles();
    void deleteNotSure();
    void deleteStopsAtAFailure();
    void renameNothing();
    void renameStarts();
    void rename();
    void renameOtherExtension();
    void renameCancelled();
    void renameFails_data();
    void renameFails();
    void renameToAnotherFolder_data();
    void renameToAnotherFolder();
    void renameToANameWithATab();
    void renameToAnotherFile();
    void patterns();
    void patternNotGiven();
    void patternThatMatchesNothing();
    void summary_data();
    void summary();
};

void TstRemoteCommands::notConnected_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<QString>("message");
    QTest::newRow("list") << 0 << u"You are not connected to any server"_s;
    QTest::newRow("refresh") << 1 << u"Not connected to any server!"_s;
    QTest::newRow("download") << 2 << u"Not connected to any server!"_s;
    QTest::newRow("new folder") << 3 << u"Not connected to any server"_s;
    QTest::newRow("remove folder") << 4 << u"Not connected to any Server!"_s;
    QTest::newRow("delete files") << 5 << u"Not connected to any server!"_s;
    QTest::newRow("rename") << 6 << u"Not connected to any server!"_s;
    QTest::newRow("pattern") << 7 << u"Not connected to any server!"_s;
}

void TstRemoteCommands::notConnected()
{
    QFETCH(int, command);
    QFETCH(QString, message);
    using Run = void (RemoteCommands::*)();
    constexpr Run runs[] = {&RemoteCommands::list,      &RemoteCommands::refresh,      &RemoteCommands::download,
                            &RemoteCommands::newFolder, &RemoteCommands::removeFolder, &RemoteCommands::deleteFiles,
                            &RemoteCommands::rename,    &RemoteCommands::patternAll};
    // One of the two handles alone doesn't count as a connection.
    for (const InternetHandle open : {0u, 5u}) {
        Bench bench;
        bench.enterPub();
        bench.view.list.selection = {u"a.htm"_s};
        bench.client.session.ftpOpenHandle = open;
        bench.client.session.ftpConnectHandle = open == 0 ? 5 : 0;
        bench.world.prompts.expectTell(message);
        (bench.commands.*runs[command])();
        QVERIFY(bench.operations.log.isEmpty());
        QVERIFY(bench.desk.logged.isEmpty());
        QVERIFY(bench.desk.calls.isEmpty());
        QCOMPARE(bench.view.list.edits, 0);
    }
}

void TstRemoteCommands::staleHandlesCountAsConnected()
{
    Bench bench;
    bench.enterPub();
    bench.client.session.ftpOpenHandle = 901;
    bench.client.session.ftpConnectHandle = 902;
    bench.operations.failures[u"FtpFindFirstFileA"_s] = -1;
    bench.commands.refresh();
    QCOMPARE(bench.panel(), u"Server: 0 Files in folder: /pub/*.*"_s);
}

void TstRemoteCommands::list()
{
    Bench bench;
    bench.enterPub();
    bench.view.list.selection = {u"a.htm"_s};
    bench.operations.folders[u"/pub/*.*"_s] = {foundFolder(u"docs"_s), foundFile(u"x.zip"_s, 1024),
                                               foundFolder(u"old"_s), foundFile(u"y.css"_s, 0)};
    QStringList waiting;
    bench.operations.onCall = [&](const QString &call) {
        if (call.startsWith(u"FtpFindFirst"))
            waiting = {bench.panel(), QString::number(bench.view.list.count()),
                       bench.desk.busy ? u"busy"_s : u"idle"_s};
    };
    bench.commands.list();
    const QString clock = timeOfDay(bench.world.clock.time);
    QCOMPARE(waiting, (QStringList{clock + u"  > Sending request..., wait."_s, u"0"_s, u"busy"_s}));
    QCOMPARE(bench.operations.log,
             (QStringList{u"FtpFindFirstFileA(2, \"/pub/*.*\", 0x84000000, 0)"_s, u"InternetFindNextFileA(1)"_s,
                          u"InternetFindNextFileA(1)"_s, u"InternetFindNextFileA(1)"_s, u"InternetFindNextFileA(1)"_s,
                          u"InternetCloseHandle(1)"_s}));
    QCOMPARE(bench.view.keys, (QStringList{u"/"_s, u"/pub/"_s, u"/pub/docs/"_s, u"/pub/old/"_s}));
    QCOMPARE(bench.view.list.rows,
             (std::vector<FileRow>{{u"x.zip"_s, u"1Kb"_s, u"5.3.20019:07"_s, u"1024"_s, 7},
                                   {u"y.css"_s, u"0Kb"_s, u"5.3.20019:07"_s, u"0"_s, 5}}));
    QVERIFY(!bench.desk.busy);
    QCOMPARE(bench.panel(), u"Server: 2 Files in folder: /pub/*.*"_s);
    QCOMPARE(bench.view.pathText, u"/pub/*.*"_s);
    QCOMPARE(bench.desk.logged,
             bench.time + u" > Transfering data...\r\n"_s + bench.time + u" > Opening folder: \"/pub/*.*\"\r\n"_s
                 + bench.time + u" > Data transfer completed succesfully.\r\n"_s);
}

void TstRemoteCommands::emptyFolder()
{
    Bench bench;
    bench.enterPub();
    bench.commands.list();
    QVERIFY(bench.view.list.rows.empty());
    QCOMPARE(bench.panel(), u"Server: 0 Files in folder: /pub/*.*"_s);
}

void TstRemoteCommands::listDoesNotFailOnAFailure()
{
    Bench bench;
    bench.enterPub();
    bench.operations.failures[u"FtpFindFirstFileA"_s] = -1;
    bench.commands.list();
    QCOMPARE(bench.operations.log.last(), u"InternetCloseHandle(0)"_s);
    QVERIFY(bench.desk.logged.endsWith(u" > Data transfer completed succesfully.\r\n"_s));
    QVERIFY(!bench.desk.busy);
}

void TstRemoteCommands::openRoot()
{
    Bench bench;
    bench.enterPub();
    bench.view.addFolders(u"/pub/"_s, {u"docs"_s});
    bench.commands.openNode({u"/"_s, u".."_s});
    QCOMPARE(bench.client.session.ftpRemoteFolder, u"/"_s);
    QCOMPARE(bench.client.session.ftpSearchPath, u"/*.*"_s);
    QCOMPARE(bench.view.keys, QStringList{u"/"_s});
    QCOMPARE(bench.operations.log, refreshCalls(u"/*.*"_s));
}

void TstRemoteCommands::openFolder()
{
    Bench bench;
    bench.enterPub();
    bench.view.addFolders(u"/pub/"_s, {u"docs"_s, u"old"_s});
    bench.view.addFolders(u"/pub/docs/"_s, {u"deep"_s});
    bench.operations.folders[u"/pub/docs/*.*"_s] = {foundFolder(u"new"_s)};
    bench.operations.failures[u"FtpSetCurrentDirectoryA"_s] = -1;
    bench.commands.openNode({u"/pub/docs/"_s, u"docs"_s});
    QCOMPARE(bench.client.session.ftpRemoteFolder, u"/pub/docs/"_s);
    QCOMPARE(bench.view.keys, (QStringList{u"/"_s, u"/pub/"_s, u"/pub/docs/"_s, u"/pub/old/"_s, u"/pub/docs/new/"_s}));
    QCOMPARE(bench.view.pathText, u"/pub/docs/*.*"_s);
    QCOMPARE(bench.operations.log.first(), u"FtpSetCurrentDirectoryA(1, \"/pub/docs/*.*\")"_s);
}

void TstRemoteCommands::refreshWithoutSelection()
{
    Bench bench;
    bench.enterPub();
    bench.view.selection.reset();
    bench.commands.refresh();
    QVERIFY(bench.operations.log.isEmpty());
    QVERIFY(bench.desk.logged.isEmpty());
}

void TstRemoteCommands::downloadNothing()
{
    Bench bench;
    bench.enterPub();
    bench.world.prompts.expectTell(u"No file selected!!"_s, {}, Question::Icon::None);
    bench.commands.download();
    QVERIFY(bench.desk.calls.isEmpty());
    QVERIFY(bench.desk.logged.isEmpty());
}

void TstRemoteCommands::download()
{
    Bench bench;
    bench.enterPub();
    bench.view.list.selection = {u"c"_s, u"a.htm"_s};
    bench.commands.download();
    QCOMPARE(bench.client.queue.direction, TransferQueue::Direction::Download);
    QCOMPARE(bench.client.queue.files, (std::vector<TransferQueue::File>{{u"a.htm"_s, 1024}, {u"c"_s, 4'000'000}}));
    QCOMPARE(bench.client.queue.total(), 4'001'024);
    QCOMPARE(bench.desk.calls, (QStringList{u"openModal frmProg"_s, u"refreshLocal"_s}));
    QCOMPARE(bench.desk.logged,
             bench.time + u" > Colecting informations about files:\r\n"_s + u"1.) /pub/a.htm\r\n2.) /pub/c\r\n"_s);

    bench.view.list.selection = {u"b.gif"_s};
    bench.commands.download();
    QCOMPARE(bench.client.queue.files, (std::vector<TransferQueue::File>{{u"b.gif"_s, 500}}));
}

/// What the program needs is not overwritten unasked: its data, its profiles, the user's settings and recovery copies,
/// also where a link stands for one.
void TstRemoteCommands::downloadOverTheProgramsFiles()
{
    Bench bench;
    const QTemporaryDir disk;
    QVERIFY(QDir().mkpath(userFolder()));
    const QTemporaryDir settings(userFolder() + u"/test-XXXXXX"_s);
    const QString copy = settings.filePath(u"open-1-a.htm"_s);
    for (const QString &name : {u"app/tags.dat"_s, u"app/mine.htm"_s, u"app/own.ftp"_s, u"app/Logon/log.txt"_s,
                                u"app/deps/csssel.dat"_s, copy}) {
        const QString path = QDir(disk.path()).filePath(name);
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QDir().mkpath(disk.filePath(u"other"_s)));
    QVERIFY(QFile::link(disk.filePath(u"app/tags.dat"_s), disk.filePath(u"other/link.dat"_s)));
    TestContext &world = bench.world;
    const AppContext context{world.editor,        world.inserter,         world.designer, world.document,
                             world.configuration, world.settings,         world.files,    world.prompts,
                             world.shell,         world.clipboard,        world.clock,    world.forms,
                             world.keys,          disk.filePath(u"app"_s)};
    RemoteCommands commands(bench.client, bench.desk, bench.view, context);
    bench.enterPub();
    struct Row {
        QString folder;
        QStringList files;
        QString asked;
    };
    const Row rows[] = {
        {u"app/"_s, {u"mine.htm"_s, u"new.dat"_s}, {}},
        {u"app/"_s, {u"mine.htm"_s, u"own.ftp"_s, u"tags.dat"_s}, u"own.ftp, tags.dat"_s},
        {u"app/Logon/"_s, {u"log.txt"_s}, {}},
        {u"app/deps/"_s, {u"new.dat"_s}, {}},
        {u"app/deps/"_s, {u"csssel.dat"_s}, u"csssel.dat"_s},
        {settings.path() + u'/', {u"open-1-a.htm"_s}, u"open-1-a.htm"_s},
        {u"other/"_s, {u"tags.dat"_s}, {}},
        {u"other/"_s, {u"link.dat"_s}, u"link.dat"_s},
    };
    for (const Row &row : rows) {
        bench.client.session.ftpLocalFolder = QDir(disk.path()).filePath(row.folder);
        bench.view.list.rows.clear();
        for (const QString &name : row.files)
            bench.view.list.rows.push_back(Bench::remoteFile(name, 1));
        bench.view.list.selection = {row.files.begin(), row.files.end()};
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            if (!row.asked.isEmpty())
                bench.expectYesNo(u"Zephira itself needs: "_s + row.asked + u"\r\nOverwrite it all the same?"_s,
                                  answer);
            bench.desk.calls.clear();
            bench.client.queue = {};
            commands.download();
            QVERIFY2(bench.world.prompts.verify(), qPrintable(row.files.join(u' ')));
            const bool goesOn = row.asked.isEmpty() || answer == Answer::Yes;
            QCOMPARE(bench.desk.calls.contains(u"openModal frmProg"_s), goesOn);
            QCOMPARE(bench.client.queue.files.size(), goesOn ? static_cast<std::size_t>(row.files.size()) : 0);
        }
    }
}

void TstRemoteCommands::newFolder()
{
    Bench bench;
    bench.enterPub();
    bench.world.prompts.expectInput({u"Type name for the new folder"_s, u"New Folder"_s}, u"new one"_s);
    bench.commands.newFolder();
    QCOMPARE(bench.operations.log, QStringList{u"FtpCreateDirectoryA(2, \"/pub/new one\")"_s} + refreshCalls());
    QVERIFY(bench.desk.logged.startsWith(bench.time + u" > Sending request to create folder: /pub/new one\r\n"_s
                                         + bench.time + u" > Folder created.\r\n"_s + bench.time
                                         + u" > Transfering data...\r\n"_s));
}

void TstRemoteCommands::newFolderWithoutName_data()
{
    QTest::addColumn<bool>("cancelled");
    QTest::newRow("cancelled") << true;
    QTest::newRow("empty") << false;
}

void TstRemoteCommands::newFolderWithoutName()
{
    QFETCH(bool, cancelled);
    Bench bench;
    bench.enterPub();
    bench.world.prompts.expectInput({u"Type name for the new folder"_s, u"New Folder"_s},
                                    cancelled ? std::nullopt : std::optional(QString()));
    bench.commands.newFolder();
    QVERIFY(bench.operations.log.isEmpty());
    QVERIFY(bench.desk.logged.isEmpty());
}

void TstRemoteCommands::newFolderFails()
{
    Bench bench;
    bench.enterPub();
    bench.operations.failures[u"FtpCreateDirectoryA"_s] = 1;
    bench.world.prompts.expectInput({u"Type name for the new folder"_s, u"New Folder"_s}, u"x"_s);
    bench.expectExclamation(u"An error osccured while creating folder!"_s);
    bench.commands.newFolder();
    QCOMPARE(bench.desk.logged,
             bench.time + u" > Sending request to create folder: /pub/x\r\n"_s + bench.time
                 + u" > An error osccured while creating folder!\r\n"_s);
    QCOMPARE(bench.operations.log.size(), 1);
}

void TstRemoteCommands::newFolderWithALineBreak()
{
    Bench bench;
    bench.enterPub();
    bench.world.prompts.expectInput({u"Type name for the new folder"_s, u"New Folder"_s}, u"x\r\nDELE a"_s);
    bench.expectExclamation(u"Make sure folder doesn't exist"_s);
    bench.commands.newFolder();
    QVERIFY(bench.operations.log.isEmpty());
    QVERIFY(bench.desk.logged.endsWith(bench.time + u" > Wrong folder parameter.\r\n"_s));
}

void TstRemoteCommands::removeFolder()
{
    Bench bench;
    bench.enterPub();
    bench.view.addFolders(u"/pub/"_s, {u"docs"_s});
    bench.view.selection = RemoteNode{u"/pub/docs/"_s, u"docs"_s};
    bench.client.session.ftpRemoteFolder = u"/pub/docs/"_s;
    bench.expectYesNo(u"Are you sure to remove this folder: docs?"_s, Answer::Yes);
    bench.commands.removeFolder();
    QCOMPARE(bench.operations.log, QStringList{u"FtpRemoveDirectoryA(2, \"/pub/docs\")"_s} + refreshCalls());
    QCOMPARE(bench.view.selection, (RemoteNode{u"/pub/"_s, u"pub"_s}));
    QCOMPARE(bench.client.session.ftpRemoteFolder, u"/pub/"_s);
    QVERIFY(bench.desk.logged.startsWith(bench.time + u" > Sending request to remove folder: /pub/docs\r\n"_s
                                         + bench.time + u" > Request accomplished successfuly.\r\n"_s));
    // The parent of a folder below the root is the root.
    bench.operations.log.clear();
    bench.expectYesNo(u"Are you sure to remove this folder: pub?"_s, Answer::Yes);
    bench.commands.removeFolder();
    QCOMPARE(bench.operations.log, QStringList{u"FtpRemoveDirectoryA(2, \"/pub\")"_s} + refreshCalls(u"/*.*"_s));
    QCOMPARE(bench.view.selection, (RemoteNode{u"/"_s, u".."_s}));
}

void TstRemoteCommands::removesTheFolderThatWasAskedAbout()
{
    Bench bench;
    bench.enterPub();
    bench.view.addFolders(u"/"_s, {u"home"_s});
    bench.view.selection = RemoteNode{u"/home/"_s, u"home"_s};
    bench.expectYesNo(u"Are you sure to remove this folder: home?"_s, Answer::Yes);
    bench.commands.removeFolder();
    QCOMPARE(bench.operations.log.first(), u"FtpRemoveDirectoryA(2, \"/home\")"_s);
    QVERIFY(bench.desk.logged.startsWith(bench.time + u" > Sending request to remove folder: /home\r\n"_s));
    QCOMPARE(bench.view.selection, (RemoteNode{u"/"_s, u".."_s}));
}

void TstRemoteCommands::removeFolderNotSure()
{
    Bench bench;
    bench.enterPub();
    bench.expectYesNo(u"Are you sure to remove this folder: pub?"_s, Answer::No);
    bench.commands.removeFolder();
    QVERIFY(bench.operations.log.isEmpty());
    QVERIFY(bench.desk.logged.isEmpty());
}

void TstRemoteCommands::removeRoot()
{
    Bench bench;
    bench.enterPub();
    bench.view.selection = RemoteNode{u"/"_s, u".."_s};
    bench.expectExclamation(u"This is the root folder that can not be removed!"_s);
    bench.commands.removeFolder();
    QVERIFY(bench.operations.log.isEmpty());
}

void TstRemoteCommands::removeWithoutSelection()
{
    Bench bench;
    bench.enterPub();
    bench.view.selection.reset();
    bench.commands.removeFolder();
    QVERIFY(bench.operations.log.isEmpty());
}

void TstRemoteCommands::removeFolderFails()
{
    Bench bench;
    bench.enterPub();
    bench.operations.failures[u"FtpRemoveDirectoryA"_s] = 1;
    bench.expectYesNo(u"Are you sure to remove this folder: pub?"_s, Answer::Yes);
    bench.expectExclamation(u"An error occured! Make sure that folder contains no files"_s);
    bench.commands.removeFolder();
    QCOMPARE(bench.operations.log, QStringList{u"FtpRemoveDirectoryA(2, \"/pub\")"_s});
    QCOMPARE(bench.view.selection, (RemoteNode{u"/pub/"_s, u"pub"_s}));
    QVERIFY(bench.desk.logged.endsWith(bench.time + u" > An error occured while removing folder!\r\n"_s));
}

void TstRemoteCommands::deleteNothing()
{
    Bench bench;
    bench.enterPub();
    bench.world.prompts.expectTell(u"No file is selected to be deleted!!"_s);
    bench.commands.deleteFiles();
    QVERIFY(bench.operations.log.isEmpty());
}

void TstRemoteCommands::deleteFiles()
{
    Bench bench;
    bench.enterPub();
    bench.view.list.selection = {u"b.gif"_s, u"a.htm"_s};
    bench.expectYesNo(u"Are you sure to delete all of these files?"_s, Answer::Yes);
    bench.commands.deleteFiles();
    QCOMPARE(
        bench.operations.log,
        (QStringList{u"FtpDeleteFileA(2, \"/pub/a.htm\")"_s, u"FtpDeleteFileA(2, \"/pub/b.gif\")"_s} + refreshCalls()));
    const QString &t = bench.time;
    QVERIFY(bench.desk.logged.startsWith(t + u" > Sending request.\r\n"_s + t + u" > Deleting: a.htm\r\n"_s + t
                                         + u" > OK\r\n"_s + t + u" > Deleting: b.gif\r\n"_s + t + u" > OK\r\n"_s));
}

void TstRemoteCommands::deleteNotSure()
{
    Bench bench;
    bench.enterPub();
    bench.view.list.selection = {u"b.gif"_s};
    bench.expectYesNo(u"Are you sure to delete all of these files?"_s, Answer::No);
    bench.commands.deleteFiles();
    QVERIFY(bench.operations.log.isEmpty());
    QVERIFY(bench.desk.logged.isEmpty());
}

void TstRemoteCommands::deleteStopsAtAFailure()
{
    Bench bench;
    bench.enterPub();
    bench.view.list.selection = {u"a.htm"_s, u"b.gif"_s, u"c"_s};
    bench.operations.onCall = [&](const QString &call) {
        if (call.contains(u"b.gif"))
            bench.operations.failures[u"FtpDeleteFileA"_s] = 1;
    };
    bench.expectYesNo(u"Are you sure to delete all of these files?"_s, Answer::Yes);
    bench.expectExclamation(u"An error occured while deleting file!"_s);
    bench.commands.deleteFiles();
    QCOMPARE(bench.operations.log,
             (QStringList{u"FtpDeleteFileA(2, \"/pub/a.htm\")"_s, u"FtpDeleteFileA(2, \"/pub/b.gif\")"_s}));
    QCOMPARE(bench.view.list.count(), 3);
    QVERIFY(bench.desk.logged.endsWith(bench.time + u" > Deleting: b.gif\r\n"_s + bench.time
                                       + u" > An error occured while deleting file!\r\n"_s));
}

void TstRemoteCommands::renameNothing()
{
    Bench bench;
    bench.enterPub();
    bench.expectExclamation(u"Nothing to rename!"_s);
    bench.commands.rename();
    QCOMPARE(bench.view.list.edits, 0);
}

void TstRemoteCommands::renameStarts()
{
    Bench bench;
    bench.enterPub();
    bench.view.list.selection = {u"a.htm"_s};
    bench.commands.rename();
    QCOMPARE(bench.view.list.edits, 1);
    bench.commands.renameStarted(u"a.htm"_s);
    QCOMPARE(bench.panel(), u"Server: Renaming file: \"a.htm\""_s);
}

void TstRemoteCommands::rename()
{
    Bench bench;
    bench.enterPub();
    QVERIFY(bench.commands.renameEnded(u"a.htm"_s, u"z.htm"_s));
    QCOMPARE(bench.operations.log,
             QStringList{u"FtpRenameFileA(2, \"/pub/a.htm\", \"/pub/z.htm\")"_s} + refreshCalls());
    QVERIFY(bench.desk.logged.startsWith(bench.time
                                         + u" > Sending request to rename file: \"a.htm\" to: \"z.htm\"\r\n"_s
                                         + bench.time + u" > File renamed to: \"z.htm\"\r\n"_s));
}

void TstRemoteCommands::renameOtherExtension()
{
    Bench bench;
    bench.enterPub();
    bench.expectYesNo(u"Are you sure to exchange the file extension from: \"htm\" to: \"html\""_s, Answer::Yes);
    QVERIFY(bench.commands.renameEnded(u"a.htm"_s, u"a.html"_s));
    QCOMPARE(bench.operations.log.first(), u"FtpRenameFileA(2, \"/pub/a.htm\", \"/pub/a.html\")"_s);
}

void TstRemoteCommands::renameCancelled()
{
    Bench bench;
    bench.enterPub();
    bench.expectYesNo(u"Are you sure to exchange the file extension from: \"\" to: \"txt\""_s, Answer::No);
    QVERIFY(!bench.commands.renameEnded(u"c"_s, u"c.txt"_s));
    QVERIFY(bench.operations.log.isEmpty());
    QVERIFY(bench.desk.logged.isEmpty());
}

void TstRemoteCommands::renameFails_data()
{
    QTest::addColumn<QString>("newName");
    QTest::addColumn<QString>("message");
    QTest::newRow("without a prompt") << u"z.htm"_s << u"Can't accomplishe request!"_s;
    QTest::newRow("after the prompt") << u"a.html"_s << u"Can't fill your request!"_s;
}

void TstRemoteCommands::renameFails()
{
    QFETCH(QString, newName);
    QFETCH(QString, message);
    Bench bench;
    bench.enterPub();
    bench.operations.failures[u"FtpRenameFileA"_s] = 1;
    if (newName.endsWith(u"html"))
        bench.expectYesNo(u"Are you sure to exchange the file extension from: \"htm\" to: \"html\""_s, Answer::Yes);
    bench.expectExclamation(message);
    QVERIFY2(bench.commands.renameEnded(u"a.htm"_s, newName), "the edited label stays until the next refresh");
    QCOMPARE(bench.operations.log.size(), 1);
    QVERIFY(bench.desk.logged.endsWith(bench.time + u" > request accomplished with no success at all!\r\n"_s));
}

void TstRemoteCommands::renameToAnotherFolder_data()
{
    QTest::addColumn<QString>("newName");
    for (const char *name : {"docs/a.htm", "/a.htm", "../a.htm", "..", "."})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TstRemoteCommands::renameToAnotherFolder()
{
    QFETCH(QString, newName);
    Bench bench;
    bench.enterPub();
    const bool asked = !newName.endsWith(u".htm");
    if (asked)
        bench.expectYesNo(u"Are you sure to exchange the file extension from: \"htm\" to: \"\""_s, Answer::Yes);
    bench.expectExclamation(asked ? u"Can't fill your request!"_s : u"Can't accomplishe request!"_s);
    QVERIFY(!bench.commands.renameEnded(u"a.htm"_s, newName));
    QVERIFY2(bench.operations.log.isEmpty(), "nothing goes to the server");
    QVERIFY(bench.desk.logged.endsWith(bench.time + u" > request accomplished with no success at all!\r\n"_s));
}

void TstRemoteCommands::renameToANameWithATab()
{
    Bench bench;
    bench.enterPub();
    QVERIFY(bench.commands.renameEnded(u"a.htm"_s, u"a\tb.htm"_s));
    QCOMPARE(bench.operations.log.first(), u"FtpRenameFileA(2, \"/pub/a.htm\", \"/pub/a\tb.htm\")"_s);
}

void TstRemoteCommands::renameToAnotherFile()
{
    Bench bench;
    bench.enterPub();
    bench.expectYesNo(u"Are you sure to exchange the file extension from: \"htm\" to: \"gif\""_s, Answer::Yes);
    bench.expectExclamation(u"More files with the same name in one folder? Grrrrr!"_s);
    QVERIFY(!bench.commands.renameEnded(u"a.htm"_s, u"b.gif"_s));
    QVERIFY2(bench.operations.log.isEmpty(), "a server could lay one file over the other");
    QVERIFY(bench.desk.logged.endsWith(bench.time + u" > wrong file parameter!\r\n"_s));
}

void TstRemoteCommands::patterns()
{
    Bench bench;
    bench.enterPub();
    bench.world.prompts.expectInput({u"Define file type extension (*.?):"_s, u"Pattern"_s}, u"*.htm"_s);
    bench.commands.patternDefined();
    QVERIFY(!bench.view.allFiles);
    QCOMPARE(bench.client.session.ftpSearchPath, u"/pub/*.htm"_s);
    QCOMPARE(bench.operations.log, refreshCalls(u"/pub/*.htm"_s));
    // The pattern holds for the next folder too.
    bench.commands.openNode({u"/"_s, u".."_s});
    QCOMPARE(bench.client.session.ftpSearchPath, u"/*.htm"_s);
    bench.commands.openNode({u"/pub/"_s, u"pub"_s});
    bench.operations.log.clear();
    bench.commands.patternAll();
    QVERIFY(bench.view.allFiles);
    QCOMPARE(bench.operations.log, refreshCalls());
    // Without a selected folder only the search path changes.
    bench.view.selection.reset();
    bench.operations.log.clear();
    bench.client.session.ftpSearchPath = u"/home/me/*.*"_s;
    bench.world.prompts.expectInput({u"Define file type extension (*.?):"_s, u"Pattern"_s}, u"*.gif"_s);
    bench.commands.patternDefined();
    QCOMPARE(bench.client.session.ftpSearchPath, u"/home/me/*.gif"_s);
    QVERIFY(bench.operations.log.isEmpty());
}

void TstRemoteCommands::patternNotGiven()
{
    Bench bench;
    bench.enterPub();
    bench.world.prompts.expectInput({u"Define file type extension (*.?):"_s, u"Pattern"_s}, QString());
    bench.commands.patternDefined();
    QVERIFY(bench.view.allFiles);
    QCOMPARE(bench.client.session.ftpSearchPath, u"/pub/*.*"_s);
    QVERIFY(bench.operations.log.isEmpty());
}

void TstRemoteCommands::patternThatMatchesNothing()
{
    Bench bench;
    bench.enterPub();
    bench.view.addFolders(u"/pub/"_s, {u"docs"_s});
    bench.operations.folders[u"/pub/*.*"_s] = {foundFolder(u"docs"_s), foundFile(u"a"_s, 1)};
    bench.world.prompts.expectInput({u"Define file type extension (*.?):"_s, u"Pattern"_s}, u"*.none"_s);
    bench.commands.patternDefined();
    QVERIFY(bench.view.list.rows.empty());
    QCOMPARE(bench.view.keys, (QStringList{u"/"_s, u"/pub/"_s}));
}

void TstRemoteCommands::summary_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QStringList() << u"Server: 0 Files selected, 0 kb"_s;
    QTest::newRow("one") << QStringList{u"a.htm"_s} << u"Server: 1 Files selected, 1.024 kb"_s;
    QTest::newRow("below one") << QStringList{u"b.gif"_s} << u"Server: 1 Files selected, 0.5 kb"_s;
    QTest::newRow("all") << QStringList{u"a.htm"_s, u"b.gif"_s, u"c"_s} << u"Server: 3 Files selected, 4001.524 kb"_s;
}

void TstRemoteCommands::summary()
{
    QFETCH(QStringList, names);
    Bench bench;
    bench.enterPub();
    bench.view.list.selection = {names.begin(), names.end()};
    bench.commands.showSummary();
    QTEST(bench.panel(), "text");
}

ZEPHIRA_TEST(TstRemoteCommands)

#include "tst_remotecommands.moc"
