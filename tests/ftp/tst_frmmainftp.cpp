// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/itemroles.h"
#include "ftp/ftpdesk.h"
#include "ftp/ftpwindowbench.h"
#include "ftp/sessionlog.h"
#include "support/testregistry.h"
#include "widgets/dirlistbox.h"
#include "widgets/filelistview.h"
#include "widgets/filerowsmodel.h"

#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSplitter>
#include <QTest>
#include <QTextDocument>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

using Bench = FtpWindowBench;

QString unhandled(const QString &procedure, const QString &error)
{
    return u"An error has occured at: frmmainftp in Procedure: %1\r\nThe error is as follows: %2\r\n"
           "Please Report this to the Zephira. team\r\nClick OK to continue, Cancel to Exit the current SUB"_s.arg(
               procedure, error);
}

} // namespace

class TstFrmmainftp final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void menus();
    void toolBar();
    void toolBarCanBeHidden();
    void bars();
    void notConnected_data();
    void notConnected();
    void listing();
    void nodes();
    void nodesWithTheKeys();
    void refreshWithoutASelectedNode();
    void removeRemoteFolderWithTheKey();
    void deleteRemoteFileWithTheKey();
    void summaries();
    void renameHere();
    void renameHereCancelled();
    void renameOnTheServer();
    void renameFailsOnTheServer();
    void deleteKeyInAName();
    void openFileHere();
    void deleteHereWithTheKey();
    void properties();
    void foldersHere();
    void removeFolderHere();
    void folderGone();
    void localFolderFromOutside();
    void drives();
    void patternsHere();
    void logStartsAtTheCaret();
    void saveAndOpenLogs();
    void missingLogFolder();
    void disconnect();
    void closeAndReopen();
    void transferMarks();
    void upload();
    void helpAndAbout();
};

void TstFrmmainftp::defaults()
{
    Bench bench;
    bench.open();
    QCOMPARE(bench.form->widget().windowTitle(), u"Zephira. FTP"_s);
    QCOMPARE(bench.form->value(u"Label2"_s), u" Local:"_s);
    QCOMPARE(bench.form->value(u"Label4"_s), u" Server:"_s);
    QCOMPARE(bench.client->session.ftpLocalFolder, bench.here());
    QCOMPARE(bench.form->widget().property("LocalFolder").toString(), bench.here());
    QCOMPARE(bench.panel(2), u"Local: 3 Files in folder: "_s + bench.here());
    QCOMPARE(bench.panel(3), QString());
    QCOMPARE(bench.names(bench.local()), (QStringList{u"A.gif"_s, u"b.htm"_s, u"c"_s}));
    QCOMPARE(bench.names(bench.remote()), QStringList());
    QCOMPARE(bench.tree().topLevelItemCount(), 0);
    QVERIFY(bench.form->get<QWidget>(u"File1"_s).isHidden());
    QCOMPARE(bench.form->widget().focusWidget(), &bench.local());
    QVERIFY(!bench.form->get<QAction>(u"zProperties"_s).isEnabled());
    for (const QString &marked : {u"zAll"_s, u"zAll2"_s, u"zBinary"_s, u"zPassive"_s, u"zTools"_s})
        QVERIFY2(bench.form->get<QAction>(marked).isChecked(), qPrintable(marked));
    for (const QString &unmarked : {u"zDefine"_s, u"zDefine2"_s, u"zAscii"_s})
        QVERIFY2(!bench.form->get<QAction>(unmarked).isChecked(), qPrintable(unmarked));
    for (const FileListView *list : {&bench.local(), &bench.remote()}) {
        QStringList heads;
        for (int column = 0; column < 4; ++column)
            heads.append(list->model()->headerData(column, Qt::Horizontal).toString());
        QCOMPARE(heads, (QStringList{u"Name"_s, u"Size"_s, u"Date"_s, QString()}));
    }
}

void TstFrmmainftp::menus()
{
    Bench bench;
    bench.open();
    const auto describe = [](const auto &self, const QList<QAction *> &entries, int depth) -> QString {
        QString text;
        for (const QAction *entry : entries) {
            const QMenu *menu = entry->menu();
            text += QString(depth * 2, u' ') + (menu ? menu->objectName() : entry->objectName()) + u" \""_s
                + entry->text() + u"\"\n"_s;
            if (menu)
                text += self(self, menu->actions(), depth + 1);
        }
        return text;
    };
    auto *bar = bench.form->widget().findChild<QWidget *>(u"menubar"_s);
    QCOMPARE(describe(describe, bar->actions(), 0), uR"menus(zSoubor "&File"
  zOpen "&Open log"
  zSave "&Save log"
  zConnect "&Connect to Server"
  zDisconnect "&Discinnect from Server"
  zOdpojit "&End connection"
  zEnd "Cl&ose"
zLocal "&Local"
  zLokRef "&Refresh"
  zOpenFile "&Open File"
  zLokUp "&Upload"
  zLokNF "&New Folder"
  zLokDF "&Remove Folder"
  zLokDS "&Delete File"
  zLokRS "Rename &File"
  zPat "Pa&ttern"
    zAll "&All files (*.*)"
    zDefine "&Define types (*.?)"
  zFind "Fin&d File"
  zProperties "&Properties"
zRemote "&Remote"
  zRemRef "&Refresh"
  zRemDown "&Download"
  zRemNF "&New Folder"
  zRemDF "Rem&ove Folder"
  zRemDS "&Delete File"
  zRemRS "Ren&ame File"
  zPat2 "Pa&ttern"
    zAll2 "&All files (*.*)"
    zDefine2 "&Define types (*.?)"
zNast "&Tools"
  zTento "&Local"
    ztBigIc "&Big Icons"
    ztSmallIc "&Small Icons"
    ztSeznam "&List"
    ztReport "&Report"
  zServer "&Server"
    zsBigIc "&Big Icons"
    zsSmallIc "&Small Icons"
    zsSeznam "&List"
    zsReport "&Report"
  zTransf "&Transfer"
    zBinary "&Binary"
    zAscii "&ASCII"
    zPassive "&Pasive mode"
  zTools "S&how Toolbar"
)menus"_s);
}

void TstFrmmainftp::toolBar()
{
    Bench bench;
    bench.open();
    QStringList keys;
    const QList<QAction *> all = bench.form->get<QToolBar>(u"Toolbar1"_s).actions();
    for (const QAction *key : all) {
        if (!key->isSeparator())
            keys.append(key->objectName());
    }
    QCOMPARE(keys.join(u' '),
             u"Connect Disconnect Reload Upload NewFolder DelFolder DelFile Rename "
             "Reload2 DownLoad NewFolder2 DelFolder2 DelFile2 Rename2"_s);
    bench.choose(u"Connect"_s);
    QCOMPARE(bench.world.forms.modal, QStringList{u"FrmConnect"_s});
    bench.write(u"new.txt"_s, "x");
    bench.choose(u"Reload"_s);
    QVERIFY(bench.names(bench.local()).contains(u"new.txt"_s));
    bench.world.prompts.expectTell(u"Not connected to any server!"_s);
    bench.choose(u"DownLoad"_s);
}

void TstFrmmainftp::toolBarCanBeHidden()
{
    Bench bench;
    bench.open();
    QWidget &bar = bench.form->get<QToolBar>(u"Toolbar1"_s);
    const int height = bench.form->get<QWidget>(u"centralwidget"_s).height();
    bench.choose(u"zTools"_s);
    QVERIFY(!bar.isVisible());
    QVERIFY(!bench.form->get<QAction>(u"zTools"_s).isChecked());
    QTRY_VERIFY(bench.form->get<QWidget>(u"centralwidget"_s).height() > height);
    bench.choose(u"zTools"_s);
    QVERIFY(bar.isVisible());
    QVERIFY(bench.form->get<QAction>(u"zTools"_s).isChecked());
}

void TstFrmmainftp::bars()
{
    Bench bench;
    bench.open();
    const auto drag = [&](const QString &bar, const QPoint &distance) {
        QWidget &handle = bench.form->get<QSplitterHandle>(bar);
        const QPoint place = handle.rect().center();
        QTest::mousePress(&handle, Qt::LeftButton, {}, place);
        QTest::mouseMove(&handle, place + distance);
        QTest::mouseRelease(&handle, Qt::LeftButton, {}, place + distance);
    };
    const int width = bench.local().width();
    drag(u"Picture1"_s, {-60, 0});
    QVERIFY(bench.local().width() < width);
    const int height = bench.form->get<QWidget>(u"txtInfo"_s).height();
    drag(u"Picture2"_s, {0, -40});
    QVERIFY(bench.form->get<QWidget>(u"txtInfo"_s).height() > height);
}

void TstFrmmainftp::notConnected_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("message");
    QTest::newRow("refresh") << u"zRemRef"_s << u"Not connected to any server!"_s;
    QTest::newRow("download") << u"zRemDown"_s << u"Not connected to any server!"_s;
    QTest::newRow("new folder") << u"zRemNF"_s << u"Not connected to any server"_s;
    QTest::newRow("remove folder") << u"zRemDF"_s << u"Not connected to any Server!"_s;
    QTest::newRow("delete") << u"zRemDS"_s << u"Not connected to any server!"_s;
    QTest::newRow("rename") << u"zRemRS"_s << u"Not connected to any server!"_s;
    QTest::newRow("upload") << u"zLokUp"_s << u"not connected to any server!"_s;
}

void TstFrmmainftp::notConnected()
{
    QFETCH(QString, entry);
    QFETCH(QString, message);
    Bench bench;
    bench.open();
    bench.world.prompts.expectTell(message);
    bench.choose(entry);
    QVERIFY(bench.operations.log.isEmpty());
}

void TstFrmmainftp::listing()
{
    Bench bench;
    bench.openConnected();
    QMetaObject::invokeMethod(&bench.form->widget(), "List");
    const QAbstractItemModel &rows = *bench.remote().model();
    QCOMPARE(rows.rowCount(), 2);
    QStringList cells;
    for (int column = 0; column < rows.columnCount(); ++column)
        cells.append(rows.index(0, column).data().toString());
    QCOMPARE(cells, (QStringList{u"z.txt"_s, u"1Kb"_s, u"5.3.20019:07"_s, u"1024"_s}));
    QCOMPARE(rows.index(0, 0).data(FileRowsModel::ImageRole).toInt(), 3);
    QCOMPARE(rows.index(1, 0).data(FileRowsModel::ImageRole).toInt(), 7);
    QCOMPARE(bench.keys(), (QStringList{u"/"_s, u"/home/"_s, u"/pub/"_s}));
    QVERIFY(bench.node(u"/"_s)->isExpanded());
    QCOMPARE(bench.node(u"/"_s)->text(0), u".."_s);
    QCOMPARE(bench.panel(2), u"Server: 2 Files in folder: /*.*"_s);
    QCOMPARE(bench.form->value(u"Label3"_s), u"/*.*"_s);
    QVERIFY(bench.form->widget().cursor().shape() != Qt::WaitCursor);
    QVERIFY(bench.remote().selected().empty());
    // A folder that is listed a second time isn't in the tree twice.
    QMetaObject::invokeMethod(&bench.form->widget(), "List");
    QCOMPARE(bench.keys().size(), 3);
}

void TstFrmmainftp::nodes()
{
    Bench bench;
    bench.openConnected();
    bench.clickNode(u"/pub/"_s);
    QCOMPARE(bench.client->session.ftpRemoteFolder, u"/pub/"_s);
    QCOMPARE(bench.names(bench.remote()), QStringList{u"inner.css"_s});
    QCOMPARE(bench.keys(), (QStringList{u"/"_s, u"/home/"_s, u"/pub/"_s, u"/pub/docs/"_s}));
    QVERIFY(bench.node(u"/pub/"_s)->isExpanded());
    QCOMPARE(bench.operations.log.first(), u"FtpSetCurrentDirectoryA(901, \"/pub/*.*\")"_s);
    // Going up removes everything below from the tree.
    bench.clickNode(u"/"_s);
    QCOMPARE(bench.client->session.ftpRemoteFolder, u"/"_s);
    QCOMPARE(bench.keys(), (QStringList{u"/"_s, u"/home/"_s, u"/pub/"_s}));
}

void TstFrmmainftp::nodesWithTheKeys()
{
    Bench bench;
    bench.openConnected();
    bench.clickNode(u"/"_s);
    bench.operations.log.clear();
    QTest::keyClick(&bench.tree(), Qt::Key_Down);
    QCOMPARE(bench.client->session.ftpRemoteFolder, u"/pub/"_s);
    const qsizetype calls = bench.operations.log.size();
    QTest::keyClick(&bench.tree(), Qt::Key_Shift);
    QCOMPARE(bench.operations.log.size(), calls);
    QTest::keyClick(&bench.tree(), Qt::Key_Return);
    QVERIFY(bench.operations.log.size() > calls);
}

void TstFrmmainftp::refreshWithoutASelectedNode()
{
    Bench bench;
    bench.openConnected();
    bench.choose(u"zRemRef"_s);
    QVERIFY(bench.operations.log.isEmpty());
}

void TstFrmmainftp::removeRemoteFolderWithTheKey()
{
    Bench bench;
    bench.openConnected();
    bench.clickNode(u"/pub/"_s);
    bench.operations.log.clear();
    bench.world.prompts.expect(
        {u"Are you sure to remove this folder: pub?"_s, {}, Question::Icon::Question, Question::Buttons::YesNo},
        Answer::Yes);
    QTest::keyClick(&bench.tree(), Qt::Key_Delete);
    QCOMPARE(bench.operations.log.first(), u"FtpRemoveDirectoryA(902, \"/pub\")"_s);
    QCOMPARE(bench.tree().selectedItems(), QList<QTreeWidgetItem *>{bench.node(u"/"_s)});
    QCOMPARE(bench.client->session.ftpRemoteFolder, u"/"_s);
}

void TstFrmmainftp::deleteRemoteFileWithTheKey()
{
    Bench bench;
    bench.openConnected();
    bench.clickNode(u"/"_s);
    Bench::click(bench.remote(), 1);
    bench.operations.log.clear();
    QTest::keyPress(&bench.remote(), Qt::Key_Delete);
    QVERIFY2(bench.operations.log.isEmpty(), "the key counts when it is released");
    bench.world.prompts.expect(
        {u"Are you sure to delete all of these files?"_s, {}, Question::Icon::Question, Question::Buttons::YesNo},
        Answer::Yes);
    QTest::keyRelease(&bench.remote(), Qt::Key_Delete);
    QCOMPARE(bench.operations.log.first(), u"FtpDeleteFileA(902, \"/a.zip\")"_s);
}

void TstFrmmainftp::summaries()
{
    Bench bench;
    bench.openConnected();
    Bench::click(bench.remote(), 0);
    QCOMPARE(bench.panel(2), u"Server: 1 Files selected, 1.024 kb"_s);
    Bench::click(bench.remote(), 1, Qt::ControlModifier);
    QCOMPARE(bench.panel(2), u"Server: 2 Files selected, 3.072 kb"_s);
    Bench::click(bench.local(), 0);
    QCOMPARE(bench.panel(2), u"Local: 1 Files selected, 0.5 Kb"_s);
    Bench::click(bench.local(), 2, Qt::ShiftModifier);
    QCOMPARE(bench.panel(2), u"Local: 3 Files selected, 1.554 Kb"_s);
    QTest::mouseClick(bench.local().viewport(), Qt::LeftButton, {}, bench.local().viewport()->rect().bottomLeft());
    QCOMPARE(bench.panel(2), u"Local: 0 Files selected, 0 Kb"_s);
}

void TstFrmmainftp::renameHere()
{
    Bench bench;
    bench.open();
    bench.world.prompts.expectTell(u"nothing to rename!"_s, {}, Question::Icon::Exclamation);
    bench.choose(u"zLokRS"_s);
    Bench::click(bench.local(), 1);
    bench.choose(u"zLokRS"_s);
    QCOMPARE(bench.panel(2), u"Local: Renaming file: \"b.htm\""_s);
    bench.typeName(bench.local(), u"new.htm"_s);
    QTRY_VERIFY(QFile::exists(bench.path(u"new.htm"_s)));
    QTRY_COMPARE(bench.names(bench.local()), (QStringList{u"A.gif"_s, u"new.htm"_s, u"c"_s}));
    QVERIFY(!QFile::exists(bench.path(u"b.htm"_s)));
}

void TstFrmmainftp::renameHereCancelled()
{
    Bench bench;
    bench.open();
    Bench::click(bench.local(), 1);
    bench.choose(u"Rename"_s);
    bool asked = false;
    bench.world.prompts.expect({u"Are you sure to exchange the file extension from: \"htm\" to: \"html\""_s,
                                {},
                                Question::Icon::Question,
                                Question::Buttons::YesNo},
                               Answer::No, [&] { asked = true; });
    bench.typeName(bench.local(), u"b.html"_s);
    QTRY_VERIFY(asked);
    QCOMPARE(bench.names(bench.local())[1], u"b.htm"_s);
    // A name that leads to another folder is an error without a specific message.
    bench.choose(u"Rename"_s);
    asked = false;
    bench.world.prompts.expect({unhandled(u"ListView1_AfterLabelEdit"_s, u"Bad file name or number"_s),
                                {},
                                Question::Icon::Critical,
                                Question::Buttons::OkCancel},
                               Answer::Ok, [&] { asked = true; });
    bench.typeName(bench.local(), u"Logon/b.htm"_s);
    QTRY_VERIFY(asked);
    QCOMPARE(bench.names(bench.local())[1], u"b.htm"_s);
    QVERIFY(QFile::exists(bench.path(u"b.htm"_s)));
}

void TstFrmmainftp::renameOnTheServer()
{
    Bench bench;
    bench.openConnected();
    bench.clickNode(u"/"_s);
    Bench::click(bench.remote(), 0);
    bench.choose(u"zRemRS"_s);
    QCOMPARE(bench.panel(2), u"Server: Renaming file: \"z.txt\""_s);
    bench.operations.log.clear();
    bench.operations.folders[u"/*.*"_s] = {foundFile(u"y.txt"_s, 1)};
    bench.typeName(bench.remote(), u"y.txt"_s);
    QTRY_VERIFY(!bench.operations.log.isEmpty());
    QCOMPARE(bench.operations.log.first(), u"FtpRenameFileA(902, \"/z.txt\", \"/y.txt\")"_s);
    QCOMPARE(bench.names(bench.remote()), QStringList{u"y.txt"_s});
}

void TstFrmmainftp::renameFailsOnTheServer()
{
    Bench bench;
    bench.openConnected();
    bench.operations.failures[u"FtpRenameFileA"_s] = 1;
    Bench::click(bench.remote(), 0);
    bench.choose(u"Rename2"_s);
    bench.world.prompts.expectTell(u"Can't accomplishe request!"_s, {}, Question::Icon::Exclamation);
    bench.typeName(bench.remote(), u"y.txt"_s);
    QTRY_COMPARE(bench.names(bench.remote()), (QStringList{u"y.txt"_s, u"a.zip"_s}));
    bench.clickNode(u"/"_s);
    QCOMPARE(bench.names(bench.remote()), (QStringList{u"z.txt"_s, u"a.zip"_s}));
}

void TstFrmmainftp::deleteKeyInAName()
{
    Bench bench;
    bench.openConnected();
    Bench::click(bench.remote(), 0);
    bench.choose(u"zRemRS"_s);
    auto *editor = bench.remote().findChild<QLineEdit *>();
    QVERIFY(editor);
    QTest::keyClick(editor, Qt::Key_Delete);
    QCOMPARE(editor->text(), QString());
    QTest::keyClick(editor, Qt::Key_Escape);
    QVERIFY(bench.operations.log.isEmpty());
}

void TstFrmmainftp::openFileHere()
{
    Bench bench;
    bench.open();
    bench.world.prompts.expectTell(u"Nothing to open!"_s, {}, Question::Icon::Exclamation);
    bench.choose(u"zOpenFile"_s);
    Bench::click(bench.local(), 0);
    QTest::keyClick(&bench.local(), Qt::Key_Return);
    const QPoint place = bench.local().visualRect(bench.local().model()->index(1, 0)).center();
    QTest::mouseClick(bench.local().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(bench.local().viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(bench.world.shell.opened, (QStringList{bench.path(u"A.gif"_s), bench.path(u"b.htm"_s)}));
}

void TstFrmmainftp::deleteHereWithTheKey()
{
    Bench bench;
    bench.open();
    Bench::click(bench.local(), 0);
    bench.world.prompts.expect({u"Are you sure to delete these files?\r\nif you are, don't look for them in recycle!"_s,
                                {},
                                Question::Icon::Question,
                                Question::Buttons::YesNo},
                               Answer::Yes);
    QTest::keyClick(&bench.local(), Qt::Key_Delete);
    QCOMPARE(bench.names(bench.local()), (QStringList{u"b.htm"_s, u"c"_s}));
    QVERIFY(!QFile::exists(bench.path(u"A.gif"_s)));
}

void TstFrmmainftp::properties()
{
    Bench bench;
    bench.open();
    Bench::click(bench.local(), 2);
    QAction &entry = bench.form->get<QAction>(u"zProperties"_s);
    QVERIFY(entry.isEnabled());
    entry.trigger();
    QCOMPARE(bench.world.shell.properties, QStringList{bench.path(u"c"_s)});
    bench.choose(u"zLokRef"_s);
    QVERIFY(entry.isEnabled());
    bench.world.prompts.expectTell(u"Properties of what?"_s, {}, Question::Icon::None);
    entry.trigger();
    bench.choose(u"zFind"_s);
    QCOMPARE(bench.world.shell.searches, 1);
}

void TstFrmmainftp::foldersHere()
{
    Bench bench;
    bench.open();
    QTreeWidgetItem *logs = bench.localFolder(u"Logon"_s);
    QVERIFY(logs);
    const QPoint place = bench.folders().visualItemRect(logs).center();
    QTest::mouseClick(bench.folders().viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(bench.panel(2), u"Local: Doudle click folder for retreiving files"_s);
    QCOMPARE(bench.client->session.ftpLocalFolder, bench.here());
    QTest::mouseDClick(bench.folders().viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(bench.client->session.ftpLocalFolder, bench.here() + u"Logon/"_s);
    QCOMPARE(bench.names(bench.local()), QStringList{u"old.txt"_s});
    bench.world.prompts.expectInput({u"Type a name of the new folder here"_s, u"Name"_s}, u"sub"_s);
    bench.choose(u"NewFolder"_s);
    QVERIFY(bench.localFolder(u"sub"_s));
    bench.folders().setCurrentItem(bench.localFolder(u"sub"_s));
    QTest::keyClick(&bench.folders(), Qt::Key_Return);
    QCOMPARE(bench.folders().path(), bench.path(u"Logon/sub"_s));
}

void TstFrmmainftp::removeFolderHere()
{
    Bench bench;
    QVERIFY(QDir(bench.folder.path()).mkdir(u"old"_s));
    bench.open();
    bench.folders().setProperty("Path", bench.path(u"old"_s));
    QCOMPARE(bench.client->session.ftpLocalFolder, bench.here() + u"old/"_s);
    const QString question = u"Are you sure to remove this folder: %1? Make sure it contains no files!\r\n"
                             "If you are, don't look for it in recycle!"_s;
    bench.world.prompts.expect({question.arg(u"old"), {}, Question::Icon::Question, Question::Buttons::YesNo},
                               Answer::Yes);
    QTest::keyClick(&bench.folders(), Qt::Key_Delete);
    QVERIFY(!QFileInfo::exists(bench.path(u"old"_s)));
    QCOMPARE(bench.client->session.ftpLocalFolder, bench.here());
    bench.world.prompts.expectTell(u"This is the program folder that can't be removed!"_s, {},
                                   Question::Icon::Exclamation);
    bench.choose(u"zLokDF"_s);

    bench.write(u"full/x"_s, "x");
    bench.folders().setProperty("Path", bench.path(u"full"_s));
    bench.world.prompts.expect({question.arg(u"full"), {}, Question::Icon::Question, Question::Buttons::YesNo},
                               Answer::Yes);
    bench.world.prompts.expect({unhandled(u"zLokDF_Click"_s, u"Path/File access error"_s),
                                {},
                                Question::Icon::Critical,
                                Question::Buttons::OkCancel},
                               Answer::Ok);
    bench.choose(u"zLokDF"_s);
    QVERIFY(QFileInfo::exists(bench.path(u"full/x"_s)));
}

void TstFrmmainftp::folderGone()
{
    Bench bench;
    QVERIFY(QDir(bench.folder.path()).mkpath(u"one/two"_s));
    bench.open();
    bench.folders().setProperty("Path", bench.path(u"one/two"_s));
    QVERIFY(QDir(bench.path(u"one"_s)).removeRecursively());
    bench.choose(u"zLokRef"_s);
    QCOMPARE(bench.client->session.ftpLocalFolder, bench.here());
}

void TstFrmmainftp::localFolderFromOutside()
{
    Bench bench;
    bench.open();
    bench.form->widget().setProperty("LocalFolder", bench.path(u"Logon/"_s));
    QCOMPARE(bench.client->session.ftpLocalFolder, bench.here() + u"Logon/"_s);
    QCOMPARE(bench.names(bench.local()), QStringList{u"old.txt"_s});
    bench.form->widget().setProperty("LocalFolder", u"/no/such/folder"_s);
    bench.form->widget().setProperty("LocalFolder", u"relative"_s);
    QCOMPARE(bench.client->session.ftpLocalFolder, bench.here() + u"Logon/"_s);
}

void TstFrmmainftp::drives()
{
    Bench bench;
    bench.open();
    auto &drives = bench.form->get<QComboBox>(u"Drive1"_s);
    QCOMPARE(drives.itemText(0), u"/"_s);
    QTest::mousePress(&drives, Qt::LeftButton);
    QCOMPARE(bench.panel(2), u"Local: Chose local disk"_s);
    drives.hidePopup();
    Q_EMIT drives.textActivated(u"/"_s);
    QCOMPARE(bench.client->session.ftpLocalFolder, u"/"_s);
    bench.world.prompts.expect({unhandled(u"Drive1_Change"_s, u"Device unavailable"_s),
                                {},
                                Question::Icon::Critical,
                                Question::Buttons::OkCancel},
                               Answer::Ok);
    Q_EMIT drives.textActivated(u"/no/such/drive"_s);
    QCOMPARE(bench.client->session.ftpLocalFolder, u"/"_s);
}

void TstFrmmainftp::patternsHere()
{
    Bench bench;
    bench.open();
    bench.world.prompts.expectInput({u"Define file type extension (*.?):"_s, u"Pattern"_s}, u"*.HTM"_s);
    bench.choose(u"zDefine"_s);
    QCOMPARE(bench.names(bench.local()), QStringList{u"b.htm"_s});
    QVERIFY(bench.form->get<QAction>(u"zDefine"_s).isChecked());
    QVERIFY(!bench.form->get<QAction>(u"zAll"_s).isChecked());
    bench.choose(u"zAll"_s);
    QCOMPARE(bench.local().count(), 3);
    QVERIFY(bench.form->get<QAction>(u"zAll"_s).isChecked());
    QVERIFY(!bench.form->get<QAction>(u"zDefine"_s).isChecked());
}

void TstFrmmainftp::logStartsAtTheCaret()
{
    Bench bench;
    bench.open();
    auto &log = bench.form->get<QPlainTextEdit>(u"txtInfo"_s);
    bench.desk().log(LogEntry::ServiceFailed);
    bench.desk().log(LogEntry::QueuedFile, {u"1"_s, u"/x"_s});
    QCOMPARE(log.toPlainText(), u"Connection to service failed.\n1.) /x\n"_s);
    QTextCursor cursor = log.textCursor();
    cursor.setPosition(0);
    cursor.setPosition(10, QTextCursor::KeepAnchor);
    log.setTextCursor(cursor);
    bench.desk().log(LogEntry::QueuedFile, {u"2"_s, u"/y"_s});
    bench.desk().log(LogEntry::QueuedFile, {u"3"_s, u"/z"_s});
    QCOMPARE(log.toPlainText(), u"2.) /y\n3.) /z\n to service failed.\n1.) /x\n"_s);
    bench.desk().clearLog();
    QCOMPARE(log.toPlainText(), QString());
}

void TstFrmmainftp::saveAndOpenLogs()
{
    Bench bench;
    bench.open();
    bench.world.prompts.expectTell(u"Nothing to be saved!"_s, {}, Question::Icon::Exclamation);
    bench.choose(u"zSave"_s);
    for (const QString &path : {u"/a/long/path"_s, u"/x"_s}) {
        bench.desk().clearLog();
        bench.desk().log(LogEntry::QueuedFile, {u"1"_s, path});
        bench.world.prompts.expectInput({u"Type name for the log file:"_s, u"Log File"_s}, u"today"_s);
        bench.world.prompts.expectTell(u"File saved as: \r\n"_s + bench.path(u"Logon/today.txt"_s));
        bench.choose(u"zSave"_s);
    }
    QCOMPARE(bench.read(u"Logon/today.txt"_s), QByteArray("1.) /x\r\nong/path\r\n"));
    bench.choose(u"zOpen"_s);
    QCOMPARE(bench.client->session.ftpLocalFolder, bench.here() + u"Logon/"_s);
    QCOMPARE(bench.names(bench.local()), (QStringList{u"old.txt"_s, u"today.txt"_s}));
}

void TstFrmmainftp::missingLogFolder()
{
    Bench bench;
    bench.open();
    QVERIFY(QDir(bench.path(u"Logon"_s)).removeRecursively());
    bench.world.prompts.expect(
        {unhandled(u"zOpen_Click"_s, u"Path not found"_s), {}, Question::Icon::Critical, Question::Buttons::OkCancel},
        Answer::Ok);
    bench.choose(u"zOpen"_s);
    QCOMPARE(bench.client->session.ftpLocalFolder, bench.here());
    const Result<void> unwritten = bench.files.write(bench.path(u"Logon/x.txt"_s), QByteArrayView("x"));
    QVERIFY(!unwritten);
    bench.desk().log(LogEntry::Done);
    bench.world.prompts.expectInput({u"Type name for the log file:"_s, u"Log File"_s}, u"x"_s);
    bench.world.prompts.expect({unhandled(u"zSave_Click"_s, unwritten.error().sentence),
                                {},
                                Question::Icon::Critical,
                                Question::Buttons::OkCancel},
                               Answer::Ok);
    bench.choose(u"zSave"_s);
}

void TstFrmmainftp::disconnect()
{
    Bench bench;
    bench.openConnected();
    bench.desk().setPanel(connectionPanel, u"Online"_s);
    bench.choose(u"zDisconnect"_s);
    QCOMPARE(bench.operations.log, (QStringList{u"InternetCloseHandle(902)"_s, u"InternetCloseHandle(901)"_s}));
    QCOMPARE(bench.log(), timeOfDay(bench.world.clock.time) + u" > Server disconnected.\n"_s);
    QCOMPARE(bench.panel(3), u"Online"_s);
    QCOMPARE(bench.remote().count(), 2);
    QCOMPARE(bench.keys().size(), 3);
    bench.world.prompts.expectTell(u"Not connected to any server!"_s);
    bench.choose(u"zRemRef"_s);
    // A click on a folder is refused, too, with a text of its own.
    bench.world.prompts.expectTell(u"You are not connected to any server"_s);
    bench.clickNode(u"/"_s);
}

void TstFrmmainftp::closeAndReopen()
{
    Bench bench;
    bench.openConnected();
    bench.choose(u"zEnd"_s);
    QVERIFY(!bench.form->isOpen());
    QCOMPARE(bench.operations.log, (QStringList{u"InternetCloseHandle(902)"_s, u"InternetCloseHandle(901)"_s}));
    bench.form.reset();
    bench.open();
    QVERIFY(bench.client->session.isConnected());
    bench.operations.failures[u"FtpFindFirstFileA"_s] = -1;
    QMetaObject::invokeMethod(&bench.form->widget(), "List");
    QCOMPARE(bench.panel(2), u"Server: 0 Files in folder: /*.*"_s);
}

void TstFrmmainftp::transferMarks()
{
    Bench bench;
    bench.open();
    bench.choose(u"zAscii"_s);
    QCOMPARE(bench.client->session.ftpTransferType, 1);
    QVERIFY(bench.form->get<QAction>(u"zAscii"_s).isChecked());
    QVERIFY(!bench.form->get<QAction>(u"zBinary"_s).isChecked());
    bench.choose(u"zBinary"_s);
    QCOMPARE(bench.client->session.ftpTransferType, 2);
    QVERIFY(bench.form->get<QAction>(u"zBinary"_s).isChecked());
    QVERIFY(!bench.form->get<QAction>(u"zAscii"_s).isChecked());
    bench.choose(u"zPassive"_s);
    QVERIFY(!bench.form->get<QAction>(u"zPassive"_s).isChecked());
    bench.choose(u"zPassive"_s);
    QVERIFY(bench.form->get<QAction>(u"zPassive"_s).isChecked());
    QCOMPARE(bench.client->session.ftpTransferType, 2);
    QVERIFY(bench.operations.log.isEmpty());
}

void TstFrmmainftp::upload()
{
    Bench bench;
    bench.openConnected();
    bench.clickNode(u"/pub/"_s);
    Bench::click(bench.local(), 1);
    bench.operations.log.clear();
    bench.choose(u"Upload"_s);
    QCOMPARE(bench.world.forms.modal, QStringList{u"frmProg"_s});
    QCOMPARE(bench.client->queue.files, (std::vector<TransferQueue::File>{{u"b.htm"_s, 1024}}));
    QCOMPARE(bench.operations.log.first(), u"FtpSetCurrentDirectoryA(901, \"/pub/*.*\")"_s);
}

void TstFrmmainftp::helpAndAbout()
{
    Bench bench;
    bench.open();
    bench.world.prompts.expectTell(u"Try to do that the same way couple of times,\r\nThen click on help."_s, u"Help"_s);
    QTest::keyClick(&bench.form->widget(), Qt::Key_F1, Qt::ControlModifier);
    bench.world.prompts.verify();
    QMetaObject::invokeMethod(&bench.form->widget(), "About");
    QCOMPARE(bench.world.forms.modal, QStringList{u"frmAbout"_s});
}

ZEPHIRA_TEST(TstFrmmainftp)

#include "tst_frmmainftp.moc"
