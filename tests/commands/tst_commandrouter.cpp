// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/settingsnames.h"
#include "routerbench.h"
#include "support/testregistry.h"

#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString inCodeView = u"Sorry, these tools can only be used in Code View"_s;
const QString inCodeViewForNow =
    u"Sorry, these tools can only be used in Code View for now, this may be changed in the next version"_s;

using Commands = std::vector<FakeEditor::Command>;

} // namespace

class TstCommandRouter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowCommands_data();
    void windowCommands();
    void editMenu_data();
    void editMenu();
    void codeViewMenu_data();
    void codeViewMenu();
    void formMenu_data();
    void formMenu();
    void unknownNamesDoNothing_data();
    void unknownNamesDoNothing();
    void sourceFormats_data();
    void sourceFormats();
    void helpAndWebsite();
    void timeAndDateFollowTheSelection();
    void timeAndDateIsRefused();
    void highlightedLinesToggle();
    void tipsToggle();
    void fontIsAppliedAndKept();
    void fontKeepsWhatTheControlMadeOfIt();
    void fontCancelled();
    void standardBar_data();
    void standardBar();
    void standardBarEditsTheCodeViewInVisualMode();
    void standardDelete();
    void standardUndoAndRedo();
    void standardUndoAndRedoInVisualMode();
    void formattingBarWraps_data();
    void formattingBarWraps();
    void formattingBarRefuses_data();
    void formattingBarRefuses();
    void formattingBarElsewhere();
    void loadTime();
    void loadTimeTellsAFailure();
    void pullDowns_data();
    void pullDowns();
    void pullDownsAreRefused_data() { pullDowns_data(); }
    void pullDownsAreRefused();
};

void TstCommandRouter::windowCommands_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("call");
    const auto row = [](const char *name, const char *call) {
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(call);
    };
    row("mnunewdoc", "newDocument");
    row("mnufromtemp", "newFromTemplate");
    row("mnunewwindow", "newWindow");
    row("open", "openDocument");
    row("save", "saveDocument");
    row("saveas", "saveDocumentAs");
    row("mnusavetemplate", "saveAsTemplate");
    row("print", "printDocument");
    row("clearclip", "clearClipboard");
    row("exit", "exitNow");
    row("mnunextview", "nextView");
    row("readme", "showReadme");
    row("mnuupdate", "updateProgram");
}

void TstCommandRouter::windowCommands()
{
    QFETCH(QString, name);
    QFETCH(QString, call);
    RouterBench bench;
    bench.router.menu(name);
    QCOMPARE(bench.window.calls, QStringList{call});
    QVERIFY(bench.world.forms.modal.isEmpty());
}

void TstCommandRouter::editMenu_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("call");
    QTest::addColumn<int>("designerCommand");
    QTest::newRow("undo") << u"undo"_s << u"undo"_s << 5049;
    QTest::newRow("redo") << u"redo"_s << u"redo"_s << 5033;
    QTest::newRow("cut") << u"cut"_s << u"cut"_s << 5003;
    QTest::newRow("copy") << u"copy"_s << u"copy"_s << 5002;
    QTest::newRow("paste") << u"paste"_s << u"paste"_s << 5032;
    QTest::newRow("delete") << u"delete"_s << u"clearSelection"_s << 5004;
}

void TstCommandRouter::editMenu()
{
    QFETCH(QString, name);
    QFETCH(QString, call);
    QFETCH(int, designerCommand);
    RouterBench bench;
    bench.router.menu(name);
    QCOMPARE(bench.world.editor.calls, QStringList{call});
    QVERIFY(bench.world.designer.commands.empty());

    bench.world.designer.showing = true;
    bench.router.menu(name);
    QCOMPARE(bench.world.editor.calls, QStringList{call});
    QCOMPARE(bench.world.designer.commands, std::vector<int>{designerCommand});
}

void TstCommandRouter::codeViewMenu_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    QTest::newRow("find") << u"find"_s << numberOf(EditorCommand::FindDialog);
    QTest::newRow("findnext") << u"findnext"_s << numberOf(EditorCommand::FindNext);
    QTest::newRow("mnreplace") << u"mnreplace"_s << numberOf(EditorCommand::FindReplaceDialog);
    QTest::newRow("goto") << u"goto"_s << numberOf(EditorCommand::GoToLine);
    QTest::newRow("selectall") << u"selectall"_s << numberOf(EditorCommand::SelectAll);
}

void TstCommandRouter::codeViewMenu()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    RouterBench bench;
    // Whether code view or preview shows makes no difference.
    bench.router.menu(name);
    QCOMPARE(bench.world.editor.commands, (Commands{{number, -1}}));

    bench.world.designer.showing = true;
    bench.expectLimitation(inCodeView);
    bench.router.menu(name);
    QVERIFY(bench.world.prompts.verify());
    QCOMPARE(bench.world.editor.commands.size(), std::size_t(1));
    QVERIFY(bench.world.designer.commands.empty());
}

void TstCommandRouter::formMenu_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("form");
    const auto row = [](const char *name, const char *form) {
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(form);
    };
    row("mnuascwiz", "frmascii");
    row("mnucp", "ColorPick");
    row("colors", "frmColorSpy");
    row("mnucw", "frmwizcookie");
    row("mnuddg", "frmdropdown");
    row("mnuformwiz", "FormWizard");
    row("mnuframewiz", "frmFramesWiz");
    row("mnuimw", "ImageWizard");
    row("mnuinsbreakd", "frminsbreak");
    row("mnule", "frmlinkextract");
    row("mnumw", "frmwizMarquee");
    row("mnuaspredirect", "frmRedirect");
    row("mnumtw", "frmMeta");
    row("mnutblwiz", "frmTables");
    row("mnuthw", "frmthcon");
    row("mnutextwiz", "frmtextthtml");
    row("mnuvbsw", "frmvbwiz");
    row("webview", "frmwebdisp");
    row("main", "frmOptions");
    row("fileassociations", "frmfa");
    row("about", "frmAbout");
    row("InsertHTML", "InsertHTMLDlg");
    row("TableSub_0", "InsertTableDlg");
}

void TstCommandRouter::formMenu()
{
    QFETCH(QString, name);
    QFETCH(QString, form);
    RouterBench bench;
    bench.router.menu(name);
    QCOMPARE(bench.world.forms.modal, QStringList{form});
    QVERIFY(bench.world.forms.modeless.isEmpty());
    QVERIFY(bench.window.calls.isEmpty());
}

void TstCommandRouter::unknownNamesDoNothing_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"", "nothing", "D2DSub_1", "ViewSub_0", "FormatSub_3", "InsertSub_0", "InsertButton", "mnupluginoptions_0",
          "mnuqv", "mnuinslink", "mnuef", "mnuaddcentry", "sug_0", "mnufile", "TableSub_1"})
        QTest::addRow("'%s'", name) << QString::fromLatin1(name);
}

void TstCommandRouter::unknownNamesDoNothing()
{
    QFETCH(QString, name);
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.router.menu(name);
    bench.router.tBar(name);
    bench.router.toolbar1(name);
    bench.router.pullDown(name);
    QVERIFY(bench.window.calls.isEmpty());
    QVERIFY(bench.world.editor.calls.isEmpty());
    QVERIFY(bench.world.forms.modal.isEmpty());
    QCOMPARE(bench.result(), u"sel"_s);
}

void TstCommandRouter::sourceFormats_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("mnufcomp") << u"mnufcomp"_s << u"<a><b>x</b></a>"_s;
    QTest::newRow("mnuformath") << u"mnuformath"_s << u"\r\n<a>\r\n\t<b>x\r\n\t</b>\r\n</a>"_s;
    QTest::newRow("mnufsimple") << u"mnufsimple"_s << u"<a>\r\n<b>x</b>\r\n</a>"_s;
}

void TstCommandRouter::sourceFormats()
{
    QFETCH(QString, name);
    RouterBench bench;
    bench.world.editor.setText(u"<a>\r\n<b>x</b>\t</a>"_s);
    bench.world.designer.showing = true;
    bench.router.menu(name);
    QTEST(bench.world.editor.text(), "text");
}

void TstCommandRouter::helpAndWebsite()
{
    RouterBench bench;
    bench.router.menu(u"helpme"_s);
    bench.router.menu(u"website"_s);
    QCOMPARE(bench.world.shell.opened, (QStringList{u"/app/help/index.html"_s, u"https://zephira.example/"_s}));
    bench.router.menu(u"mnuftpclient"_s);
    QCOMPARE(bench.world.forms.modeless, QStringList{u"frmmainftp"_s});
}

void TstCommandRouter::timeAndDateFollowTheSelection()
{
    RouterBench bench;
    bench.select(u"now: "_s);
    bench.router.menu(u"Timedate"_s);
    const QLocale system = QLocale::system();
    const QDateTime now = bench.world.clock.time;
    const QString expected = u"now: "_s + system.toString(now.time(), QLocale::ShortFormat) + u' '
        + system.toString(now.date(), QLocale::ShortFormat);
    QCOMPARE(bench.result(), expected);
    QVERIFY(expected.contains(u"13:05") || expected.contains(u"1:05"));
}

void TstCommandRouter::timeAndDateIsRefused()
{
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.world.designer.showing = true;
    bench.expectLimitation(inCodeView);
    bench.router.menu(u"Timedate"_s);
    QCOMPARE(bench.result(), u"sel"_s);
    QVERIFY(bench.world.designer.pasted.isEmpty());
}

void TstCommandRouter::highlightedLinesToggle()
{
    RouterBench bench;
    bench.world.editor.highlighted = 4;
    bench.router.menu(u"highlightlines"_s);
    QVERIFY(bench.window.isChecked(u"highlightlines"_s));
    QCOMPARE(bench.world.configuration.value(u"options"_s, u"highlight"_s), u"1"_s);
    // The line is drawn at the next change of the selection, not now.
    QCOMPARE(bench.world.editor.highlighted, 4);

    bench.router.menu(u"highlightlines"_s);
    QVERIFY(!bench.window.isChecked(u"highlightlines"_s));
    QCOMPARE(bench.world.configuration.value(u"options"_s, u"highlight"_s), u"0"_s);
    QCOMPARE(bench.world.editor.highlighted, -1);
    QCOMPARE(bench.window.calls, (QStringList{u"setHighlightMode 1"_s, u"setHighlightMode 0"_s}));
}

void TstCommandRouter::tipsToggle()
{
    RouterBench bench;
    const auto stored = [&] {
        return bench.world.settings.GetSetting(executableBranch(), u"Options"_s, u"Show Tips at Startup"_s, u"none"_s);
    };
    bench.router.menu(u"mnuviewtip"_s);
    QVERIFY(bench.window.isChecked(u"mnuviewtip"_s));
    QCOMPARE(stored(), u"1"_s);
    bench.router.menu(u"mnuviewtip"_s);
    QVERIFY(!bench.window.isChecked(u"mnuviewtip"_s));
    QCOMPARE(stored(), u"0"_s);
}

void TstCommandRouter::fontIsAppliedAndKept()
{
    RouterBench bench;
    const FontChoice before = bench.world.editor.font;
    const FontChoice chosen{u"Courier New"_s, 12.5, true, false, true, false};
    bench.world.prompts.expectFont(before, chosen);
    bench.router.menu(u"font"_s);
    QCOMPARE(bench.world.editor.font, chosen);
    QCOMPARE(bench.world.configuration.log,
             (QStringList{u"[Font] Bold=True"_s, u"[Font] Italic=False"_s, u"[Font] Name=Courier New"_s,
                          u"[Font] Size=12.5"_s, u"[Font] Strikethrough=True"_s, u"[Font] Underline=False"_s}));
}

void TstCommandRouter::fontKeepsWhatTheControlMadeOfIt()
{
    RouterBench bench;
    const FontChoice chosen{u"Mono"_s, 10, false, true, false, true};
    bench.world.prompts.expectFont(bench.world.editor.font, chosen);
    bench.router.menu(u"font"_s);
    QCOMPARE(bench.world.configuration.log,
             (QStringList{u"[Font] Bold=False"_s, u"[Font] Italic=True"_s, u"[Font] Name=Mono"_s, u"[Font] Size=10"_s,
                          u"[Font] Strikethrough=False"_s, u"[Font] Underline=True"_s}));
}

void TstCommandRouter::fontCancelled()
{
    RouterBench bench;
    const FontChoice before = bench.world.editor.font;
    bench.world.prompts.expectFont(before, std::nullopt);
    bench.router.menu(u"font"_s);
    QCOMPARE(bench.world.editor.font, before);
    QVERIFY(bench.world.configuration.log.isEmpty());
}

void TstCommandRouter::standardBar_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("call");
    QTest::newRow("new") << u"new"_s << u"newDocument"_s;
    QTest::newRow("open") << u"open"_s << u"openDocument"_s;
    QTest::newRow("save") << u"save"_s << u"saveDocument"_s;
    QTest::newRow("print") << u"print"_s << u"printDocument"_s;
}

void TstCommandRouter::standardBar()
{
    QFETCH(QString, key);
    QFETCH(QString, call);
    RouterBench bench;
    bench.router.tBar(key);
    QCOMPARE(bench.window.calls, QStringList{call});
}

void TstCommandRouter::standardBarEditsTheCodeViewInVisualMode()
{
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.world.designer.showing = true;
    for (const QString &key : {u"copy"_s, u"cut"_s, u"paste"_s})
        bench.router.tBar(key);
    QCOMPARE(bench.world.editor.calls, (QStringList{u"copy"_s, u"cut"_s, u"paste"_s}));
    QVERIFY(bench.world.designer.commands.empty());
    QCOMPARE(bench.world.clipboard.content, u"sel"_s);
}

void TstCommandRouter::standardDelete()
{
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.world.clipboard.content = u"kept"_s;
    bench.world.designer.showing = true;
    bench.router.tBar(u"delete"_s);
    QCOMPARE(bench.world.editor.text(), u"[]"_s);
    QCOMPARE(bench.world.clipboard.content, u"kept"_s);
    QVERIFY(bench.world.designer.commands.empty());
}

void TstCommandRouter::standardUndoAndRedo()
{
    RouterBench bench;
    bench.world.editor.undoable = true;
    bench.world.editor.redoable = true;
    bench.router.tBar(u"undo"_s);
    bench.router.tBar(u"redo"_s);
    QCOMPARE(bench.world.editor.calls, (QStringList{u"undo"_s, u"redo"_s}));

    bench.world.editor.undoable = false;
    bench.world.editor.redoable = false;
    bench.world.prompts.expectTell(u"Sorry, there is nothing left to UNDO"_s, u"UNDO"_s);
    bench.router.tBar(u"undo"_s);
    bench.world.prompts.expectTell(u"Sorry, there is nothing left to redo"_s, u"REDO"_s);
    bench.router.tBar(u"redo"_s);
    QVERIFY(bench.world.prompts.verify());
    QCOMPARE(bench.world.editor.calls.size(), 2);
}

void TstCommandRouter::standardUndoAndRedoInVisualMode()
{
    RouterBench bench;
    bench.world.designer.showing = true;
    bench.world.editor.undoable = true;
    bench.world.editor.redoable = true;
    bench.router.tBar(u"undo"_s);
    bench.router.tBar(u"redo"_s);
    bench.router.menu(u"redo"_s);
    QCOMPARE(bench.world.designer.commands, (std::vector<int>{5049, 5049, 5033}));
    QVERIFY(bench.world.editor.calls.isEmpty());
}

void TstCommandRouter::formattingBarWraps_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    QTest::newRow("bold") << u"bold"_s << u"<strong>sel</strong>"_s;
    QTest::newRow("italic") << u"italic"_s << u"<em>sel</em>"_s;
    QTest::newRow("underline") << u"underline"_s << u"<u>sel</u>"_s;
    QTest::newRow("left") << u"left"_s << u"<p align=left>sel</p>"_s;
    QTest::newRow("center") << u"center"_s << u"<center>sel</center>"_s;
    QTest::newRow("right") << u"right"_s << u"<p align=\"right\">sel</p>"_s;
}

void TstCommandRouter::formattingBarWraps()
{
    QFETCH(QString, key);
    QFETCH(QString, expected);
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.router.toolbar1(key);
    QCOMPARE(bench.result(), expected);
}

void TstCommandRouter::formattingBarRefuses_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"bold", "italic", "underline", "left", "center", "right", "htmltags"})
        QTest::newRow(key) << QString::fromLatin1(key);
}

void TstCommandRouter::formattingBarRefuses()
{
    QFETCH(QString, key);
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.world.designer.showing = true;
    bench.expectLimitation(inCodeViewForNow);
    bench.router.toolbar1(key);
    QVERIFY(bench.world.prompts.verify());
    QCOMPARE(bench.result(), u"sel"_s);
    QVERIFY(bench.world.designer.pasted.isEmpty());
    QVERIFY(bench.world.forms.modal.isEmpty());
}

void TstCommandRouter::formattingBarElsewhere()
{
    RouterBench bench;
    bench.router.toolbar1(u"htmltags"_s);
    // These work in every view.
    bench.world.designer.showing = true;
    for (const QString &key : {u"preview"_s, u"links"_s, u"specchars"_s, u"ftp"_s, u"reset"_s})
        bench.router.toolbar1(key);
    QCOMPARE(bench.world.forms.modal, (QStringList{u"frmTags"_s, u"frmlinkwiz"_s, u"frmChar"_s}));
    QCOMPARE(bench.window.calls, (QStringList{u"selectView 2"_s, u"showFtp"_s, u"revert"_s}));
}

void TstCommandRouter::loadTime()
{
    RouterBench bench;
    bench.world.editor.setText(u"<p>\u00e4</p>\r\n"_s);
    bench.world.forms.onOpen = [&](const QString &) {
        QVERIFY(bench.world.files.contents.contains(u"/app/ldtemp.html"_s));
    };
    bench.router.toolbar1(u"loadtime"_s);
    QCOMPARE(bench.world.files.contents[u"/app/ldtemp.html"_s], QByteArray("<p>\xc3\xa4</p>\r\n"));
    QCOMPARE(bench.world.forms.modal, QStringList{u"frmDocSize"_s});
}

void TstCommandRouter::loadTimeTellsAFailure()
{
    RouterBench bench;
    bench.world.files.unwritable[u"/app/ldtemp.html"_s] = Error{Error::Code::Unwritable, u"The disk is full."_s};
    bench.world.prompts.expectTell(u"The disk is full."_s, {}, Question::Icon::Exclamation);
    bench.router.toolbar1(u"loadtime"_s);
    QVERIFY(bench.world.prompts.verify());
    QVERIFY(bench.world.forms.modal.isEmpty());
}

void TstCommandRouter::pullDowns_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<QStringList>("forms");
    QTest::newRow("dtw") << u"dtw"_s << QStringList{u"openTagEditor 0"_s} << QStringList{};
    QTest::newRow("dts") << u"dts"_s << QStringList{} << QStringList{u"frmTags"_s};
    QTest::newRow("dqw") << u"dqw"_s << QStringList{u"selectSideTab 3"_s} << QStringList{};
    QTest::newRow("picb") << u"picb"_s << QStringList{u"selectView 2"_s} << QStringList{};
    QTest::newRow("linkwiz") << u"linkwiz"_s << QStringList{} << QStringList{u"frmlinkwiz"_s};
    QTest::newRow("linkextract") << u"linkextract"_s << QStringList{} << QStringList{u"frmlinkextract"_s};
}

void TstCommandRouter::pullDowns()
{
    QFETCH(QString, key);
    QFETCH(QStringList, calls);
    QFETCH(QStringList, forms);
    RouterBench bench;
    bench.router.pullDown(key);
    QCOMPARE(bench.window.calls, calls);
    QCOMPARE(bench.world.forms.modal, forms);
}

void TstCommandRouter::pullDownsAreRefused()
{
    QFETCH(QString, key);
    RouterBench bench;
    bench.world.designer.showing = true;
    bench.expectLimitation(inCodeView);
    bench.router.pullDown(key);
    QVERIFY(bench.world.prompts.verify());
    QVERIFY(bench.window.calls.isEmpty());
    QVERIFY(bench.world.forms.modal.isEmpty());
}

ZEPHIRA_TEST(TstCommandRouter)
#include "tst_commandrouter.moc"
