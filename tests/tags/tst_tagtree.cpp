// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/itemroles.h"
#include "support/fakes.h"
#include "support/itemviews.h"
#include "support/testregistry.h"
#include "tags/builtintags.h"
#include "tags/tagtree.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// The visible tree with a tags.dat of its own.
struct TagTreeBench {
    explicit TagTreeBench(const QByteArray &file)
    {
        world.files.contents[u"/app/tags.dat"_s] = file;
        tree.resize(300, 400);
        tree.show();
        loaded = tree.LoadTagTree().ok();
    }

    QTreeWidgetItem *withKey(const QString &key) const
    {
        for (int i = 0; i < tree.topLevelItemCount(); ++i) {
            if (tree.topLevelItem(i)->data(0, KeyRole).toString() == key)
                return tree.topLevelItem(i);
        }
        qFatal("no node has the key %s", qPrintable(key));
    }

    TestContext world;
    TagTree tree{world};
    bool loaded = false;
};

} // namespace

class TstTagTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFileComesFirst()
    {
        const TagTreeBench bench("<em></em>\r\n\r\n  <b></b> \r\n    \r\n");
        QVERIFY(bench.loaded);
        QCOMPARE(bench.tree.topLevelItemCount(), 2 + 37);
        QCOMPARE(bench.tree.topLevelItem(0)->text(0), u"<em></em>"_s);
        QCOMPARE(bench.tree.topLevelItem(1)->text(0), u"  <b></b> "_s);
        QCOMPARE(bench.tree.topLevelItem(2)->text(0), u"<a></a>"_s);
        QVERIFY(!bench.tree.topLevelItem(0)->data(0, KeyRole).isValid());
        QCOMPARE(bench.tree.topLevelItem(0)->childCount(), 0);
    }

    void theTableFollows()
    {
        const TagTreeBench bench("");
        QVERIFY(bench.loaded);
        int attributes = 0;
        for (int i = 0; i < bench.tree.topLevelItemCount(); ++i) {
            const QTreeWidgetItem *item = bench.tree.topLevelItem(i);
            const BuiltInTag &tag = builtInTags()[static_cast<std::size_t>(i)];
            QCOMPARE(item->text(0), tag.caption.toString());
            QCOMPARE(item->data(0, KeyRole).toString(), tag.key.toString());
            QStringList children;
            for (int child = 0; child < item->childCount(); ++child) {
                children.append(item->child(child)->text(0));
                QVERIFY(!item->child(child)->data(0, KeyRole).isValid());
            }
            QCOMPARE(children, attributeCaptions(tag));
            attributes += item->childCount();
        }
        QCOMPARE(bench.tree.topLevelItemCount(), 37);
        QCOMPARE(attributes, 326);
    }

    void blankLinesAddNothing()
    {
        const TagTreeBench bench("\r\n    \r\n \r\n");
        QCOMPARE(bench.tree.topLevelItemCount(), 37);
    }

    void withoutTheFileItFails()
    {
        TestContext world;
        TagTree tree(world);
        const Result<void> loaded = tree.LoadTagTree();
        QVERIFY(!loaded.ok());
        QCOMPARE(loaded.error().sentence, u"/app/tags.dat doesn't exist."_s);
        QCOMPARE(tree.topLevelItemCount(), 0);
    }

    void aDoubleClickPastesTheCaption()
    {
        TagTreeBench bench("  <b></b>");
        doubleClickItem(bench.tree, u"  <b></b>"_s);
        QCOMPARE(bench.world.inserter.inserted, QStringList{u"  <b></b>"_s});
    }

    void aBuiltInTagComesWithoutItsAttributes()
    {
        TagTreeBench bench("");
        doubleClickItem(bench.tree, u"<a></a>"_s);
        QCOMPARE(bench.world.inserter.inserted, QStringList{u"<a></a>"_s});
        QVERIFY(!bench.withKey(u"ANCHOR"_s)->isExpanded());
    }

    void anAttributeIsPastedAlone()
    {
        TagTreeBench bench("");
        QTreeWidgetItem *frame = bench.withKey(u"Frame"_s);
        frame->setExpanded(true);
        doubleClickItem(bench.tree, bench.tree.model()->index(6, 0, bench.tree.model()->index(13, 0)));
        QCOMPARE(bench.world.inserter.inserted, QStringList{u" noresize"_s});
    }

    void theSelectionStaysInFront()
    {
        TagTreeBench bench("");
        bench.world.editor.setText(u"one two three"_s);
        bench.world.editor.selectPart(u"two"_s);
        doubleClickItem(bench.tree, u"<hr>"_s);
        QCOMPARE(bench.world.inserter.inserted, QStringList{u"two<hr>"_s});
    }

    void visualModeIsRefused()
    {
        TagTreeBench bench("");
        bench.world.designer.showing = true;
        bench.world.prompts.expectTell(u"Sorry, these tools can only be used in Code View"_s, u"Feature Limitation"_s);
        doubleClickItem(bench.tree, u"<hr>"_s);
        QVERIFY(bench.world.inserter.inserted.isEmpty());
    }

    void returnPastesTheCurrentNode()
    {
        TagTreeBench bench("");
        bench.tree.setCurrentItem(bench.withKey(u"HR"_s));
        QTest::keyClick(&bench.tree, Qt::Key_Return);
        QCOMPARE(bench.world.inserter.inserted, QStringList{u"<hr>"_s});
    }
};

ZEPHIRA_TEST(TstTagTree)
#include "tst_tagtree.moc"
