// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/errorstyles.h"
#include "ftp/fakeviews.h"
#include "ftp/ftpclient.h"
#include "ftp/localcommands.h"
#include "ftp/recordingdesk.h"
#include "ftp/recordingoperations.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The local side with a real folder and three files: a.htm, b.gif and c.
struct Bench {
    QTemporaryDir folder;
    TestContext world;
    RecordingOperations operations;
    RecordingDesk desk;
    FakeLocalView view;
    FtpClient client{operations};
    LocalCommands commands{client, desk, view, world};
    QString time = timeOfDay(desk.now);

    Bench()
    {
        write(u"a.htm"_s, 1024);
        write(u"b.gif"_s, 500);
        write(u"c"_s, 4'000'000);
        view.path = folder.path();
        view.names = {u"a.htm"_s, u"b.gif"_s, u"c"_s};
        commands.refill();
        desk.panels.clear();
        view.refreshes = 0;
    }

    void write(const QString &name, qint64 size) const
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || !file.resize(size))
            qFatal("%s can't be written", qPrintable(file.fileName()));
    }
    QStringList onDisk() const
    {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    void expectExclamation(const QString &text) { world.prompts.expectTell(text, {}, Question::Icon::Exclamation); }
    void expectYesNo(const QString &text, Answer answer)
    {
        world.prompts.expect({text, {}, Question::Icon::Question, Question::Buttons::YesNo}, answer);
    }
    QString panel() const { return desk.panels.at(textPanel); }
    /// The error that a command raised; empty if none.
    static QString errorOf(const Statement &command)
    {
        try {
            command();
        } catch (const HandlerError &error) {
            return error.description;
        }
        return {};
    }
};

const QString removeQuestion = u"? Make sure it contains no files!\r\nIf you are, don't look for it in recycle!"_s;
const QString deleteQuestion = u"Are you sure to delete these files?\r\nif you are, don't look for them in recycle!"_s;

} // namespace

class TstLocalCommands final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refill();
    void longFolder();
    void sizes_data();
    void sizes();
    void moveTo();
    void drive();
    void openFile();
    void openNothing();
    void openFails();
    void uploadNotConnected();
    void uploadNothing();
    void upload();
    void newFolder();
    void newFolderWithoutName();
    void newFolderFails();
    void removeFolder();
    void removeFullFolder();
    void removeFolderNotSure();
    void removeProtected_data();
    void removeProtected();
    void deleteFiles();
    void deleteNothing();
    void deleteNotSure();
    void deleteWhatIsGone();
    void programDataIsNamed();
    void renameNothing();
    void renameStarts();
    void rename();
    void renameOtherExtension();
    void renameToAnotherFile();
    void renameOutOfTheFolder_data();
    void renameOutOfTheFolder();
    void patterns();
    void find();
    void properties();
    void summary_data();
    void summary();
};

void TstLocalCommands::refill()
{
    Bench bench;
    bench.view.list.selection = {u"c"_s};
    bench.commands.refill();
    QCOMPARE(bench.view.refreshes, 1);
    const QString folder = bench.folder.path() + u'/';
    QCOMPARE(bench.client.session.ftpLocalFolder, folder);
    QCOMPARE(bench.panel(), u"Local: 3 Files in folder: "_s + folder);
    QVERIFY(bench.view.list.selected().empty());
    QCOMPARE(bench.view.list.rows.size(), static_cast<std::size_t>(3));
    const FileRow &first = bench.view.list.rows.front();
    QCOMPARE(first.name, u"a.htm"_s);
    QCOMPARE(first.size, u"1.02 Kb"_s);
    QCOMPARE(first.bytes, u"1024"_s);
    QCOMPARE(first.image, 2);
    const QDateTime written = QFileInfo(folder + u"a.htm"_s).lastModified();
    QCOMPARE(first.date, QLocale::system().toString(written, QLocale::ShortFormat));
    QCOMPARE(bench.view.list.rows[2].size, u"4 000 Kb"_s);

    bench.view.path = u"/"_s;
    bench.view.names.clear();
    bench.commands.refill();
    QCOMPARE(bench.client.session.ftpLocalFolder, u"/"_s);
    QCOMPARE(bench.view.pathText, u"/"_s);
    QCOMPARE(bench.panel(), u"Local: 0 Files in folder: /"_s);
}

void TstLocalCommands::longFolder()
{
    Bench bench;
    bench.view.names.clear();
    bench.view.path = u"/abcdefghijklmnopqrstuvwxyz12"_s;
    bench.commands.refill();
    QCOMPARE(bench.view.pathText, u"/abcdefghijklmnopqrstuvwxyz12/"_s);
    bench.view.path = u"/abcdefghijklmnopqrstuvwxyz123"_s;
    bench.commands.refill();
    QCOMPARE(bench.view.pathText, u"...abcdefghijklmnopqrstuvwxyz123/"_s);
}

void TstLocalCommands::sizes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("size");
    QTest::newRow("empty") << static_cast<qint64>(0) << u"0 Kb"_s;
    QTest::newRow("half") << static_cast<qint64>(500) << u"0.5 Kb"_s;
    QTest::newRow("1024") << static_cast<qint64>(1024) << u"1.02 Kb"_s;
    QTest::newRow("decimal half") << static_cast<qint64>(1005) << u"1.01 Kb"_s;
    QTest::newRow("groups") << static_cast<qint64>(12'345'678'901) << u"12 345 678.9 Kb"_s;
}

void TstLocalCommands::sizes()
{
    QFETCH(qint64, bytes);
    Bench bench;
    bench.write(u"x"_s, bytes);
    const FileRow row = localFileRow(bench.folder.filePath(u"x"_s));
    QTEST(row.size, "size");
    QCOMPARE(row.bytes, QString::number(bytes));
}

void TstLocalCommands::moveTo()
{
    Bench bench;
    bench.view.unreadable = {u"/app/Logon"_s};
    QCOMPARE(Bench::errorOf([&] { bench.commands.moveTo(u"/app/Logon"_s); }), u"Path not found"_s);
    QCOMPARE(bench.view.refreshes, 0);
    bench.commands.moveTo(u"/tmp"_s);
    QCOMPARE(bench.client.session.ftpLocalFolder, u"/tmp/"_s);
}

void TstLocalCommands::drive()
{
    Bench bench;
    bench.view.unreadable = {u"/media/cd"_s};
    QCOMPARE(Bench::errorOf([&] { bench.commands.chooseDrive(u"/media/cd"_s); }), u"Device unavailable"_s);
    QCOMPARE(bench.view.path, bench.folder.path());
    bench.commands.chooseDrive(u"/"_s);
    QCOMPARE(bench.client.session.ftpLocalFolder, u"/"_s);
}

void TstLocalCommands::openFile()
{
    Bench bench;
    bench.view.list.selection = {u"b.gif"_s};
    bench.commands.openFile();
    QCOMPARE(bench.world.shell.opened, QStringList{bench.folder.filePath(u"b.gif"_s)});
}

void TstLocalCommands::openNothing()
{
    Bench bench;
    bench.expectExclamation(u"Nothing to open!"_s);
    bench.commands.openFile();
    QVERIFY(bench.world.shell.opened.isEmpty());
}

void TstLocalCommands::openFails()
{
    Bench bench;
    bench.view.list.selection = {u"b.gif"_s};
    bench.world.shell.failure = Error{Error::Code::Failed, u"There is no program for it."_s};
    bench.expectExclamation(u"There is no program for it."_s);
    bench.commands.openFile();
}

void TstLocalCommands::uploadNotConnected()
{
    Bench bench;
    bench.view.list.selection = {u"b.gif"_s};
    bench.world.prompts.expectTell(u"not connected to any server!"_s);
    bench.commands.upload();
    QVERIFY(bench.desk.calls.isEmpty());
}

void TstLocalCommands::uploadNothing()
{
    Bench bench;
    bench.client.session.ftpOpenHandle = 1;
    bench.client.session.ftpConnectHandle = 2;
    bench.world.prompts.expectTell(u"No files selected!!"_s, {}, Question::Icon::None);
    bench.commands.upload();
    QVERIFY(bench.desk.calls.isEmpty());
    QVERIFY(bench.desk.logged.isEmpty());
}

void TstLocalCommands::upload()
{
    Bench bench;
    bench.client.session.ftpOpenHandle = 1;
    bench.client.session.ftpConnectHandle = 2;
    bench.view.list.selection = {u"c"_s, u"a.htm"_s};
    bench.commands.upload();
    QCOMPARE(bench.client.queue.direction, TransferQueue::Direction::Upload);
    QCOMPARE(bench.client.queue.files, (std::vector<TransferQueue::File>{{u"a.htm"_s, 1024}, {u"c"_s, 4'000'000}}));
    QCOMPARE(bench.desk.calls, (QStringList{u"openModal frmProg"_s, u"refreshRemote"_s}));
    const QString folder = bench.folder.path();
    QCOMPARE(bench.desk.logged,
             bench.time + u" > Colecting files information:\r\n1.) "_s + folder + u"/a.htm\r\n2.) "_s + folder
                 + u"/c\r\n"_s);
}

void TstLocalCommands::newFolder()
{
    Bench bench;
    bench.world.prompts.expectInput({u"Type a name of the new folder here"_s, u"Name"_s}, u"ünï"_s);
    bench.commands.newFolder();
    QVERIFY(QFileInfo(bench.folder.filePath(u"ünï"_s)).isDir());
    QCOMPARE(bench.view.refreshes, 1);
}

void TstLocalCommands::newFolderWithoutName()
{
    Bench bench;
    bench.world.prompts.expectInput({u"Type a name of the new folder here"_s, u"Name"_s}, QString());
    bench.commands.newFolder();
    bench.world.prompts.expectInput({u"Type a name of the new folder here"_s, u"Name"_s}, std::nullopt);
    bench.commands.newFolder();
    QCOMPARE(bench.onDisk().size(), 3);
}

void TstLocalCommands::newFolderFails()
{
    Bench bench;
    bench.world.prompts.expectInput({u"Type a name of the new folder here"_s, u"Name"_s}, u"c"_s);
    bench.expectExclamation(u"an error apeared while creating new folder\r\nMake sure folder doesn't exist!"_s);
    bench.commands.newFolder();
    QCOMPARE(bench.view.refreshes, 0);
}

void TstLocalCommands::removeFolder()
{
    Bench bench;
    QVERIFY(QDir(bench.folder.path()).mkdir(u"old"_s));
    bench.view.path = bench.folder.filePath(u"old"_s);
    bench.expectYesNo(u"Are you sure to remove this folder: old"_s + removeQuestion, Answer::Yes);
    bench.commands.removeFolder();
    QVERIFY(!QFileInfo::exists(bench.folder.filePath(u"old"_s)));
    QCOMPARE(bench.view.path, bench.folder.path());
    QCOMPARE(bench.panel(), u"Local: 3 Files in folder: "_s + bench.folder.path() + u'/');
}

void TstLocalCommands::removeFullFolder()
{
    Bench bench;
    bench.expectYesNo(u"Are you sure to remove this folder: "_s + QFileInfo(bench.folder.path()).fileName()
                          + removeQuestion,
                      Answer::Yes);
    QCOMPARE(Bench::errorOf([&] { bench.commands.removeFolder(); }), u"Path/File access error"_s);
    QCOMPARE(bench.onDisk().size(), 3);
    QCOMPARE(bench.view.path, bench.folder.path());
}

void TstLocalCommands::removeFolderNotSure()
{
    Bench bench;
    QVERIFY(QDir(bench.folder.path()).mkdir(u"old"_s));
    bench.view.path = bench.folder.filePath(u"old"_s);
    bench.expectYesNo(u"Are you sure to remove this folder: old"_s + removeQuestion, Answer::No);
    bench.commands.removeFolder();
    QVERIFY(QFileInfo::exists(bench.folder.filePath(u"old"_s)));
}

void TstLocalCommands::removeProtected_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("message");
    QTest::newRow("root") << u"/"_s << u"This is the root folder that can't be removed!"_s;
    QTest::newRow("program") << u"/app"_s << u"This is the program folder that can't be removed!"_s;
    QTest::newRow("logs") << u"/app/Logon"_s << u"This is the program folder that can't be removed!"_s;
}

void TstLocalCommands::removeProtected()
{
    QFETCH(QString, folder);
    QFETCH(QString, message);
    Bench bench;
    bench.view.path = folder;
    bench.expectExclamation(message);
    bench.commands.removeFolder();
    QCOMPARE(bench.view.path, folder);
}

void TstLocalCommands::deleteFiles()
{
    Bench bench;
    bench.view.list.selection = {u"a.htm"_s, u"c"_s};
    bench.expectYesNo(deleteQuestion, Answer::Yes);
    bench.commands.deleteFiles();
    QCOMPARE(bench.onDisk(), QStringList{u"b.gif"_s});
    QCOMPARE(bench.view.refreshes, 1);
}

void TstLocalCommands::deleteNothing()
{
    Bench bench;
    bench.expectExclamation(u"Neni co vymazat!"_s);
    bench.commands.deleteFiles();
    QCOMPARE(bench.onDisk().size(), 3);
}

void TstLocalCommands::deleteNotSure()
{
    Bench bench;
    bench.view.list.selection = {u"a.htm"_s};
    bench.expectYesNo(deleteQuestion, Answer::No);
    bench.commands.deleteFiles();
    QCOMPARE(bench.onDisk().size(), 3);
}

void TstLocalCommands::programDataIsNamed()
{
    Bench bench;
    const AppContext &world = bench.world;
    const QTemporaryDir program;
    const AppContext context{world.editor,   world.inserter, world.designer, world.document, world.configuration,
                             world.settings, world.files,    world.prompts,  world.shell,    world.clipboard,
                             world.clock,    world.forms,    world.keys,     program.path()};
    LocalCommands commands(bench.client, bench.desk, bench.view, context);
    const auto put = [&](const QString &name) {
        QDir(program.path()).mkpath(QFileInfo(program.filePath(name)).path());
        QFile file(program.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    };
    const auto show = [&](const QString &folder, const QStringList &names) {
        bench.view.path = folder.isEmpty() ? program.path() : program.filePath(folder);
        bench.view.names = names;
        commands.refill();
        bench.view.list.selection = {names.begin(), names.end()};
    };
    for (const QString &name : {u"tags.dat"_s, u"mine.htm"_s, u"deps/csssel.dat"_s, u"Logon/tags.dat"_s})
        put(name);

    show({}, {u"mine.htm"_s, u"tags.dat"_s});
    bench.expectYesNo(deleteQuestion, Answer::Yes);
    bench.expectYesNo(u"Zephira itself needs: tags.dat\r\nDelete it all the same?"_s, Answer::No);
    commands.deleteFiles();
    QVERIFY(QFile::exists(program.filePath(u"tags.dat"_s)) && QFile::exists(program.filePath(u"mine.htm"_s)));
    bench.expectYesNo(u"Zephira itself needs: tags.dat\r\nRename it all the same?"_s, Answer::No);
    QVERIFY(!commands.renameEnded(u"tags.dat"_s, u"t.dat"_s));
    QVERIFY(QFile::exists(program.filePath(u"tags.dat"_s)));

    // After both questions are answered with Yes the file is deleted. Files that the program doesn't need take only
    // one.
    bench.expectYesNo(deleteQuestion, Answer::Yes);
    bench.expectYesNo(u"Zephira itself needs: tags.dat\r\nDelete it all the same?"_s, Answer::Yes);
    commands.deleteFiles();
    QVERIFY(!QFile::exists(program.filePath(u"tags.dat"_s)) && !QFile::exists(program.filePath(u"mine.htm"_s)));
    show(u"Logon"_s, {u"tags.dat"_s});
    bench.expectYesNo(deleteQuestion, Answer::Yes);
    commands.deleteFiles();
    QVERIFY(!QFile::exists(program.filePath(u"Logon/tags.dat"_s)));

    // The same through a link to the folder.
    QVERIFY(QFile::link(program.filePath(u"deps"_s), bench.folder.filePath(u"link"_s)));
    bench.view.path = bench.folder.filePath(u"link"_s);
    bench.view.names = QStringList{u"csssel.dat"_s};
    commands.refill();
    bench.view.list.selection = {u"csssel.dat"_s};
    bench.expectYesNo(deleteQuestion, Answer::Yes);
    bench.expectYesNo(u"Zephira itself needs: csssel.dat\r\nDelete it all the same?"_s, Answer::No);
    commands.deleteFiles();
    QVERIFY(QFile::exists(program.filePath(u"deps/csssel.dat"_s)));
}

void TstLocalCommands::deleteWhatIsGone()
{
    Bench bench;
    bench.view.list.selection = {u"b.gif"_s, u"c"_s};
    QVERIFY(QFile::remove(bench.folder.filePath(u"b.gif"_s)));
    bench.expectYesNo(deleteQuestion, Answer::Yes);
    QCOMPARE(Bench::errorOf([&] { bench.commands.deleteFiles(); }), u"File not found"_s);
    QCOMPARE(bench.onDisk(), (QStringList{u"a.htm"_s, u"c"_s}));
}

void TstLocalCommands::renameNothing()
{
    Bench bench;
    bench.expectExclamation(u"nothing to rename!"_s);
    bench.commands.rename();
    QCOMPARE(bench.view.list.edits, 0);
}

void TstLocalCommands::renameStarts()
{
    Bench bench;
    bench.view.list.selection = {u"b.gif"_s};
    bench.commands.rename();
    QCOMPARE(bench.view.list.edits, 1);
    bench.commands.renameStarted(u"b.gif"_s);
    QCOMPARE(bench.panel(), u"Local: Renaming file: \"b.gif\""_s);
}

void TstLocalCommands::rename()
{
    Bench bench;
    QVERIFY(bench.commands.renameEnded(u"a.htm"_s, u"x y.htm"_s));
    QCOMPARE(bench.onDisk(), (QStringList{u"b.gif"_s, u"c"_s, u"x y.htm"_s}));
    QCOMPARE(Bench::errorOf([&] { bench.commands.renameEnded(u"gone.htm"_s, u"other.htm"_s); }),
             u"Path/File access error"_s);
}

void TstLocalCommands::renameOtherExtension()
{
    Bench bench;
    const QString question = u"Are you sure to exchange the file extension from: \"htm\" to: \"HTM\""_s;
    bench.expectYesNo(question, Answer::No);
    QVERIFY(!bench.commands.renameEnded(u"a.htm"_s, u"a.HTM"_s));
    QVERIFY(bench.onDisk().contains(u"a.htm"_s));
    bench.expectYesNo(question, Answer::Yes);
    QVERIFY(bench.commands.renameEnded(u"a.htm"_s, u"a.HTM"_s));
    QVERIFY(bench.onDisk().contains(u"a.HTM"_s));
}

void TstLocalCommands::renameToAnotherFile()
{
    Bench bench;
    bench.write(u"z.htm"_s, 1);
    QVERIFY(QFile::link(u"/nowhere"_s, bench.folder.filePath(u"link.htm"_s)));
    for (const QString &taken : {u"z.htm"_s, u"link.htm"_s}) {
        bench.expectExclamation(u"More than one file with the same name in one folder? no way!"_s);
        QVERIFY(!bench.commands.renameEnded(u"a.htm"_s, taken));
    }
    QVERIFY(bench.onDisk().contains(u"a.htm"_s));
    QCOMPARE(QFileInfo(bench.folder.filePath(u"z.htm"_s)).size(), 1);
}

void TstLocalCommands::renameOutOfTheFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("upwards") << u"../c"_s;
    QTest::newRow("downwards") << u"sub/c"_s;
    QTest::newRow("NUL") << u"c"_s + QChar::Null;
}

void TstLocalCommands::renameOutOfTheFolder()
{
    QFETCH(QString, name);
    Bench bench;
    const bool asks = name.contains(u'.');
    if (asks)
        bench.expectYesNo(u"Are you sure to exchange the file extension from: \"\" to: \"/c\""_s, Answer::Yes);
    QCOMPARE(Bench::errorOf([&] { bench.commands.renameEnded(u"c"_s, name); }), u"Bad file name or number"_s);
    QVERIFY(bench.onDisk().contains(u"c"_s));
}

void TstLocalCommands::patterns()
{
    Bench bench;
    bench.world.prompts.expectInput({u"Define file type extension (*.?):"_s, u"Pattern"_s}, u"*.htm;*.gif"_s);
    bench.commands.patternDefined();
    QCOMPARE(bench.view.pattern, u"*.htm;*.gif"_s);
    QVERIFY(!bench.view.allFiles);
    QCOMPARE(bench.view.refreshes, 1);
    bench.world.prompts.expectInput({u"Define file type extension (*.?):"_s, u"Pattern"_s}, std::nullopt);
    bench.commands.patternDefined();
    QCOMPARE(bench.view.pattern, u"*.htm;*.gif"_s);
    QCOMPARE(bench.view.refreshes, 1);
    bench.commands.patternAll();
    QCOMPARE(bench.view.pattern, u"*.*"_s);
    QVERIFY(bench.view.allFiles);
    QCOMPARE(bench.view.refreshes, 2);
}

void TstLocalCommands::find()
{
    Bench bench;
    bench.commands.findFile();
    QCOMPARE(bench.world.shell.searches, 1);
    bench.world.shell.failure = Error{Error::Code::Failed, u"Nobody looks."_s};
    bench.expectExclamation(u"Nobody looks."_s);
    bench.commands.findFile();
}

void TstLocalCommands::properties()
{
    Bench bench;
    bench.world.prompts.expectTell(u"Properties of what?"_s, {}, Question::Icon::None);
    bench.commands.showProperties();
    bench.view.list.selection = {u"c"_s};
    bench.commands.showProperties();
    QCOMPARE(bench.world.shell.properties, QStringList{bench.folder.filePath(u"c"_s)});
}

void TstLocalCommands::summary_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QStringList() << u"Local: 0 Files selected, 0 Kb"_s;
    QTest::newRow("one") << QStringList{u"a.htm"_s} << u"Local: 1 Files selected, 1.024 Kb"_s;
    QTest::newRow("all") << QStringList{u"a.htm"_s, u"b.gif"_s, u"c"_s} << u"Local: 3 Files selected, 4001.524 Kb"_s;
}

void TstLocalCommands::summary()
{
    QFETCH(QStringList, names);
    Bench bench;
    bench.view.list.selection = {names.begin(), names.end()};
    bench.commands.showSummary();
    QTEST(bench.panel(), "text");
}

ZEPHIRA_TEST(TstLocalCommands)

#include "tst_localcommands.moc"
