// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/ftpcommandtables.h"
#include "ftp/ftpwindowbench.h"
#include "support/scrollbars.h"
#include "support/testregistry.h"

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

} // namespace

/// How the lists, the tree and the toolbar of the window react to mouse and keys.
class TstFtpLists final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toolBarTellsTheSidesApart();
    void theKeysInItsTips();
    void noScrollBarWithoutNeed_data();
    void noScrollBarWithoutNeed();
    void nodesWithTheMouse();
    void doubleClickedNodeIsListedOnce();
    void renameWithTheKey();
    void tabInAName();
    void panelAfterADoubleClick();
    void bigIconsScrollInOneDirection();
    void menuKeysOfTheLists_data();
    void menuKeysOfTheLists();
    void manyLogLines();
    void namesAreShownAsTheyAre();
    void manyEntries();
    void sorting();
    void sortingSizesAsText();
    void sortingStays();
    void views();
    void popups();
    void dragging();
};

void TstFtpLists::toolBarTellsTheSidesApart()
{
    Bench bench;
    bench.open();
    const auto &bar = bench.form->get<QToolBar>(u"Toolbar1"_s);
    const auto button = [&](const QString &key) {
        return qobject_cast<QToolButton *>(bar.widgetForAction(&bench.form->get<QAction>(key)));
    };
    for (const auto &[key, label] : {std::pair(u"Upload"_s, u"Upload"_s), std::pair(u"DownLoad"_s, u"Download"_s)}) {
        QCOMPARE(button(key)->text(), label);
        QCOMPARE(button(key)->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    }
    for (const QString &key : {u"Reload"_s, u"NewFolder"_s, u"DelFolder"_s, u"DelFile"_s, u"Rename"_s}) {
        const auto pixels = [&](const QString &name) { return button(name)->icon().pixmap(bar.iconSize()).toImage(); };
        QVERIFY2(pixels(key) != pixels(key + u'2'), qPrintable(key));
        QVERIFY(button(key)->toolTip() != button(key + u'2')->toolTip());
    }
}

/// The keys that a tip names do in their list what the button does, and a button whose keys these are names them.
void TstFtpLists::theKeysInItsTips()
{
    Bench bench;
    bench.open();
    QStringList heard;
    bench.world.prompts.onFailure = [&](const QString &message) { heard.append(message); };
    const auto listOf = [&](const FtpToolKey &row) -> QWidget & {
        const bool isLocal = row.side == FtpToolKey::Side::Local;
        if (row.key.startsWith(u"DelFolder"))
            return isLocal ? static_cast<QWidget &>(bench.folders()) : bench.tree();
        return isLocal ? bench.local() : bench.remote();
    };
    int named = 0;
    for (const std::span<const FtpToolKey> rows : {localToolKeys(), remoteToolKeys()}) {
        for (const FtpToolKey &row : rows) {
            const QString key = row.key.toString();
            const QString tip = bench.form->get<QAction>(key).toolTip();
            QCOMPARE(tip, row.pressed.isEmpty() ? row.tip.toString() : u"%1 (%2)"_s.arg(row.tip, row.pressed));
            if (row.pressed.isEmpty())
                continue;
            ++named;
            heard.clear();
            bench.choose(key);
            listOf(row).setFocus();
            const QKeySequence keys(row.pressed.toString(), QKeySequence::PortableText);
            QTest::keyClick(&listOf(row), keys[0].key(), keys[0].keyboardModifiers());
            QVERIFY2(heard.size() == 2, qPrintable(key + u": "_s + heard.join(u'\n')));
            QCOMPARE(heard[1], heard[0]);
        }
    }
    QCOMPARE(named, 6);
}

void TstFtpLists::noScrollBarWithoutNeed_data()
{
    QTest::addColumn<int>("files");
    for (const int files : {0, 1, 5, 12, 40, 200})
        QTest::addRow("%d files", files) << files;
}

void TstFtpLists::noScrollBarWithoutNeed()
{
    QFETCH(int, files);
    Bench bench;
    for (int i = 0; i < files; ++i) {
        bench.write(u"page %1.htm"_s.arg(i), QByteArray(i * 100, 'x'));
        bench.operations.folders[u"/*.*"_s].push_back(
            foundFile(u"remote page %1.htm"_s.arg(i), static_cast<quint64>(i) * 1000));
    }
    bench.openConnected();
    for (const QString &view : {u"BigIc"_s, u"SmallIc"_s, u"Seznam"_s, u"Report"_s}) {
        bench.choose(u"zt"_s + view);
        bench.choose(u"zs"_s + view);
        const QStringList found = needlessScrollBars(bench.form->widget());
        QVERIFY2(found.isEmpty(), qPrintable(view + u": "_s + found.join(u'\n')));
    }
}

void TstFtpLists::nodesWithTheMouse()
{
    Bench bench;
    bench.openConnected();
    const auto placeOf = [&](const QString &key) { return bench.tree().visualItemRect(bench.node(key)).center(); };
    // Any button selects.
    QTest::mouseClick(bench.tree().viewport(), Qt::RightButton, {}, placeOf(u"/pub/"_s));
    QTRY_COMPARE(bench.client->session.ftpRemoteFolder, u"/pub/"_s);
    QCOMPARE(bench.panel(2), u"Server: 1 Files in folder: /pub/*.*"_s);
    QTest::mouseClick(bench.tree().viewport(), Qt::MiddleButton, {}, placeOf(u"/home/"_s));
    QTRY_COMPARE(bench.client->session.ftpRemoteFolder, u"/home/"_s);
    // A button that is released elsewhere makes no click, but the press has selected.
    QTest::mousePress(bench.tree().viewport(), Qt::LeftButton, {}, placeOf(u"/pub/"_s));
    QTest::mouseRelease(bench.tree().viewport(), Qt::LeftButton, {}, QPoint(2, bench.tree().viewport()->height() - 2));
    QTRY_COMPARE(bench.client->session.ftpRemoteFolder, bench.tree().selectedItems().first()->data(0, KeyRole));
    // Even while the button is down, the folder that the question names is the one that is removed.
    bench.clickNode(u"/pub/"_s);
    QTest::mousePress(bench.tree().viewport(), Qt::RightButton, {}, placeOf(u"/home/"_s));
    bench.operations.log.clear();
    bench.world.prompts.expect(
        {u"Are you sure to remove this folder: home?"_s, {}, Question::Icon::Question, Question::Buttons::YesNo},
        Answer::Yes);
    QTest::keyPress(&bench.tree(), Qt::Key_Delete);
    QCOMPARE(bench.operations.log.first(), u"FtpRemoveDirectoryA(902, \"/home\")"_s);
}

void TstFtpLists::doubleClickedNodeIsListedOnce()
{
    Bench bench;
    bench.openConnected();
    const QPoint place = bench.tree().visualItemRect(bench.node(u"/pub/"_s)).center();
    QTest::mouseClick(bench.tree().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(bench.tree().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(bench.tree().viewport(), Qt::LeftButton, {}, place);
    QCoreApplication::processEvents();
    QCOMPARE(bench.operations.log.filter(u"FtpFindFirstFileA"_s).size(), 1);
    QCOMPARE(bench.panel(2), u"Server: 1 Files in folder: /pub/*.*"_s);
    QVERIFY(bench.node(u"/pub/"_s)->isExpanded());
}

void TstFtpLists::renameWithTheKey()
{
    Bench bench;
    bench.openConnected();
    // The key runs the command, including its messages.
    bench.remote().setFocus();
    bench.world.prompts.expectTell(u"Nothing to rename!"_s, {}, Question::Icon::Exclamation);
    QTest::keyClick(&bench.remote(), Qt::Key_F2);
    Bench::click(bench.remote(), 0);
    QTest::keyClick(&bench.remote(), Qt::Key_F2);
    QVERIFY(bench.remote().findChild<QLineEdit *>());
    QTest::keyClick(bench.remote().findChild<QLineEdit *>(), Qt::Key_Escape);
    bench.client->session.ftpConnectHandle = 0;
    bench.world.prompts.expectTell(u"Not connected to any server!"_s);
    QTest::keyClick(&bench.remote(), Qt::Key_F2);
    bench.world.prompts.expectTell(u"nothing to rename!"_s, {}, Question::Icon::Exclamation);
    bench.local().setFocus();
    bench.local().clearSelection();
    QTest::keyClick(&bench.local(), Qt::Key_F2);
}

void TstFtpLists::tabInAName()
{
    Bench bench;
    bench.openConnected();
    Bench::click(bench.remote(), 0);
    QTest::keyClick(&bench.remote(), Qt::Key_F2);
    auto *editor = bench.remote().findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->setText(u"one"_s);
    QTest::keyClick(editor, Qt::Key_Tab);
    QVERIFY2(bench.remote().findChild<QLineEdit *>() == editor, "the name is still being typed");
    editor->clear();
    editor->insert(u"one\ttwo.txt"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(bench.operations.log.filter(u"FtpRenameFileA"_s),
                 QStringList{u"FtpRenameFileA(902, \"/z.txt\", \"/one\ttwo.txt\")"_s});
}

void TstFtpLists::panelAfterADoubleClick()
{
    Bench bench;
    bench.write(u"inside/x.htm"_s, "x");
    bench.open();
    bench.choose(u"zLokRef"_s);
    DirListBox &folders = bench.folders();
    const QModelIndexList found = folders.model()->match(folders.model()->index(0, 0), Qt::DisplayRole, u"inside"_s, 1,
                                                         Qt::MatchExactly | Qt::MatchRecursive);
    QCOMPARE(found.size(), 1);
    folders.scrollTo(found.first());
    const QPoint place = folders.visualRect(found.first()).center();
    QTest::mouseClick(folders.viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(bench.panel(2), u"Local: Doudle click folder for retreiving files"_s);
    QTest::mouseDClick(folders.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(folders.viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(bench.panel(2), u"Local: 1 Files in folder: "_s + bench.here() + u"inside/"_s);
    QTest::mouseClick(folders.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(bench.panel(2), u"Local: Doudle click folder for retreiving files"_s);
}

void TstFtpLists::bigIconsScrollInOneDirection()
{
    Bench bench;
    for (int i = 0; i < 200; ++i)
        bench.write(u"file %1.htm"_s.arg(i), "x");
    bench.open();
    struct Row {
        QString entry;
        bool down;
    };
    for (const auto &[entry, down] : {Row{u"ztBigIc"_s, true}, Row{u"ztSmallIc"_s, true}, Row{u"ztSeznam"_s, false}}) {
        bench.choose(entry);
        const auto *icons = bench.local().findChild<QListView *>();
        for (int width = 300; width < 420; width += 3) {
            bench.local().resize(width, 200);
            QTRY_VERIFY2((down ? icons->verticalScrollBar() : icons->horizontalScrollBar())->isVisible(),
                         qPrintable(entry + QString::number(width)));
            QVERIFY2(!(down ? icons->horizontalScrollBar() : icons->verticalScrollBar())->isVisible(),
                     qPrintable(entry + QString::number(width)));
        }
    }
}

void TstFtpLists::menuKeysOfTheLists_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("menu");
    QTest::newRow("local files") << u"ListView1"_s << u"zLocal"_s;
    QTest::newRow("local folders") << u"Dir1"_s << u"zLocal"_s;
    QTest::newRow("server's files") << u"ListView2"_s << u"zRemote"_s;
    QTest::newRow("server's folders") << u"TView1"_s << u"zRemote"_s;
}

void TstFtpLists::menuKeysOfTheLists()
{
    QFETCH(QString, name);
    QFETCH(QString, menu);
    Bench bench;
    bench.openConnected();
    auto &view = bench.form->get<QAbstractItemView>(name);
    auto &popUp = bench.form->get<QMenu>(menu);
    view.setFocus();
    view.setCurrentIndex(view.model()->index(0, 0));
    const QRect place(view.mapToGlobal(QPoint()), view.size());
    QTest::keyClick(&view, Qt::Key_F10);
    QTest::keyClick(&view, Qt::Key_F10, Qt::ControlModifier);
    QCoreApplication::processEvents();
    QVERIFY(!popUp.isVisible());
    QTest::keyClick(&view, Qt::Key_F10, Qt::ShiftModifier);
    QTRY_VERIFY(popUp.isVisible());
    QVERIFY(place.contains(popUp.pos()));
    popUp.close();
    QContextMenuEvent key(QContextMenuEvent::Keyboard, view.viewport()->rect().center(), place.center());
    QCoreApplication::sendEvent(&view, &key);
    QTRY_VERIFY(popUp.isVisible());
    popUp.close();
}

void TstFtpLists::manyLogLines()
{
    Bench bench;
    bench.open();
    FtpDesk &desk = bench.desk();
    desk.log(LogEntry::ServiceFailed);
    int changes = 0;
    const QTextDocument *document = bench.form->get<QPlainTextEdit>(u"txtInfo"_s).document();
    connect(document, &QTextDocument::contentsChanged, &bench.form->widget(), [&changes] { ++changes; });
    QStringList lines{u"Connection to service failed."_s};
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 3000; ++i) {
        desk.logSoon(LogEntry::QueuedFile, {QString::number(i), u"/x"_s});
        lines += u"%1.) /x"_s.arg(i);
    }
    QVERIFY2(changes <= time.elapsed() / 50 + 1, qPrintable(QString::number(changes)));
    desk.showLog();
    QCOMPARE(bench.log(), lines.join(u'\n') + u'\n');
    // A line that is logged at once still follows the earlier ones.
    desk.logSoon(LogEntry::QueuedFile, {u"1"_s, u"/y"_s});
    desk.log(LogEntry::QueuedFile, {u"2"_s, u"/y"_s});
    QVERIFY(bench.log().endsWith(u"1.) /y\n2.) /y\n"_s));
    desk.logSoon(LogEntry::QueuedFile, {u"3"_s, u"/y"_s});
    desk.clearLog();
    desk.showLog();
    QCOMPARE(bench.log(), QString());
}

void TstFtpLists::namesAreShownAsTheyAre()
{
    Bench bench;
    bench.operations.folders[u"/*.*"_s] = {foundFile(u"<b>x.htm"_s, 1), foundFile(u"../up"_s, 1)};
    bench.openConnected();
    QCOMPARE(bench.names(bench.remote()), QStringList{u"<b>x.htm"_s});
    for (const QString &name : {u"Label1"_s, u"Label3"_s, u"stBar_1"_s, u"stBar_2"_s, u"stBar_3"_s})
        QCOMPARE(bench.form->get<QLabel>(name).textFormat(), Qt::PlainText);
}

void TstFtpLists::manyEntries()
{
    constexpr int count = 10000;
    Bench bench;
    std::deque<FindData> entries;
    for (int i = 0; i < count; ++i) {
        entries.push_back(foundFile(u"file%1.html"_s.arg(i), static_cast<quint64>(i)));
        entries.push_back(foundFolder(u"folder%1"_s.arg(i)));
    }
    bench.operations.folders[u"/*.*"_s] = std::move(entries);
    bench.openConnected();
    QCOMPARE(bench.remote().count(), count);
    QCOMPARE(bench.node(u"/"_s)->childCount(), count);
    bench.remote().selectAll();
    QCOMPARE(bench.remote().selected().size(), static_cast<std::size_t>(count));
    Bench::clickHead(bench.remote(), FileRowsModel::Name);
    QCOMPARE(bench.names(bench.remote()).first(), u"file9999.html"_s);
    bench.remote().setView(FileListMode::LargeIcons);
    QCOMPARE(bench.remote().selected().size(), static_cast<std::size_t>(count));
}

void TstFtpLists::sorting()
{
    Bench bench;
    bench.open();
    FileListView &list = bench.local();
    Bench::click(list, 1);
    Bench::clickHead(list, FileRowsModel::Name);
    QCOMPARE(bench.names(list), (QStringList{u"c"_s, u"b.htm"_s, u"A.gif"_s}));
    QCOMPARE(list.selected().front().name, u"b.htm"_s);
    Bench::clickHead(list, FileRowsModel::Name);
    QCOMPARE(bench.names(list), (QStringList{u"A.gif"_s, u"b.htm"_s, u"c"_s}));
    // Sorting by another column also reverses the order.
    Bench::clickHead(list, FileRowsModel::Bytes);
    QCOMPARE(bench.names(list), (QStringList{u"A.gif"_s, u"c"_s, u"b.htm"_s}));
    QCOMPARE(list.selected().front().name, u"b.htm"_s);
}

void TstFtpLists::sortingSizesAsText()
{
    Bench bench;
    for (const qint64 size : {9'000, 10'000, 100'000})
        bench.write(u"size%1"_s.arg(size), QByteArray(size, 'x'));
    bench.open();
    Bench::clickHead(bench.local(), FileRowsModel::Size);
    Bench::clickHead(bench.local(), FileRowsModel::Size);
    QCOMPARE(bench.names(bench.local()),
             (QStringList{u"c"_s, u"A.gif"_s, u"b.htm"_s, u"size10000"_s, u"size100000"_s, u"size9000"_s}));
}

void TstFtpLists::sortingStays()
{
    Bench bench;
    bench.open();
    Bench::clickHead(bench.local(), FileRowsModel::Name);
    bench.write(u"bb"_s, "x");
    bench.choose(u"zLokRef"_s);
    QCOMPARE(bench.names(bench.local()), (QStringList{u"c"_s, u"bb"_s, u"b.htm"_s, u"A.gif"_s}));
}

void TstFtpLists::views()
{
    Bench bench;
    bench.openConnected();
    const QStringList views{u"BigIc"_s, u"SmallIc"_s, u"Seznam"_s, u"Report"_s};
    for (const auto &[prefix, list] : {std::pair(u"zt"_s, &bench.local()), std::pair(u"zs"_s, &bench.remote())}) {
        auto *icons = list->findChild<QListView *>();
        QVERIFY(icons);
        for (int view = 0; view < views.size(); ++view) {
            bench.choose(prefix + views[view]);
            QCOMPARE(list->property("View").toInt(), view);
            QCOMPARE(icons->isVisible(), view != static_cast<int>(FileListMode::Report));
            // An item fills its whole cell, however short the first name is.
            if (view != static_cast<int>(FileListMode::Report))
                QVERIFY(icons->visualRect(icons->model()->index(1, 0)).width() * 10 > icons->gridSize().width() * 9);
        }
        // The icon view shows the same rows, and clicks in it select them.
        bench.choose(prefix + views[0]);
        QCOMPARE(icons->size(), list->size());
        QTest::mouseClick(icons->viewport(), Qt::LeftButton, {},
                          icons->visualRect(icons->model()->index(1, 0)).center());
        QCOMPARE(list->selected().size(), static_cast<std::size_t>(1));
        QVERIFY(bench.panel(2).contains(u" 1 Files selected, "_s));
        list->setProperty("View", 99);
        QCOMPARE(list->property("View").toInt(), static_cast<int>(FileListMode::Report));
    }
}

void TstFtpLists::popups()
{
    Bench bench;
    bench.openConnected();
    for (const auto &[list, name] :
         {std::pair(&bench.local(), u"zLocal"_s), std::pair(&bench.remote(), u"zRemote"_s)}) {
        QMenu &menu = bench.form->get<QMenu>(name);
        const QPoint place = list->visualRect(list->model()->index(1, 0)).center();
        QTest::mousePress(list->viewport(), Qt::RightButton, {}, place);
        QTRY_VERIFY(menu.isVisible());
        QCOMPARE(list->selected().size(), static_cast<std::size_t>(1));
        menu.close();
        QTest::mouseRelease(list->viewport(), Qt::RightButton, {}, place);
        QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(5, 5), list->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(list->viewport(), &key);
        QTRY_VERIFY(menu.isVisible());
        menu.close();
        QContextMenuEvent mouse(QContextMenuEvent::Mouse, QPoint(5, 5), list->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(list->viewport(), &mouse);
        QCoreApplication::processEvents();
        QVERIFY2(!menu.isVisible(), "the press has opened it already");
    }
}

void TstFtpLists::dragging()
{
    Bench bench;
    bench.open();
    for (const FileListMode view : {FileListMode::Report, FileListMode::LargeIcons, FileListMode::List}) {
        bench.local().setView(view);
        QCOMPARE(bench.local().dragDropMode(), QAbstractItemView::DragOnly);
        QCOMPARE(bench.local().findChild<QListView *>()->dragDropMode(), QAbstractItemView::DragOnly);
    }
    QCOMPARE(bench.remote().dragDropMode(), QAbstractItemView::NoDragDrop);
    const std::unique_ptr<QMimeData> dragged(bench.local().model()->mimeData({bench.local().model()->index(0, 0)}));
    QVERIFY(!dragged->hasText());
    QVERIFY(!dragged->hasUrls());
}

ZEPHIRA_TEST(TstFtpLists)

#include "tst_ftplists.moc"
