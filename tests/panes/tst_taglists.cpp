// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/asptagtree.h"
#include "panes/ihtmltaglist.h"
#include "panes/selectorlist.h"
#include "support/fakes.h"
#include "support/itemviews.h"
#include "support/testregistry.h"

#include <QSignalSpy>
#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

const QString refusal = u"Sorry, these tools can only be used in Code View"_s;
const QString refusalTitle = u"Feature Limitation"_s;

template<typename View>
void show(View &view)
{
    view.resize(300, 400);
    view.show();
}

} // namespace

/// The lists of the side pane that paste one line.
class TstTagLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aspLinesAreRootNodes()
    {
        TestContext world;
        AspTagTree tree(world);
        tree.addLines({u"<% %>"_s, u""_s, u"\tResponse.Write"_s});
        QCOMPARE(tree.topLevelItemCount(), 3);
        QCOMPARE(tree.topLevelItem(1)->text(0), QString());
        QCOMPARE(tree.topLevelItem(2)->text(0), u"\tResponse.Write"_s);
    }

    void aspItemsGoBehindTheSelection()
    {
        TestContext world;
        world.editor.setText(u"a b"_s);
        world.editor.selectPart(u"b"_s);
        AspTagTree tree(world);
        tree.addLines({u"<% %>"_s, u""_s});
        show(tree);
        doubleClickItem(tree, u"<% %>"_s);
        QCOMPARE(world.inserter.inserted, QStringList{u"b<% %>"_s});
        doubleClickItem(tree, tree.model()->index(1, 0));
        QCOMPARE(world.inserter.inserted.size(), 1); // A blank line isn't pasted.
    }

    void aspItemsNeedTheCodeView()
    {
        TestContext world;
        world.designer.showing = true;
        world.prompts.expectTell(refusal, refusalTitle);
        AspTagTree tree(world);
        tree.addLines({u"<% %>"_s});
        show(tree);
        doubleClickItem(tree, u"<% %>"_s);
        QVERIFY(world.inserter.inserted.isEmpty());
    }

    void ihtmlItems()
    {
        TestContext world;
        IhtmlTagList list(world);
        show(list);
        QCOMPARE(list.count(), 186);
        doubleClickItem(list, u"<<irandom>"_s);
        QCOMPARE(world.inserter.inserted, QStringList{u"<<irandom>"_s});
        world.designer.showing = true;
        world.prompts.expectTell(refusal, refusalTitle);
        doubleClickItem(list, u"<iabs>"_s);
        QCOMPARE(world.inserter.inserted.size(), 1);
    }

    void selectorsGoBehindTheSelection()
    {
        TestContext world;
        world.editor.setText(u"a b"_s);
        world.editor.selectPart(u"a"_s);
        SelectorList list(world);
        list.addItems({u".class"_s, u"#id"_s});
        show(list);
        QSignalSpy finished(&list, &SelectorList::finished);
        doubleClickItem(list, u"#id"_s);
        QCOMPARE(world.inserter.inserted, QStringList{u"a#id"_s});
        QCOMPARE(finished.size(), 1);
    }

    void selectorsHaveNoViewTest()
    {
        TestContext world;
        world.designer.showing = true;
        SelectorList list(world);
        list.addItem(u"#id"_s);
        show(list);
        doubleClickItem(list, u"#id"_s);
        QCOMPARE(world.inserter.inserted, QStringList{u"#id"_s});
    }

    void losingTheFocusEndsTheSelectors()
    {
        TestContext world;
        SelectorList list(world);
        list.addItem(u"#id"_s);
        show(list);
        QSignalSpy finished(&list, &SelectorList::finished);
        QFocusEvent lost(QEvent::FocusOut);
        QCoreApplication::sendEvent(&list, &lost);
        QCOMPARE(finished.size(), 1);
        QTest::keyClick(&list, Qt::Key_Escape);
        QCOMPARE(finished.size(), 2);
        QVERIFY(world.inserter.inserted.isEmpty());
    }

    /// A line much longer than the screen is painted fast, and pasted completely.
    void aLineOfMillions()
    {
        TestContext world;
        AspTagTree tree(world);
        const QString line(5'000'000, u'x');
        tree.addLines({line});
        show(tree);
        tree.resizeColumnToContents(0);
        QVERIFY(tree.columnWidth(0) < 100'000);
        doubleClickItem(tree, tree.model()->index(0, 0));
        QCOMPARE(world.inserter.inserted.size(), 1);
        QVERIFY(world.inserter.inserted.first() == line);
    }
};

ZEPHIRA_TEST(TstTagLists)
#include "tst_taglists.moc"
