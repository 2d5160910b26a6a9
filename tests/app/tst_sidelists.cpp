// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "core/errorstyles.h"
#include "core/itemroles.h"
#include "support/itemviews.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

void selectTabOf(const WindowBench &bench, const QString &key)
{
    auto *tabs = bench.find<QTabBar>(u"Frame1"_s);
    for (int i = 0; i < tabs->count(); ++i) {
        if (tabs->tabData(i) == key)
            tabs->setCurrentIndex(i);
    }
}

/// A visible window with a text whose middle word is selected.
struct ListsBench : WindowBench {
    ListsBench()
    {
        start().show();
        window->rt().setText(u"one two three"_s);
        window->rt().select({0, 4, 0, 7});
    }

    QString text() const { return window->rt().text(); }
    void selectTab(const QString &key) const { selectTabOf(*this, key); }

    /// Presses the palette's toggle button. The window is activated first, so that the list can get the focus.
    void openSelectors() const
    {
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        find<QTabBar>(u"toolpane"_s)->setCurrentIndex(4);
        click(u"Toolbar_4"_s, u"selector"_s);
        QVERIFY(selectors()->isVisible());
        QTRY_VERIFY(selectors()->hasFocus());
    }
    QListWidget *selectors() const { return find<QListWidget>(u"List1"_s); }
    bool isSelectorPressed() const
    {
        return find<QWidget>(u"Toolbar_4"_s)->findChild<QAction *>(u"selector"_s)->isChecked();
    }
};

/// The same in visual mode, with the selection that was made in the code view.
struct VisualBench : WindowBench {
    VisualBench()
    {
        start(write(u"site/page.html"_s, "one two three")).show();
        window->rt().select({0, 4, 0, 7});
        find<QTabBar>(u"workspace"_s)->setCurrentIndex(2);
    }

    QString text() const { return window->rt().text(); }
    void selectTab(const QString &key) const { selectTabOf(*this, key); }
};

} // namespace

/// The lists of the side pane and of the palette in the real window.
class TstSideLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyListHasItsTab_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("name");
        QTest::newRow("asp") << u"asp"_s << u"asptags"_s;
        QTest::newRow("html") << u"html"_s << u"TRV"_s;
        QTest::newRow("ihtml") << u"ihtml"_s << u"ihtmltags"_s;
        QTest::newRow("scripts") << u"scripts"_s << u"frmscripts"_s;
        for (const char *key : {"c1", "c2", "c3", "c4", "c5", "c6"})
            QTest::newRow(key) << QString::fromLatin1(key) << QString::fromLatin1(key);
    }

    void everyListHasItsTab()
    {
        QFETCH(QString, key);
        QFETCH(QString, name);
        const ListsBench bench;
        QVERIFY(!bench.find<QWidget>(name)->isVisible());
        bench.selectTab(key);
        QVERIFY(bench.find<QWidget>(name)->isVisible());
        bench.selectTab(u"fileman"_s);
        QVERIFY(!bench.find<QWidget>(name)->isVisible());
    }

    void aTagGoesBehindTheSelection()
    {
        const ListsBench bench;
        bench.window->document().setModified(false);
        bench.selectTab(u"html"_s);
        doubleClickItem(*bench.find<QTreeWidget>(u"TRV"_s), u"<hr>"_s);
        QCOMPARE(bench.text(), u"one two<hr> three"_s);
        QVERIFY(bench.window->docModified());
        QCOMPARE(bench.window->rt().selection(true), (CodeMaxRange{0, 11, 0, 11}));
    }

    void anIhtmlTagGoesBehindTheSelection()
    {
        const ListsBench bench;
        bench.selectTab(u"ihtml"_s);
        doubleClickItem(*bench.find<QListWidget>(u"ihtmltags"_s), u"<iset></isql>"_s);
        QCOMPARE(bench.text(), u"one two<iset></isql> three"_s);
    }

    void aScriptGoesBehindTheSelection()
    {
        WindowBench bench;
        bench.write(u"app/Scripts/00 First.spt"_s, "<script>\r\nhi()\r\n</script>");
        bench.start().show();
        bench.window->rt().setText(u"one two"_s);
        bench.window->rt().select({0, 0, 0, 3});
        bench.find<QTabBar>(u"Frame1"_s)->setCurrentIndex(5);
        QCOMPARE(bench.find<QTreeWidget>(u"scriptfolder"_s)->property("RootFolder").toString(),
                 bench.appPath() + u"/Scripts"_s);
        doubleClickItem(*bench.find<QListWidget>(u"scriptlist"_s), u"00 First"_s);
        QCOMPARE(bench.window->rt().text(), u"one<script>\r\nhi()\r\n</script> two"_s);
    }

    void visualModeRefusesTheSidePane_data()
    {
        QTest::addColumn<QString>("tab");
        QTest::addColumn<QString>("list");
        QTest::newRow("tags") << u"html"_s << u"TRV"_s;
        QTest::newRow("asp") << u"asp"_s << u"asptags"_s;
        QTest::newRow("ihtml") << u"ihtml"_s << u"ihtmltags"_s;
        QTest::newRow("scripts") << u"scripts"_s << u"scriptlist"_s;
        QTest::newRow("custom") << u"c1"_s << u"c1"_s;
    }

    void visualModeRefusesTheSidePane()
    {
        QFETCH(QString, tab);
        QFETCH(QString, list);
        VisualBench bench;
        bench.selectTab(tab);
        bench.prompts.expectTell(u"Sorry, these tools can only be used in Code View"_s, u"Feature Limitation"_s);
        auto *view = bench.find<QAbstractItemView>(list);
        doubleClickItem(*view, view->model()->index(0, 0));
        QVERIFY(bench.prompts.verify());
        QCOMPARE(bench.text(), u"one two three"_s);
        QVERIFY(bench.webViews.designer.pasted.isEmpty());
    }

    void visualModeTakesSelectorsAndVariables()
    {
        VisualBench bench;
        auto *selectors = bench.find<QListWidget>(u"List1"_s);
        selectors->show();
        const QString selector = selectors->item(0)->text();
        doubleClickItem(*selectors, selector);
        QCOMPARE(bench.webViews.designer.pasted, QStringList{u"two"_s + selector});
        QCOMPARE(bench.text(), u"one two three"_s);
        bench.find<QTabBar>(u"toolpane"_s)->setCurrentIndex(10);
        QTest::keyClick(bench.find<QComboBox>(u"Combo6"_s), Qt::Key_Down);
        QCOMPARE(bench.text(), u"one HTTP_REFERER three"_s);
        QCOMPARE(bench.webViews.designer.pasted.size(), 1);
    }

    void serverVariablesReplaceTheSelection_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<int>("toolbar");
        QTest::addColumn<QString>("text");
        QTest::newRow("ssivar") << u"ssivar"_s << 11 << u"one CONTENT_LENGTH three"_s;
        QTest::newRow("Combo6") << u"Combo6"_s << 10 << u"one HTTP_REFERER three"_s;
    }

    void serverVariablesReplaceTheSelection()
    {
        QFETCH(QString, box);
        QFETCH(int, toolbar);
        const ListsBench bench;
        bench.find<QTabBar>(u"toolpane"_s)->setCurrentIndex(toolbar);
        QVERIFY(bench.find<QComboBox>(box)->isVisible());
        QTest::keyClick(bench.find<QComboBox>(box), Qt::Key_Down);
        QTEST(bench.text(), "text");
    }

    void theDataFilesOfTheStart()
    {
        WindowBench bench;
        bench.write(u"app/tags.dat"_s, "<em></em>\n\n  <b></b>\n");
        bench.write(u"app/asptags.dat"_s, "<% %>\n\nResponse");
        bench.write(u"app/deps/csssel.dat"_s, ".a\r\n\r\n#b\r\n");
        bench.start();
        const auto *tags = bench.find<QTreeWidget>(u"TRV"_s);
        QCOMPARE(tags->topLevelItemCount(), 2 + 37);
        QCOMPARE(tags->topLevelItem(1)->text(0), u"  <b></b>"_s);
        const auto *asp = bench.find<QTreeWidget>(u"asptags"_s);
        QCOMPARE(asp->topLevelItemCount(), 3);
        QCOMPARE(asp->topLevelItem(1)->text(0), QString());
        const auto *selectors = bench.find<QListWidget>(u"List1"_s);
        QCOMPARE(selectors->count(), 3);
        QCOMPARE(selectors->item(2)->text(), u"#b"_s);
    }

    void aMissingDataFileEndsTheStart_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("step");
        QTest::newRow("selectors") << u"deps/csssel.dat"_s << u"readStyleSelectors"_s;
        QTest::newRow("tags") << u"tags.dat"_s << u"fillTagTree"_s;
        QTest::newRow("asp") << u"asptags.dat"_s << u"readAspTags"_s;
    }

    void aMissingDataFileEndsTheStart()
    {
        QFETCH(QString, file);
        WindowBench bench;
        const QString path = bench.appPath() + u'/' + file;
        QVERIFY(QFile::remove(path));
        QString message;
        try {
            bench.start();
        } catch (const HandlerError &error) {
            message = error.description;
        }
        QCOMPARE(message, u"Zephira can't start: The file \"%1\" could not be read: it does not exist."_s.arg(path));
        QTEST(bench.window->startSteps().last(), "step");
    }

    void emptyDataFilesAreNoFailure()
    {
        WindowBench bench;
        for (const QString &file : {u"app/tags.dat"_s, u"app/asptags.dat"_s, u"app/deps/csssel.dat"_s})
            bench.write(file, {});
        bench.start();
        QCOMPARE(bench.find<QTreeWidget>(u"TRV"_s)->topLevelItemCount(), 37);
        QCOMPARE(bench.find<QTreeWidget>(u"asptags"_s)->topLevelItemCount(), 0);
    }

    void aCustomTabLoadsAtEachClick()
    {
        const ListsBench bench;
        bench.write(u"app/ctabs/entities.txt"_s, "Mine\r\n#EXTINF,Rule\r\n<hr>");
        const auto *list = bench.find<QTreeWidget>(u"c6"_s);
        bench.selectTab(u"c6"_s);
        QCOMPARE(list->headerItem()->text(0), u"Mine"_s);
        QCOMPARE(list->topLevelItemCount(), 1);
        doubleClickItem(*bench.find<QTreeWidget>(u"c6"_s), u"Rule"_s);
        QCOMPARE(bench.text(), u"one two<hr> three"_s);
        bench.write(u"app/ctabs/entities.txt"_s, "Changed");
        bench.selectTab(u"fileman"_s);
        bench.selectTab(u"c6"_s);
        QCOMPARE(list->headerItem()->text(0), u"Changed"_s);
        QCOMPARE(list->topLevelItemCount(), 0);
    }

    void anEntryIsAddedThroughTheMenu()
    {
        ListsBench bench;
        const QString path = bench.write(u"app/ctabs/entities.txt"_s, "Mine\r\n<hr>");
        bench.selectTab(u"c6"_s);
        auto *list = bench.find<QTreeWidget>(u"c6"_s);
        QTest::mouseClick(list->viewport(), Qt::RightButton, {}, list->viewport()->rect().center());
        auto *menu = bench.find<QMenu>(u"cmenu"_s);
        QVERIFY(menu->isVisible());
        QCOMPARE(menu->actions().size(), 1);
        menu->close();
        QCOMPARE(bench.find<QAction>(u"mnuaddcentry"_s)->text(), u"Add Entry"_s);
        QVERIFY(bench.find<QAction>(u"mnuaddcentry"_s)->isEnabled());
        bench.prompts.expectInput({u"What is the code you wish to add?"_s, u"Add Entry - Code"_s}, u"<br>"_s);
        bench.prompts.expectInput(
            {u"What is the title you wish to give to this entry?"_s, u"Add Entry - Title"_s, u"<br>"_s}, u"Break"_s);
        bench.choose(u"mnuaddcentry"_s);
        QCOMPARE(WindowBench::read(path), QByteArray("Mine\r\n<hr>\r\n#EXTINF,Break\r\n<br>"));
        QCOMPARE(list->topLevelItemCount(), 1);
        bench.selectTab(u"html"_s);
        bench.selectTab(u"c6"_s);
        QCOMPARE(list->topLevelItemCount(), 2);
        QCOMPARE(list->topLevelItem(1)->text(0), u"Break"_s);
        QCOMPARE(list->topLevelItem(1)->data(0, TagRole).toString(), u"<br>"_s);
    }

    void aCustomTabThatFailedBlocksTheOthers()
    {
        ListsBench bench;
        bench.write(u"app/ctabs/entities.txt"_s, {});
        const QString failure =
            u"An error has occured, the error is most likely due to an empty custom code snips file. Here is "
            "an exact description of the error, please use this description when contacting support: "_s;
        bench.prompts.expect({failure + u"Input past end of file"_s}, Answer::Ok);
        bench.selectTab(u"c6"_s);
        bench.prompts.expect({failure + u"File already open"_s}, Answer::Ok);
        bench.selectTab(u"c1"_s);
        QCOMPARE(bench.find<QTreeWidget>(u"c1"_s)->topLevelItemCount(), 0);
        // The file functions of other parts still work.
        QVERIFY(bench.window->FileExists(bench.appPath() + u"/tags.dat"_s));
    }

    void thePropertyButtonLeadsToTheFirstCustomTab()
    {
        ListsBench bench;
        bench.prompts.expect(
            {u"By default, the first custom tab was shipped with a CSS Prop index file. You will now be taken "
             "to the tab"_s},
            Answer::Ok);
        bench.click(u"Toolbar_4"_s, u"prop"_s);
        QCOMPARE(bench.find<QTabBar>(u"Frame1"_s)->currentIndex(), 6);
        QVERIFY(bench.find<QTreeWidget>(u"c1"_s)->isVisible());
        QVERIFY(bench.find<QTreeWidget>(u"c1"_s)->topLevelItemCount() > 0);
    }

    void aSelectorIsPastedAndTheListCloses()
    {
        const ListsBench bench;
        bench.openSelectors();
        const QString selector = bench.selectors()->item(0)->text();
        doubleClickItem(*bench.selectors(), selector);
        QCOMPARE(bench.text(), u"one two"_s + selector + u" three"_s);
        QVERIFY(!bench.selectors()->isVisible());
        QVERIFY(!bench.isSelectorPressed());
        QTRY_VERIFY(bench.window->rt().hasFocus());
    }

    void aClickElsewhereClosesTheSelectors()
    {
        const ListsBench bench;
        bench.openSelectors();
        bench.window->rt().setFocus(Qt::MouseFocusReason);
        QTRY_VERIFY(!bench.selectors()->isVisible());
        QVERIFY(!bench.isSelectorPressed());
        QCOMPARE(bench.text(), u"one two three"_s);
        QVERIFY(bench.window->rt().hasFocus());
    }

    void theButtonClosesTheSelectorsAgain()
    {
        const ListsBench bench;
        bench.openSelectors();
        QVERIFY(bench.isSelectorPressed());
        bench.click(u"Toolbar_4"_s, u"selector"_s);
        QVERIFY(!bench.selectors()->isVisible());
        QVERIFY(!bench.isSelectorPressed());
    }

    void theObjectBrowserIsModalAndReplacesTheSelection()
    {
        ListsBench bench;
        bench.write(u"app/deps/jsobjects.sot"_s, "document\n\tbody\n");
        bool wasOpen = false;
        QTimer::singleShot(0, bench.window.get(), [&] {
            QWidget *form = QApplication::activeModalWidget();
            QVERIFY(form);
            QCOMPARE(form->objectName(), u"oebrowser"_s);
            QTest::mouseClick(form->findChild<QWidget *>(u"objectshow"_s), Qt::LeftButton);
            doubleClickItem(*form->findChild<QTreeWidget *>(u"TreeView1"_s), u"document"_s);
            wasOpen = true;
            form->close();
        });
        bench.click(u"Toolbar_8"_s, 7);
        QVERIFY(wasOpen);
        QCOMPARE(bench.text(), u"one document three"_s);
    }
};

ZEPHIRA_TEST(TstSideLists)
#include "tst_sidelists.moc"
