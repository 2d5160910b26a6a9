// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/formcatalogue.h"
#include "panes/registerforms.h"
#include "panes/sotloader.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/itemviews.h"
#include "support/testregistry.h"

#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

struct OpenBrowser {
    OpenBrowser()
    {
        world.files.contents[u"/app/deps/jsobjects.sot"_s] = "document\r\n\tbody\r\n\t\tstyle\r\nwindow\r\n";
        world.files.contents[u"/app/deps/jsevents.sot"_s] = "onclick\n";
    }

    static FormCatalogue catalogue()
    {
        FormCatalogue forms;
        panes::registerForms(forms);
        return forms;
    }

    QTreeWidget &tree() const { return form.get<QTreeWidget>(u"TreeView1"_s); }

    TestContext world;
    const FormCatalogue forms = catalogue();
    const LivingForm form{forms, u"oebrowser"_s, world};
};

} // namespace

class TstOeBrowser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsReadBeforeAButtonIsPressed()
    {
        const OpenBrowser browser;
        QCOMPARE(browser.form.widget().windowTitle(), u"Object / Event Browser"_s);
        QCOMPARE(browser.tree().topLevelItemCount(), 0);
        QCOMPARE(browser.form.get<QPushButton>(u"objectshow"_s).text(), u"Object Tree"_s);
        QCOMPARE(browser.form.get<QPushButton>(u"eventshow"_s).text(), u"Event Tree"_s);
    }

    void theButtonsShowTheirTrees()
    {
        const OpenBrowser browser;
        browser.form.press(u"objectshow"_s);
        QCOMPARE(browser.tree().topLevelItemCount(), 2);
        const QTreeWidgetItem *document = browser.tree().topLevelItem(0);
        QCOMPARE(document->text(0), u"document"_s);
        QCOMPARE(document->child(0)->text(0), u"body"_s);
        QCOMPARE(document->child(0)->child(0)->text(0), u"style"_s);
        QCOMPARE(browser.tree().topLevelItem(1)->text(0), u"window"_s);
        browser.form.press(u"eventshow"_s);
        QCOMPARE(browser.tree().topLevelItemCount(), 1);
        QCOMPARE(browser.tree().topLevelItem(0)->text(0), u"onclick"_s);
    }

    void eachPressReadsTheFileAgain()
    {
        OpenBrowser browser;
        browser.form.press(u"eventshow"_s);
        browser.world.files.contents[u"/app/deps/jsevents.sot"_s] = "a\nb";
        browser.form.press(u"eventshow"_s);
        QCOMPARE(browser.tree().topLevelItemCount(), 2);
    }

    void aDoubleClickReplacesTheSelection()
    {
        OpenBrowser browser;
        browser.world.editor.setText(u"x = here"_s);
        browser.world.editor.selectPart(u"here"_s);
        browser.world.designer.showing = true; // The view makes no difference.
        browser.form.press(u"objectshow"_s);
        doubleClickItem(browser.tree(), u"window"_s);
        QCOMPARE(browser.world.editor.text(), u"x = window"_s);
        QVERIFY(browser.world.inserter.inserted.isEmpty());
        QVERIFY(browser.form.isOpen());
    }

    void aLineTooDeepEndsTheTreeAndIsTold()
    {
        OpenBrowser browser;
        browser.world.files.contents[u"/app/deps/jsobjects.sot"_s] = "a\n\tb\n\t\t\tc\nd";
        browser.world.prompts.expectTell(
            u"The file \"/app/deps/jsobjects.sot\" was not read to its end: line 3 is indented too far."_s,
            u"Object / Event Browser"_s, Question::Icon::Exclamation);
        browser.form.press(u"objectshow"_s);
        QCOMPARE(browser.tree().topLevelItemCount(), 1);
        QCOMPARE(browser.tree().topLevelItem(0)->childCount(), 1);
    }

    void aMissingFileIsToldAndTheTreeStays()
    {
        OpenBrowser browser;
        browser.form.press(u"eventshow"_s);
        browser.world.files.contents.erase(u"/app/deps/jsobjects.sot"_s);
        browser.world.prompts.expectTell(u"/app/deps/jsobjects.sot doesn't exist."_s, u"Object / Event Browser"_s,
                                         Question::Icon::Exclamation);
        browser.form.press(u"objectshow"_s);
        QCOMPARE(browser.tree().topLevelItemCount(), 1);
    }

    void thePartsFollowTheSizeOfTheForm()
    {
        const OpenBrowser browser;
        browser.form.widget().resize(400, 300);
        QTRY_COMPARE(browser.tree().geometry(), QRect(2, 2, 303, 297));
        for (const QString &name : {u"objectshow"_s, u"eventshow"_s})
            QCOMPARE(browser.form.get<QPushButton>(name).x(), 313);
        QVERIFY(!browser.form.get<QPushButton>(u"objectshow"_s)
                     .geometry()
                     .intersects(browser.form.get<QPushButton>(u"eventshow"_s).geometry()));
    }

    void escapeCloses()
    {
        const OpenBrowser browser;
        browser.form.key(Qt::Key_Escape);
        QVERIFY(!browser.form.isOpen());
    }

    /// Deeper than any tree that people write, to prove that no code that walks the tree relies on a small depth.
    void aDeepTree()
    {
        MemoryFileStore files;
        QByteArray &content = files.contents[u"/deep"_s];
        for (int depth = 0; depth < 3000; ++depth)
            content += QByteArray(depth, '\t') + "x\n";
        QTreeWidget tree;
        QVERIFY(LoadSotTree(files, u"/deep"_s, tree).ok());
        int depth = 0;
        for (const QTreeWidgetItem *item = tree.topLevelItem(0); item; item = item->child(0))
            ++depth;
        QCOMPARE(depth, 3000);
        tree.clear();
        QCOMPARE(tree.topLevelItemCount(), 0);
    }
};

ZEPHIRA_TEST(TstOeBrowser)
#include "tst_oebrowser.moc"
