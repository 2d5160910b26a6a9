// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/routerbench.h"
#include "core/errorstyles.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString wysiwygMode = u"Sorry this command can not be executed from WYSIWYG Mode"_s;
const QString wysiwygLower = u"Sorry this command can not be executed from WYSIWYG mode"_s;
const QString tools = u"Sorry these tools can only be used in Code View"_s;

} // namespace

/// The palette buttons that do more than insert a text.
class TstPaletteCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formButtons_data();
    void formButtons();
    void refusals_data();
    void refusals();
    void tidyNotesFirst();
    void spelling();
    void helpOpensTheGuide();
    void helpTellsAFailure();
    void mailLink();
    void mailLinkWithoutAnAddress_data();
    void mailLinkWithoutAnAddress();
    void sound();
    void soundWithoutAPath_data();
    void soundWithoutAPath();
    void htmlWrapsTheWholeDocument();
    void title();
    void titleWithoutAHead();
    void titleWithoutAnAnswer();
    void bodyAndBaseDeleteTheSelection();
    void selectorFollowsItsButton();
    void selectorIsReleasedWhenRefused();
    void propertyGoesToTheFirstCustomTab();
    void missingStyleEditorDoesNothing();
    void eachKindActsOrIsNoButton();
    void placesWithoutAButton_data();
    void placesWithoutAButton();
    void errorsAreTold();
};

void TstPaletteCommands::formButtons_data()
{
    QTest::addColumn<int>("toolbar");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("form");
    const auto row = [](int toolbar, const QString &key, int position, const QString &form) {
        QTest::addRow("%d/%s%d", toolbar, qPrintable(key), position) << toolbar << key << position << form;
    };
    row(0, u"color"_s, 3, u"ColorPick"_s);
    row(0, u"imagemap"_s, 4, u"ImageMap"_s);
    row(0, u"link"_s, 5, u"frmlinkwiz"_s);
    row(0, u"options"_s, 8, u"frmOptions"_s);
    row(1, u"link"_s, 4, u"frmlinkwiz"_s);
    row(1, u"doctype"_s, 7, u"doctype"_s);
    row(1, u"meta"_s, 10, u"frmMeta"_s);
    row(1, u"picture"_s, 14, u"ImageWizard"_s);
    row(2, u"wizard"_s, 7, u"frmtextthtml"_s);
    row(3, u"table"_s, 1, u"frmTable"_s);
    row(3, u"qtable"_s, 2, u"frmTables"_s);
    row(5, u"framewiz"_s, 1, u"frmFramesWiz"_s);
    row(5, u"iframe"_s, 5, u"frmiframe"_s);
    row(7, {}, 1, u"FormWizard"_s);
    row(8, {}, 7, u"oebrowser"_s);
    row(9, {}, 1, u"frmcsv"_s);
}

void TstPaletteCommands::formButtons()
{
    QFETCH(int, toolbar);
    QFETCH(QString, key);
    QFETCH(int, position);
    QFETCH(QString, form);
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.palette(toolbar, key, position);
    QCOMPARE(bench.world.forms.modal, QStringList{form});
    QVERIFY(bench.world.forms.modeless.isEmpty());
    QCOMPARE(bench.result(), u"sel"_s);
}

void TstPaletteCommands::refusals_data()
{
    QTest::addColumn<int>("toolbar");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::newRow("spell") << 0 << u"spell"_s << tools;
    QTest::newRow("doctype") << 1 << u"doctype"_s << tools;
    QTest::newRow("html") << 1 << u"html"_s << wysiwygLower;
    QTest::newRow("meta") << 1 << u"meta"_s << wysiwygLower;
    QTest::newRow("title") << 1 << u"title"_s << wysiwygMode;
    QTest::newRow("wizard") << 2 << u"wizard"_s << wysiwygMode;
    QTest::newRow("table") << 3 << u"table"_s << wysiwygMode;
    QTest::newRow("qtable") << 3 << u"qtable"_s << wysiwygMode;
    QTest::newRow("selector") << 4 << u"selector"_s << wysiwygMode;
    QTest::newRow("topstyle") << 4 << u"topstyle"_s << wysiwygMode;
}

void TstPaletteCommands::refusals()
{
    QFETCH(int, toolbar);
    QFETCH(QString, key);
    QFETCH(QString, text);
    RouterBench bench;
    bench.select(u"<head>"_s);
    bench.world.designer.showing = true;
    bench.expectLimitation(text, {});
    bench.palette(toolbar, key, 0);
    QVERIFY(bench.world.prompts.verify());
    QVERIFY(bench.world.forms.modal.isEmpty());
    QVERIFY(bench.world.designer.pasted.isEmpty());
    QVERIFY(bench.window.calls.isEmpty());
    QCOMPARE(bench.result(), u"<head>"_s);
}

void TstPaletteCommands::tidyNotesFirst()
{
    RouterBench bench;
    const Question note{u"Note: This will only tidy the last saved copy of this document!"_s,
                        {},
                        Question::Icon::Information,
                        Question::Buttons::Ok};
    bench.world.prompts.expect(note, Answer::Ok, [&] { QVERIFY(bench.world.forms.modal.isEmpty()); });
    bench.palette(0, u"tidy"_s, 1);
    QVERIFY(bench.world.prompts.verify());
    QCOMPARE(bench.world.forms.modal, QStringList{u"frmvalidate"_s});
}

void TstPaletteCommands::spelling()
{
    RouterBench bench;
    bench.palette(0, u"spell"_s, 2);
    QCOMPARE(bench.window.calls, QStringList{u"checkSpelling"_s});
}

void TstPaletteCommands::helpOpensTheGuide()
{
    RouterBench bench;
    bench.palette(0, u"help"_s, 7);
    QCOMPARE(bench.world.shell.opened, QStringList{u"/app/help/index.html"_s});
}

void TstPaletteCommands::helpTellsAFailure()
{
    RouterBench bench;
    bench.world.shell.failure = Error{Error::Code::Failed, u"No program opens this file."_s};
    bench.world.prompts.expectTell(u"No program opens this file."_s, {}, Question::Icon::Exclamation);
    bench.palette(0, u"help"_s, 7);
    QVERIFY(bench.world.prompts.verify());
}

void TstPaletteCommands::mailLink()
{
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.world.prompts.expectInput({u"What is the e-mail address?"_s, u"Enter E-Mail"_s}, u"a@b.example"_s);
    bench.palette(0, u"maillink"_s, 6);
    QCOMPARE(bench.result(), u"sel<a href=\"mailto:a@b.example\">Click here to mail a@b.example</a>"_s);
}

void TstPaletteCommands::mailLinkWithoutAnAddress_data()
{
    QTest::addColumn<std::optional<QString>>("answer");
    QTest::newRow("empty") << std::optional<QString>(u""_s);
    QTest::newRow("cancelled") << std::optional<QString>();
}

void TstPaletteCommands::mailLinkWithoutAnAddress()
{
    QFETCH(std::optional<QString>, answer);
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.world.prompts.expectInput({u"What is the e-mail address?"_s, u"Enter E-Mail"_s}, answer);
    bench.palette(0, u"maillink"_s, 6);
    QCOMPARE(bench.result(), u"sel"_s);
}

void TstPaletteCommands::sound()
{
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.world.prompts.expectInput(
        {u"What is the relative path to your sound file?"_s, u"Path"_s, u"<fill in later>"_s}, u"<fill in later>"_s);
    bench.palette(1, u"sound"_s, 5);
    QCOMPARE(bench.result(), u"<EMBED SRC=\"<fill in later>\" height=2 width=2 autostart=true hidden=true>"_s);
}

void TstPaletteCommands::soundWithoutAPath_data()
{
    mailLinkWithoutAnAddress_data();
}

void TstPaletteCommands::soundWithoutAPath()
{
    QFETCH(std::optional<QString>, answer);
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.world.prompts.expectInput(
        {u"What is the relative path to your sound file?"_s, u"Path"_s, u"<fill in later>"_s}, answer);
    bench.palette(1, u"sound"_s, 5);
    QCOMPARE(bench.result(), u"sel"_s);
}

void TstPaletteCommands::htmlWrapsTheWholeDocument()
{
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.palette(1, u"html"_s, 8);
    QCOMPARE(bench.world.editor.text(), u"<html>\r\n[sel]\r\n</html>"_s);
}

void TstPaletteCommands::title()
{
    RouterBench bench;
    bench.world.editor.setText(u"<HEAD></HEAD>"_s);
    bench.world.prompts.expectInput({u"What do you wish the title to be?"_s, u"Title"_s}, u"My page"_s);
    bench.palette(1, u"title"_s, 11);
    QCOMPARE(bench.world.editor.text(), u"<head>\r\n<title>My page</title>\r\n</HEAD>"_s);
}

void TstPaletteCommands::titleWithoutAHead()
{
    RouterBench bench;
    bench.world.editor.setText(u"<body>"_s);
    bool changed = false;
    bench.world.editor.onChange = [&] { changed = true; };
    bench.world.prompts.expectInput({u"What do you wish the title to be?"_s, u"Title"_s}, u"My page"_s);
    bench.palette(1, u"title"_s, 11);
    QCOMPARE(bench.world.editor.text(), u"<body>"_s);
    QVERIFY(!changed);
}

void TstPaletteCommands::titleWithoutAnAnswer()
{
    RouterBench bench;
    bench.world.editor.setText(u"<head>"_s);
    bench.world.prompts.expectInput({u"What do you wish the title to be?"_s, u"Title"_s}, u""_s);
    bench.palette(1, u"title"_s, 11);
    bench.world.prompts.expectInput({u"What do you wish the title to be?"_s, u"Title"_s}, std::nullopt);
    bench.palette(1, u"title"_s, 11);
    QCOMPARE(bench.world.editor.text(), u"<head>"_s);
}

void TstPaletteCommands::bodyAndBaseDeleteTheSelection()
{
    RouterBench bench;
    bench.select(u"precious"_s);
    bench.palette(1, u"body"_s, 12);
    QVERIFY(!bench.world.editor.text().contains(u"precious"));
    bench.select(u"precious"_s);
    bench.palette(1, u"base"_s, 13);
    QVERIFY(!bench.world.editor.text().contains(u"precious"));
}

void TstPaletteCommands::selectorFollowsItsButton()
{
    RouterBench bench;
    bench.window.selectorPressed = true;
    bench.palette(4, u"selector"_s, 2);
    bench.window.selectorPressed = false;
    bench.palette(4, u"selector"_s, 2);
    QCOMPARE(bench.window.calls, (QStringList{u"setSelectorListVisible 1"_s, u"setSelectorListVisible 0"_s}));
}

void TstPaletteCommands::selectorIsReleasedWhenRefused()
{
    RouterBench bench;
    bench.world.designer.showing = true;
    bench.window.selectorPressed = true;
    bench.expectLimitation(wysiwygMode, {});
    bench.palette(4, u"selector"_s, 2);
    QVERIFY(!bench.window.selectorPressed);
    QVERIFY(bench.window.calls.isEmpty());
}

void TstPaletteCommands::propertyGoesToTheFirstCustomTab()
{
    RouterBench bench;
    const Question note{u"By default, the first custom tab was shipped with a CSS Prop index file. "
                        "You will now be taken to the tab"_s};
    bench.world.prompts.expect(note, Answer::Ok, [&] { QVERIFY(bench.window.calls.isEmpty()); });
    bench.palette(4, u"prop"_s, 3);
    QVERIFY(bench.world.prompts.verify());
    QCOMPARE(bench.window.calls, QStringList{u"selectSideTab 7"_s});
}

void TstPaletteCommands::missingStyleEditorDoesNothing()
{
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.palette(4, u"topstyle"_s, 4);
    QCOMPARE(bench.result(), u"sel"_s);
    QVERIFY(bench.world.forms.modal.isEmpty());
}

/// Every button that can be clicked has an effect; separators, the heading pull-down and missing buttons have none.
void TstPaletteCommands::eachKindActsOrIsNoButton()
{
    int active = 0;
    for (const PaletteToolbar &bar : paletteToolbars()) {
        for (const QuickTag &tag : bar.buttons) {
            const bool isPassive =
                tag.kind == TagKind::Separator || tag.kind == TagKind::Headings || tag.kind == TagKind::Missing;
            QVERIFY2(PaletteCommands::hasEffect(tag.kind) != isPassive, qPrintable(tag.label.toString()));
            active += !isPassive;
        }
    }
    QCOMPARE(active, 119);
    QVERIFY(!PaletteCommands::hasEffect(TagKind::TagEditor)); // It belongs to the tag menu only.
}

void TstPaletteCommands::placesWithoutAButton_data()
{
    QTest::addColumn<int>("toolbar");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("position");
    QTest::newRow("separator 3") << 7 << QString() << 3;
    QTest::newRow("separator 10") << 7 << QString() << 10;
    QTest::newRow("separator 16") << 7 << QString() << 16;
    QTest::newRow("the heading pull-down itself") << 2 << u"headings"_s << 6;
}

void TstPaletteCommands::placesWithoutAButton()
{
    QFETCH(int, toolbar);
    QFETCH(QString, key);
    QFETCH(int, position);
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.palette(toolbar, key, position);
    QCOMPARE(bench.result(), u"sel"_s);
    QVERIFY(bench.window.calls.isEmpty());
    QVERIFY(bench.world.forms.modal.isEmpty());
}

void TstPaletteCommands::errorsAreTold()
{
    RouterBench bench;
    bench.world.forms.onOpen = [](const QString &) { throw HandlerError{u"the form is broken"_s}; };
    const Question told{u"An error has occured at: frmmain in Procedure: ToolBar_ButtonClick\r\n"
                        "The error is as follows: the form is broken\r\n"
                        "Please Report this to the Zephira. team\r\n"
                        "Click OK to continue, Cancel to Exit the current SUB"_s,
                        {},
                        Question::Icon::Critical,
                        Question::Buttons::OkCancel};
    bench.world.prompts.expect(told, Answer::Ok);
    bench.palette(0, u"color"_s, 3);
    bench.world.prompts.expect(told, Answer::Cancel);
    bench.palette(0, u"color"_s, 3);
    QVERIFY(bench.world.prompts.verify());
}

ZEPHIRA_TEST(TstPaletteCommands)
#include "tst_palettecommands.moc"
