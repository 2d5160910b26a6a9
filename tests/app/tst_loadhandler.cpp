// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "core/editoritems.h"
#include "core/errorstyles.h"
#include "support/testregistry.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QToolBar>
#include <QTreeWidget>

using namespace zephira;
using namespace Qt::StringLiterals;

class TstLoadHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepsRunInTheirOrder()
    {
        WindowBench bench;
        const QStringList expected = {
            u"restorePlacement"_s,    u"setHelpFile"_s,       u"setFilePattern"_s,  u"recordProgramFolder"_s,
            u"fetchSelection"_s,      u"fillDesignerFonts"_s, u"disableDesigner"_s, u"readRootSelect"_s,
            u"createEditorGlobals"_s, u"readDisplayModes"_s,  u"applyFont"_s,       u"applyDisplayModes"_s,
            u"applyColourTable"_s,    u"registerLanguages"_s, u"removeHotKeys"_s,   u"readStyleSelectors"_s,
            u"rootScriptFolder"_s,    u"fillTagTree"_s,       u"scanPlugins"_s,     u"clearModified"_s,
            u"readAspTags"_s,         u"openArgument"_s};
        QCOMPARE(bench.start().startSteps(), expected);
        QCOMPARE(bench.window->property("startSteps").toStringList(), expected);
    }

    void aFailingStepEndsTheStart()
    {
        WindowBench bench;
        bench.configuration.setValue(Setting::Whitespace, u"perhaps"_s);
        QString message;
        try {
            bench.start();
        } catch (const HandlerError &error) {
            message = error.description;
        }
        QCOMPARE(
            message,
            u"Zephira can't start: the key \"whitespace\" in section [options] of %1 isn't a number (\"perhaps\")."_s
                .arg(bench.configuration.file()));
        QCOMPARE(bench.window->startSteps().last(), u"readDisplayModes"_s);
    }

    void theShippedSettingsAreApplied()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        CodeMax &rt = window.rt();
        QVERIFY(rt.enableDragDrop());
        QVERIFY(rt.lineNumbering());
        QVERIFY(rt.displayLeftMargin());
        QVERIFY(!rt.displayWhitespace());
        QVERIFY(!rt.selBounds());
        QCOMPARE(rt.editorFont().name, bench.configuration.value(Setting::FontName));
        QCOMPARE(rt.color(KeywordFore),
                 static_cast<quint32>(bench.configuration.value(colourSetting(5, ColourPart::Foreground)).toInt()));
        QCOMPARE(rt.fontStyle(KeywordFont), bench.configuration.value(colourSetting(5, ColourPart::FontStyle)).toInt());
        QVERIFY(bench.find<QAction>(u"highlightlines"_s)->isChecked());
        QVERIFY(!bench.find<QAction>(u"mnuviewtip"_s)->isChecked());
        QCOMPARE(bench.find<QComboBox>(u"cboLang"_s)->currentIndex(), 0);
        QVERIFY(bench.find<QListWidget>(u"List1"_s)->count() > 0);
        QVERIFY(bench.find<QTreeWidget>(u"asptags"_s)->topLevelItemCount() > 0);
    }

    void otherSettingsAreAppliedToo()
    {
        WindowBench bench;
        for (const auto &[setting, value] : std::map<Setting, QString>{{Setting::HighlightLine, u"0"_s},
                                                                       {Setting::LineNumbers, u"0"_s},
                                                                       {Setting::LeftMargin, u"0"_s},
                                                                       {Setting::Whitespace, u"1"_s},
                                                                       {Setting::SelectionBounds, u"1"_s}})
            QVERIFY(bench.configuration.setValue(setting, value));
        frmmain &window = bench.start();
        QVERIFY(!bench.find<QAction>(u"highlightlines"_s)->isChecked());
        QVERIFY(!window.rt().lineNumbering());
        QVERIFY(window.rt().displayWhitespace());
        QVERIFY(window.rt().selBounds());
    }

    /// A size that is too small to read, or so large that one letter fills the screen, is clamped.
    void aFontSizeBeyondSense_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<double>("size");
        QTest::newRow("tiny") << u"0.5"_s << 4.0;
        QTest::newRow("huge") << u"100000"_s << 144.0;
        QTest::newRow("in range") << u"23"_s << 23.0;
    }

    void aFontSizeBeyondSense()
    {
        QFETCH(QString, stored);
        WindowBench bench;
        bench.configuration.setValue(Setting::FontSize, stored);
        QTEST(bench.start().rt().editorFont().size, "size");
    }

    void onlyOneIsRoot_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("root");
        QTest::newRow("1") << u"1"_s << true;
        QTest::newRow("2") << u"2"_s << false;
    }

    void onlyOneIsRoot()
    {
        QFETCH(QString, value);
        WindowBench bench;
        QVERIFY(bench.configuration.setValue(Setting::RootSelection, value));
        QTEST(bench.start().rootSelect(), "root");
    }

    void theDesignersToolbarStartsEmptyAndDisabled()
    {
        WindowBench bench;
        bench.start();
        QVERIFY(!bench.find<QToolBar>(u"Toolbar2"_s)->isVisible());
        for (const QString &name : {u"FontCombo"_s, u"FontSizeCombo"_s}) {
            QComboBox *box = bench.find<QComboBox>(name);
            QCOMPARE(box->currentText(), QString());
            QCOMPARE(box->count(), name == u"FontCombo"_s ? 6 : 7);
        }
        const QList<QAction *> actions = bench.find<QToolBar>(u"Toolbar2"_s)->actions();
        for (const QAction *action : actions)
            QVERIFY(!action->isEnabled());
    }

    void theProgramFolderIsRecordedOnce()
    {
        WindowBench bench;
        bench.start();
        QCOMPARE(bench.settings.values[u"Zephira/data/apppath"_s], bench.appPath());
        bench.settings.values[u"Zephira/data/version"_s] = u"kept"_s;
        bench.start();
        QCOMPARE(bench.settings.values[u"Zephira/data/version"_s], u"kept"_s);
        bench.settings.values[u"Zephira/data/apppath"_s] = u"/elsewhere"_s;
        bench.start();
        QVERIFY(bench.settings.values[u"Zephira/data/version"_s] != u"kept"_s);
        QCOMPARE(bench.settings.values[u"Zephira/data/apppath"_s], bench.appPath());
    }

    void aFileOfTheCommandLine()
    {
        WindowBench bench;
        const QString file = bench.write(u"my site/page one.html"_s, "<p>\r\none\r\n</p>\r\n");
        frmmain &window = bench.start(file);
        QCOMPARE(window.windowTitle(), u"Zephira - ["_s + file + u']');
        QCOMPARE(window.rt().text(), u"<p>\r\none\r\n</p>\r\n"_s);
        QCOMPARE(bench.find<QLineEdit>(u"PrjPath"_s)->text(), bench.folder() + u"/my site/"_s);
        QCOMPARE(bench.find<QComboBox>(u"cboLang"_s)->currentIndex(), 1);
        QCOMPARE(bench.panel(10), file);
        QCOMPARE(bench.panel(4), u"4"_s);
        QCOMPARE(bench.panel(2), u"1"_s);
        QVERIFY(!window.docModified());
        QVERIFY(window.docHasFile());
        QCOMPARE(bench.find<QObject>(u"CM"_s)->property("FileName").toString(), file);
        QCOMPARE(bench.find<QListWidget>(u"ListFiles"_s)->item(0)->text(), u"page one.html"_s);
    }

    /// The file pane lists the file's own folder, even if the tree omits that folder.
    void aFileInAHiddenFolder()
    {
        WindowBench bench;
        bench.start(bench.write(u".hidden/inner/a.txt"_s, "a"));
        QCOMPARE(bench.find<QTreeWidget>(u"DIR"_s)->property("SelectedFolder").toString(),
                 bench.folder() + u"/.hidden/inner"_s);
        QCOMPARE(bench.find<QObject>(u"file"_s)->property("Path").toString(), bench.folder() + u"/.hidden/inner"_s);
        QCOMPARE(bench.find<QListWidget>(u"ListFiles"_s)->item(0)->text(), u"a.txt"_s);
    }

    void aNameThatIsNotThereLeavesNoDocument()
    {
        WindowBench bench;
        frmmain &window = bench.start(u"/nowhere/page.html"_s);
        QCOMPARE(bench.find<QLineEdit>(u"PrjPath"_s)->text(), QString());
        QVERIFY(!window.docHasFile());
        QCOMPARE(window.rt().text(), QString());
    }

    void aFolderIsToldAndNothingIsLost()
    {
        WindowBench bench;
        frmmain &window = bench.start(bench.folder());
        QCOMPARE(window.rt().text(), QString());
        window.rt().setSelText(u"text"_s);
        bench.prompts.expectTell(
            u"The file \"%1\" was not saved, because the version on disk, which is not the one that was opened, could not be "
            u"backed up. The file \"%1\" could not be read: it is a folder."_s.arg(bench.folder()),
            {}, Question::Icon::Exclamation);
        QVERIFY(!window.doSave());
        QVERIFY(window.docModified());
        QCOMPARE(window.rt().text(), u"text"_s);
    }
};

ZEPHIRA_TEST(TstLoadHandler)
#include "tst_loadhandler.moc"
