// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/itemroles.h"
#include "files/filenumber.h"
#include "panes/customtabs.h"
#include "support/fakes.h"
#include "support/itemviews.h"
#include "support/testregistry.h"

#include <QContextMenuEvent>
#include <QListWidget>
#include <QMenu>
#include <QTest>
#include <QTreeWidget>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

const QString failure =
    u"An error has occured, the error is most likely due to an empty custom code snips file. Here is an "
    "exact description of the error, please use this description when contacting support: "_s;
const InputRequest askForCode{u"What is the code you wish to add?"_s, u"Add Entry - Code"_s};

InputRequest askForTitle(const QString &code)
{
    return {u"What is the title you wish to give to this entry?"_s, u"Add Entry - Title"_s, code};
}

/// Six tabs with files in memory; the first is css.txt, the second b.txt.
struct CustomTabsBench {
    CustomTabsBench()
    {
        world.configuration.put(u"ctab"_s, u"1"_s, u"css.txt"_s);
        world.configuration.put(u"ctab"_s, u"2"_s, u"b.txt"_s);
        world.files.contents[u"/app/ctabs/css.txt"_s] = "Props\r\n#EXTINF,Colour\r\ncolor: ;\r\nmargin: ;";
        window.resize(300, 400);
        tabs.list(1)->resize(300, 400);
        window.show();
    }

    QStringList titles(int tab) const
    {
        QStringList list;
        for (int i = 0; i < tabs.list(tab)->topLevelItemCount(); ++i)
            list.append(tabs.list(tab)->topLevelItem(i)->text(0));
        return list;
    }

    void expectFailure(const QString &description) { world.prompts.expect({failure + description}, Answer::Ok); }

    /// A right click, which leaves its menu open.
    void rightClick(int tab) { QTest::mouseClick(tabs.list(tab)->viewport(), Qt::RightButton, {}, QPoint(10, 60)); }

    TestContext world;
    FileNumber number{world.files};
    QWidget window;
    QMenu menu{&window};
    CustomTabs tabs{world, number, menu, &window};
};

} // namespace

class TstCustomTabs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTitleIsTheFilesHeader()
    {
        const CustomTabsBench bench;
        QCOMPARE(bench.tabs.title(1), u"Props"_s);
        QCOMPARE(bench.tabs.title(2), QString());
    }

    void namesAndColumns()
    {
        const CustomTabsBench bench;
        for (int tab = 1; tab <= 6; ++tab) {
            QCOMPARE(bench.tabs.list(tab)->objectName(), u"c%1"_s.arg(tab));
            QCOMPARE(bench.tabs.list(tab)->columnCount(), 1);
            QVERIFY(!bench.tabs.list(tab)->isHeaderHidden());
        }
        QVERIFY(!bench.window.findChild<QListWidget *>(u"lsttempc"_s)->isVisibleTo(&bench.window));
    }

    void aFileFillsItsTab()
    {
        CustomTabsBench bench;
        bench.tabs.load(1);
        QCOMPARE(bench.tabs.list(1)->headerItem()->text(0), u"Props"_s);
        QCOMPARE(bench.titles(1), (QStringList{u"Colour"_s, u"margin: ;"_s}));
        QCOMPARE(bench.tabs.list(1)->topLevelItem(0)->data(0, TagRole).toString(), u"color: ;"_s);
        QCOMPARE(bench.tabs.list(1)->topLevelItem(1)->data(0, TagRole).toString(), u"margin: ;"_s);
        QVERIFY(bench.titles(2).isEmpty());
        QCOMPARE(bench.window.findChild<QListWidget *>(u"lsttempc"_s)->count(), 0);
    }

    void aSecondLoadReplacesTheFirst()
    {
        CustomTabsBench bench;
        bench.tabs.load(1);
        bench.world.files.contents[u"/app/ctabs/css.txt"_s] = "Alone";
        bench.tabs.load(1);
        QCOMPARE(bench.tabs.list(1)->headerItem()->text(0), u"Alone"_s);
        QVERIFY(bench.titles(1).isEmpty());
    }

    void aDoubleClickPastesTheCode()
    {
        CustomTabsBench bench;
        bench.world.editor.setText(u"p {}"_s);
        bench.world.editor.selectPart(u"p"_s);
        bench.tabs.load(1);
        doubleClickItem(*bench.tabs.list(1), u"Colour"_s);
        QCOMPARE(bench.world.inserter.inserted, QStringList{u"pcolor: ;"_s});
    }

    void visualModeIsRefused()
    {
        CustomTabsBench bench;
        bench.tabs.load(1);
        bench.world.designer.showing = true;
        bench.world.prompts.expectTell(u"Sorry, these tools can only be used in Code View"_s, u"Feature Limitation"_s);
        doubleClickItem(*bench.tabs.list(1), u"Colour"_s);
        QVERIFY(bench.world.inserter.inserted.isEmpty());
    }

    void anEmptyFileIsToldAndKeepsTheNumber()
    {
        CustomTabsBench bench;
        bench.tabs.load(1);
        bench.world.files.contents[u"/app/ctabs/css.txt"_s] = "";
        bench.expectFailure(u"Input past end of file"_s);
        bench.tabs.load(1);
        QVERIFY(bench.titles(1).isEmpty());
        bench.world.files.contents[u"/app/ctabs/css.txt"_s] = "Full again";
        bench.expectFailure(u"File already open"_s);
        bench.tabs.load(1);
        bench.expectFailure(u"File already open"_s);
        bench.tabs.load(2);
        QVERIFY(bench.titles(1).isEmpty());
    }

    void aMissingFileIsTold()
    {
        CustomTabsBench bench;
        bench.expectFailure(u"/app/ctabs/b.txt doesn't exist."_s);
        bench.tabs.load(2);
        bench.expectFailure(u"File already open"_s);
        bench.tabs.load(1);
    }

    void anEmptyKeyIsTold()
    {
        CustomTabsBench bench;
        bench.expectFailure(u"/app/ctabs/ doesn't exist."_s);
        bench.tabs.load(3);
    }

    void anEntryIsAddedToTheTabOfTheRightClick()
    {
        CustomTabsBench bench;
        bench.rightClick(2);
        QVERIFY(bench.menu.isVisible());
        bench.menu.close();
        bench.world.prompts.expectInput(askForCode, u"<b></b>"_s);
        bench.world.prompts.expectInput(askForTitle(u"<b></b>"_s), u"Bold, or so"_s);
        bench.tabs.addEntry();
        QCOMPARE(bench.world.files.contents[u"/app/ctabs/b.txt"_s], QByteArray("\r\n#EXTINF,Bold, or so\r\n<b></b>"));
        QVERIFY(bench.titles(2).isEmpty());
        bench.tabs.load(2);
        QCOMPARE(bench.titles(2), QStringList{u"Bold, or so"_s});
        QCOMPARE(bench.tabs.list(2)->headerItem()->text(0), QString());
    }

    void theKeyboardOpensTheMenuToo()
    {
        CustomTabsBench bench;
        QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(bench.tabs.list(2), &key);
        QVERIFY(bench.menu.isVisible());
        bench.menu.close();
        // With the mouse the menu opens when the button is released.
        QContextMenuEvent mouse(QContextMenuEvent::Mouse, QPoint(), QPoint());
        QCoreApplication::sendEvent(bench.tabs.list(2)->viewport(), &mouse);
        QVERIFY(!bench.menu.isVisible());
    }

    void withoutACodeOrTitleNothingIsStored_data()
    {
        QTest::addColumn<bool>("cancelled");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("title");
        QTest::newRow("code cancelled") << true << QString() << u"title"_s;
        QTest::newRow("code empty") << false << QString() << u"title"_s;
        QTest::newRow("title empty") << false << u"code"_s << QString();
    }

    void withoutACodeOrTitleNothingIsStored()
    {
        QFETCH(bool, cancelled);
        QFETCH(QString, code);
        QFETCH(QString, title);
        CustomTabsBench bench;
        bench.world.prompts.expectInput(askForCode, cancelled ? std::nullopt : std::optional(code));
        bench.world.prompts.expectInput(askForTitle(code), title);
        bench.tabs.addEntry();
        QVERIFY(bench.world.files.log.isEmpty());
    }

    void aFileThatCannotBeWrittenIsTold()
    {
        CustomTabsBench bench;
        bench.world.files.unwritable.emplace(u"/app/ctabs/css.txt"_s,
                                             Error{Error::Code::Unwritable, u"The disk is full."_s});
        bench.world.prompts.expectInput(askForCode, u"code"_s);
        bench.world.prompts.expectInput(askForTitle(u"code"_s), u"title"_s);
        bench.world.prompts.expectTell(u"The disk is full."_s, {}, Question::Icon::Exclamation);
        bench.tabs.addEntry();
    }
};

ZEPHIRA_TEST(TstCustomTabs)
#include "tst_customtabs.moc"
