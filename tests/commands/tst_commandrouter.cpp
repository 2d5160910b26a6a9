// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/commandfunctions.h"
#include "commands/routerbench.h"
#include "files/diskfilestore.h"
#include "support/testregistry.h"
#include "views/designercommands.h"

#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString inCodeView = u"Sorry, these tools can only be used in Code View"_s;
const QString inCodeViewForNow =
    u"Sorry, these tools can only be used in Code View for now, this may be changed in the next version"_s;

using Commands = std::vector<FakeEditor::ExecutedCommand>;

} // namespace

class TstCommandRouter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandsOfParts_data();
    void commandsOfParts();
    void commandsFindTheDesignersTextAtHome_data();
    void commandsFindTheDesignersTextAtHome();
    void documentCommands();
    void saving();
    void opening();
    void editMenu_data();
    void editMenu();
    void codeViewMenu_data();
    void codeViewMenu();
    void formMenu_data();
    void formMenu();
    void formBeside();
    void rowsWithoutAnEffect_data();
    void rowsWithoutAnEffect();
    void designerMenus_data();
    void designerMenus();
    void aBlockFormatIsSetByItsName();
    void aFormButtonIsPasted();
    void designerSwitches();
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
    void theWeighedCopyIsPrivate();
    void pullDowns_data();
    void pullDowns();
    void pullDownsAreRefused_data() { pullDowns_data(); }
    void pullDownsAreRefused();
};

void TstCommandRouter::commandsOfParts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("call");
    const auto row = [](const char *name, const char *call) {
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(call);
    };
    row("mnunewwindow", "newWindow");
    row("exit", "exitNow");
    row("mnuupdate", "updateProgram");
    row("mnunextview", "selectNext");
    row("readme", "showReadme");
    row("mnuaddcentry", "addCustomEntry");
    row("mnuqv", "showInQuickView");
    row("mnuinslink", "insertLink");
    row("mnuef", "editFilters");
    row("mnupluginoptions_0", "runPlugin 0");
}

void TstCommandRouter::commandsOfParts()
{
    QFETCH(QString, name);
    QFETCH(QString, call);
    RouterBench bench;
    bench.menu(name);
    QCOMPARE(bench.window.calls, QStringList{call});
    QVERIFY(bench.world.forms.modal.isEmpty());
}

void TstCommandRouter::commandsFindTheDesignersTextAtHome_data()
{
    QTest::addColumn<std::function<void(RouterBench &)>>("act");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const std::function<void(RouterBench &)> &act, const QString &text) {
        QTest::newRow(name) << act << text;
    };
    row(
        "menu", [](RouterBench &bench) { bench.menu(u"paste"_s); }, u"pastedhome"_s);
    row(
        "toolbar", [](RouterBench &bench) { bench.tBar(u"paste"_s); }, u"pastedhome"_s);
    row(
        "palette", [](RouterBench &bench) { bench.palette(1, u"break"_s, 0); }, u"<br>home"_s);
    row(
        "heading", [](RouterBench &bench) { bench.router.heading(1); }, u"<h1></h1>home"_s);
    row(
        "insertion", [](RouterBench &bench) { bench.inserter.InsertAtCaret(u"new "_s); }, u"new home"_s);
    row(
        "save by name", [](RouterBench &bench) { bench.document.doSave(); }, u"home"_s);
    row(
        "new by name", [](RouterBench &bench) { bench.document.doNew(); }, u""_s);
    row(
        "close", [](RouterBench &bench) { bench.document.askToClose(); }, u"home"_s);
}

/// While visual mode is being left the code view still holds the text from before.
void TstCommandRouter::commandsFindTheDesignersTextAtHome()
{
    QFETCH(std::function<void(RouterBench &)>, act);
    QFETCH(QString, text);
    RouterBench bench;
    bench.world.files.contents[u"/a.html"_s] = "old";
    bench.document.openAtStart(u"/a.html"_s);
    bench.world.clipboard.setText(u"pasted"_s);
    bench.world.designer.showing = true;
    int finished = 0;
    bench.world.designer.leaving = [&] {
        if (++finished > 1)
            return;
        bench.world.designer.showing = false;
        bench.world.editor.setText(u"home"_s);
        bench.world.editor.selectOffsets(0, 0);
    };
    act(bench);
    QVERIFY(finished > 0);
    QCOMPARE(bench.world.editor.text(), text);
}

/// Each of them can be recognised by what it asks or writes.
void TstCommandRouter::documentCommands()
{
    RouterBench bench;
    ScriptedPrompts &prompts = bench.world.prompts;
    bench.menu(u"mnunewdoc"_s);
    bench.tBar(u"new"_s);
    QCOMPARE(bench.surface.captions, QStringList(2, u"Zephira - [New Document]"_s));
    QCOMPARE(bench.surface.choosers, 0);
    bench.menu(u"mnufromtemp"_s);
    QCOMPARE(bench.surface.captions.size(), 3);
    QCOMPARE(bench.surface.choosers, 1);

    bench.menu(u"print"_s);
    bench.tBar(u"print"_s);
    QCOMPARE(bench.world.editor.calls, (QStringList{u"print"_s, u"print"_s}));

    bench.world.clipboard.content = u"kept"_s;
    prompts.expect({u"Are you sure you wish to clear the clipboard?"_s, u"Clipboard"_s, Question::Icon::Question,
                    Question::Buttons::YesNo},
                   Answer::Yes);
    bench.menu(u"clearclip"_s);
    QCOMPARE(bench.world.clipboard.content, QString());

    prompts.expectInput({u"What do you wish to call this file? (Please Include Extension)"_s, u"Save as Template"_s},
                        u"mine.htm"_s);
    bench.menu(u"mnusavetemplate"_s);
    QVERIFY(bench.world.files.contents.contains(u"/app/templates/custom/mine.htm"_s));
    QVERIFY(prompts.verify());
}

void TstCommandRouter::saving()
{
    RouterBench bench;
    ScriptedPrompts &prompts = bench.world.prompts;
    const auto expectDialog = [&](const QString &answer) {
        prompts.expectFile({u"Save a document..."_s, u"Text Files|*.txt|All Files|*.*"_s, bench.world.document.project,
                            true, bench.dialog.fileName()},
                           answer);
    };
    expectDialog(u"/a.txt"_s);
    bench.menu(u"save"_s);
    bench.tBar(u"save"_s); // The document has a name now.
    QVERIFY(prompts.verify());
    expectDialog(u"/b.txt"_s);
    bench.menu(u"saveas"_s);
    QCOMPARE(bench.document.docPath(), u"/b.txt"_s);
    QVERIFY(prompts.verify());
}

void TstCommandRouter::opening()
{
    RouterBench bench;
    for (const auto open : {+[](RouterBench &b) { b.menu(u"open"_s); }, +[](RouterBench &b) { b.tBar(u"open"_s); }}) {
        // Only the question of the open command has this icon.
        bench.document.setModified(true);
        bench.world.prompts.expect({u"Document: \n\nThis document has been modified.\nDo you wish to save?"_s,
                                    u"Document Modified."_s, Question::Icon::Question, Question::Buttons::YesNoCancel},
                                   Answer::Cancel);
        open(bench);
        QVERIFY(bench.world.prompts.verify());
    }
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
    bench.menu(name);
    QCOMPARE(bench.world.editor.calls, QStringList{call});
    QVERIFY(bench.world.designer.commands.empty());

    bench.world.designer.showing = true;
    bench.menu(name);
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
    // It makes no difference whether code view or preview is shown.
    bench.menu(name);
    QCOMPARE(bench.world.editor.commands, (Commands{{number, -1}}));

    bench.world.designer.showing = true;
    bench.expectLimitation(inCodeView);
    bench.menu(name);
    QVERIFY(bench.world.prompts.verify());
    QCOMPARE(bench.world.editor.commands.size(), static_cast<std::size_t>(1));
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
    bench.menu(name);
    QCOMPARE(bench.world.forms.modal, QStringList{form});
    QVERIFY(bench.world.forms.modeless.isEmpty());
    QVERIFY(bench.window.calls.isEmpty());
}

void TstCommandRouter::formBeside()
{
    RouterBench bench;
    bench.menu(u"colors"_s);
    QCOMPARE(bench.world.forms.modeless, QStringList{u"frmColorSpy"_s});
    QVERIFY(bench.world.forms.modal.isEmpty());
}

/// Missing entries, submenus and separators do nothing.
void TstCommandRouter::rowsWithoutAnEffect_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"sug_0", "mnufile", "TableSub_1", "mnusep"})
        QTest::addRow("%s", name) << QString::fromLatin1(name);
}

void TstCommandRouter::rowsWithoutAnEffect()
{
    QFETCH(QString, name);
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.menu(name);
    QVERIFY(bench.window.calls.isEmpty());
    QVERIFY(bench.world.editor.calls.isEmpty());
    QVERIFY(bench.world.forms.modal.isEmpty());
    QCOMPARE(bench.result(), u"sel"_s);
}

void TstCommandRouter::designerMenus_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("command");
    const auto addRows = [](const auto &self, std::span<const MenuItem> items) -> void {
        for (const MenuItem &item : items) {
            if (const auto *command = std::get_if<DesignerCommand>(&item.command.effect))
                QTest::newRow(qPrintable(item.name.toString())) << item.name.toString() << int(*command);
            self(self, item.children);
        }
    };
    addRows(addRows, menuBarTable());
}

void TstCommandRouter::designerMenus()
{
    QFETCH(QString, name);
    QFETCH(int, command);
    RouterBench bench;
    bench.menu(name);
    QCOMPARE(bench.world.designer.commands, std::vector<int>{command});
}

void TstCommandRouter::aBlockFormatIsSetByItsName()
{
    RouterBench bench;
    FakeDesigner &designer = bench.world.designer;
    designer.results[DesignerCommand::GetBlockFormatNames] = QStringList{u"Normal"_s, u"Heading 1"_s};
    QVERIFY(bench.designer.documentComplete());
    designer.runs.clear();
    bench.menu(u"FormatSub_1"_s);
    bench.menu(u"FormatSub_2"_s); // An entry without a name.
    QVERIFY(designer.runs
            == std::vector<FakeDesigner::Run>(
                {{DesignerCommand::SetBlockFormat, DesignerPrompting::DontPromptUser, u"Heading 1"_s}}));
}

void TstCommandRouter::aFormButtonIsPasted()
{
    RouterBench bench;
    bench.menu(u"InsertButton"_s);
    QCOMPARE(bench.world.designer.pasted, QStringList{u"<BUTTON TITLE=Button>Button!</BUTTON>"_s});
}

void TstCommandRouter::designerSwitches()
{
    RouterBench bench;
    FakeDesigner &designer = bench.world.designer;
    for (const auto &[entry, value] :
         {std::pair{u"ViewSub_0"_s, &designer.borders}, std::pair{u"ViewSub_1"_s, &designer.details},
          std::pair{u"ViewSub_2"_s, &designer.browsing}, std::pair{u"ViewSub_10"_s, &designer.snapping}}) {
        bench.menu(entry);
        QVERIFY2(*value, qPrintable(entry));
        QVERIFY2(bench.window.isChecked(entry), qPrintable(entry));
        bench.menu(entry);
        QVERIFY2(!*value, qPrintable(entry));
        QVERIFY2(!bench.window.isChecked(entry), qPrintable(entry));
    }
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
    bench.menu(name);
    QTEST(bench.world.editor.text(), "text");
}

void TstCommandRouter::helpAndWebsite()
{
    RouterBench bench;
    bench.menu(u"helpme"_s);
    bench.menu(u"website"_s);
    QCOMPARE(bench.world.shell.opened, (QStringList{u"/app/help/index.html"_s, u"https://zephira.example/"_s}));
    bench.menu(u"mnuftpclient"_s);
    QCOMPARE(bench.world.forms.modeless, QStringList{u"frmmainftp"_s});
}

void TstCommandRouter::timeAndDateFollowTheSelection()
{
    RouterBench bench;
    bench.select(u"now: "_s);
    bench.menu(u"Timedate"_s);
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
    bench.menu(u"Timedate"_s);
    QCOMPARE(bench.result(), u"sel"_s);
    QVERIFY(bench.world.designer.pasted.isEmpty());
}

void TstCommandRouter::highlightedLinesToggle()
{
    RouterBench bench;
    bench.world.editor.highlighted = 4;
    bench.menu(u"highlightlines"_s);
    QVERIFY(bench.window.isChecked(u"highlightlines"_s));
    QCOMPARE(bench.world.configuration.value(u"options"_s, u"highlight"_s), u"1"_s);
    // The highlighted line moves at the next change of the selection, not now.
    QCOMPARE(bench.world.editor.highlighted, 4);

    bench.menu(u"highlightlines"_s);
    QVERIFY(!bench.window.isChecked(u"highlightlines"_s));
    QCOMPARE(bench.world.configuration.value(u"options"_s, u"highlight"_s), u"0"_s);
    QCOMPARE(bench.world.editor.highlighted, -1);
    QCOMPARE(bench.window.calls, (QStringList{u"setHighlightMode 1"_s, u"setHighlightMode 0"_s}));
}

void TstCommandRouter::tipsToggle()
{
    RouterBench bench;
    const auto stored = [&] { return bench.world.settings.values[u"zephira/Options/Show Tips at Startup"_s]; };
    bench.menu(u"mnuviewtip"_s);
    QVERIFY(bench.window.isChecked(u"mnuviewtip"_s));
    QCOMPARE(stored(), u"1"_s);
    bench.menu(u"mnuviewtip"_s);
    QVERIFY(!bench.window.isChecked(u"mnuviewtip"_s));
    QCOMPARE(stored(), u"0"_s);
}

void TstCommandRouter::fontIsAppliedAndKept()
{
    RouterBench bench;
    const FontChoice before = bench.world.editor.font;
    const FontChoice chosen{u"Courier New"_s, 12.5, true, false, true, false};
    bench.world.prompts.expectFont(before, chosen);
    bench.menu(u"font"_s);
    QCOMPARE(bench.world.editor.font, chosen);
    QCOMPARE(bench.world.configuration.log,
             (QStringList{u"[font] bold=True"_s, u"[font] italic=False"_s, u"[font] name=Courier New"_s,
                          u"[font] size=12.5"_s, u"[font] strikethrough=True"_s, u"[font] underline=False"_s}));
}

void TstCommandRouter::fontKeepsWhatTheControlMadeOfIt()
{
    RouterBench bench;
    const FontChoice chosen{u"Mono"_s, 10, false, true, false, true};
    bench.world.prompts.expectFont(bench.world.editor.font, chosen);
    bench.menu(u"font"_s);
    QCOMPARE(bench.world.configuration.log,
             (QStringList{u"[font] bold=False"_s, u"[font] italic=True"_s, u"[font] name=Mono"_s, u"[font] size=10"_s,
                          u"[font] strikethrough=False"_s, u"[font] underline=True"_s}));
}

void TstCommandRouter::fontCancelled()
{
    RouterBench bench;
    const FontChoice before = bench.world.editor.font;
    bench.world.prompts.expectFont(before, std::nullopt);
    bench.menu(u"font"_s);
    QCOMPARE(bench.world.editor.font, before);
    QVERIFY(bench.world.configuration.log.isEmpty());
}

void TstCommandRouter::standardBarEditsTheCodeViewInVisualMode()
{
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.world.designer.showing = true;
    for (const QString &key : {u"copy"_s, u"cut"_s, u"paste"_s})
        bench.tBar(key);
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
    bench.tBar(u"delete"_s);
    QCOMPARE(bench.world.editor.text(), u"[]"_s);
    QCOMPARE(bench.world.clipboard.content, u"kept"_s);
    QVERIFY(bench.world.designer.commands.empty());
}

void TstCommandRouter::standardUndoAndRedo()
{
    RouterBench bench;
    bench.world.editor.undoable = true;
    bench.world.editor.redoable = true;
    bench.tBar(u"undo"_s);
    bench.tBar(u"redo"_s);
    QCOMPARE(bench.world.editor.calls, (QStringList{u"undo"_s, u"redo"_s}));

    bench.world.editor.undoable = false;
    bench.world.editor.redoable = false;
    bench.world.prompts.expectTell(u"Sorry, there is nothing left to UNDO"_s, u"UNDO"_s);
    bench.tBar(u"undo"_s);
    bench.world.prompts.expectTell(u"Sorry, there is nothing left to redo"_s, u"REDO"_s);
    bench.tBar(u"redo"_s);
    QVERIFY(bench.world.prompts.verify());
    QCOMPARE(bench.world.editor.calls.size(), 2);
}

void TstCommandRouter::standardUndoAndRedoInVisualMode()
{
    RouterBench bench;
    bench.world.designer.showing = true;
    bench.world.editor.undoable = true;
    bench.world.editor.redoable = true;
    bench.tBar(u"undo"_s);
    bench.tBar(u"redo"_s);
    bench.menu(u"redo"_s);
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
    bench.toolbar1(key);
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
    bench.toolbar1(key);
    QVERIFY(bench.world.prompts.verify());
    QCOMPARE(bench.result(), u"sel"_s);
    QVERIFY(bench.world.designer.pasted.isEmpty());
    QVERIFY(bench.world.forms.modal.isEmpty());
}

void TstCommandRouter::formattingBarElsewhere()
{
    RouterBench bench;
    bench.toolbar1(u"htmltags"_s);
    // These work in every view.
    bench.world.designer.showing = true;
    for (const QString &key : {u"preview"_s, u"links"_s, u"specchars"_s, u"ftp"_s})
        bench.toolbar1(key);
    bench.dialog.setFileName(u"/a.htm"_s);
    bench.world.prompts.expect(
        {u"Are you sure you wish to discard changes and revert to last saved copy of this document?"_s,
         {},
         Question::Icon::Question,
         Question::Buttons::YesNo},
        Answer::No);
    bench.toolbar1(u"reset"_s);
    QVERIFY(bench.world.prompts.verify());
    QCOMPARE(bench.world.forms.modal, (QStringList{u"frmTags"_s, u"frmlinkwiz"_s}));
    QCOMPARE(bench.world.forms.modeless, QStringList{u"frmChar"_s});
    QCOMPARE(bench.window.calls, (QStringList{u"selectTab 1"_s, u"showFtp"_s}));
}

void TstCommandRouter::loadTime()
{
    RouterBench bench;
    bench.world.editor.setText(u"<p>\u00e4</p>\r\n"_s);
    bench.world.forms.onOpen = [&](const QString &) {
        QVERIFY(bench.world.files.contents.contains(u"/app/ldtemp.html"_s));
    };
    bench.toolbar1(u"loadtime"_s);
    QCOMPARE(bench.world.files.contents[u"/app/ldtemp.html"_s], QByteArray("<p>\xc3\xa4</p>\r\n"));
    QCOMPARE(bench.world.forms.modal, QStringList{u"frmDocSize"_s});
}

void TstCommandRouter::theWeighedCopyIsPrivate()
{
    const QTemporaryDir folder;
    TestContext world;
    DiskFileStore files;
    const AppContext context{world.editor,   world.inserter, world.designer, world.document, world.configuration,
                             world.settings, files,          world.prompts,  world.shell,    world.clipboard,
                             world.clock,    world.forms,    world.keys,     folder.path()};
    world.editor.setText(u"secret"_s);
    weighDocument(context);
    const QFileInfo copy(folder.filePath(u"ldtemp.html"_s));
    QCOMPARE(copy.size(), 6);
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QCOMPARE(copy.permissions() & others, QFile::Permissions());
}

void TstCommandRouter::loadTimeTellsAFailure()
{
    RouterBench bench;
    bench.world.files.unwritable[u"/app/ldtemp.html"_s] = Error{Error::Code::Unwritable, u"The disk is full."_s};
    bench.world.prompts.expectTell(u"The disk is full."_s, {}, Question::Icon::Exclamation);
    bench.toolbar1(u"loadtime"_s);
    QVERIFY(bench.world.prompts.verify());
    QVERIFY(bench.world.forms.modal.isEmpty());
}

void TstCommandRouter::pullDowns_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<QStringList>("forms");
    QTest::newRow("dtw") << u"dtw"_s << QStringList{} << QStringList{u"frmTagEdit"_s};
    QTest::newRow("dts") << u"dts"_s << QStringList{} << QStringList{u"frmTags"_s};
    QTest::newRow("dqw") << u"dqw"_s << QStringList{u"selectSideTab 3"_s} << QStringList{};
    QTest::newRow("picb") << u"picb"_s << QStringList{u"selectTab 1"_s} << QStringList{};
    QTest::newRow("linkwiz") << u"linkwiz"_s << QStringList{} << QStringList{u"frmlinkwiz"_s};
    QTest::newRow("linkextract") << u"linkextract"_s << QStringList{} << QStringList{u"frmlinkextract"_s};
}

void TstCommandRouter::pullDowns()
{
    QFETCH(QString, key);
    QFETCH(QStringList, calls);
    QFETCH(QStringList, forms);
    RouterBench bench;
    bench.pullDown(key);
    QCOMPARE(bench.window.calls, calls);
    QCOMPARE(bench.world.forms.modal, forms);
}

void TstCommandRouter::pullDownsAreRefused()
{
    QFETCH(QString, key);
    RouterBench bench;
    bench.world.designer.showing = true;
    bench.expectLimitation(inCodeView);
    bench.pullDown(key);
    QVERIFY(bench.world.prompts.verify());
    QVERIFY(bench.window.calls.isEmpty());
    QVERIFY(bench.world.forms.modal.isEmpty());
}

ZEPHIRA_TEST(TstCommandRouter)
#include "tst_commandrouter.moc"
