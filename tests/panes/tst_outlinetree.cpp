// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/errorstyles.h"
#include "core/itemroles.h"
#include "panes/outlinemodel.h"
#include "panes/outlinetree.h"
#include "support/testregistry.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// A node and its descendants, indented by two blanks per level: caption, "(key, picture)", and "+" if it is expanded.
void describe(const OutlineTree &tree, const QModelIndex &node, int level, QStringList &lines)
{
    lines.append(QString(2 * level, u' ') + node.data().toString()
                 + u" (%1, %2)"_s.arg(node.data(KeyRole).toString()).arg(node.data(OutlineModel::PictureRole).toInt())
                 + (tree.isExpanded(node) ? u"+"_s : u""_s));
    for (int row = 0; row < tree.model()->rowCount(node); ++row)
        describe(tree, tree.model()->index(row, 0, node), level + 1, lines);
}

QStringList describe(const OutlineTree &tree)
{
    QStringList lines;
    describe(tree, tree.model()->index(0, 0), 0, lines);
    return lines;
}

QModelIndex nodeOf(const OutlineTree &tree, const QString &caption)
{
    return tree.model()
        ->match(tree.model()->index(0, 0), Qt::DisplayRole, caption, 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

const QStringList emptyOutline{
    u"HTML Outline (Main, 1)+"_s,     u"  Document (document, 4)+"_s,    u"    Anchors (bookmarks, 3)"_s,
    u"    Comments (comments, 3)"_s,  u"    Divisions (divisions, 3)"_s, u"    Forms (forms, 3)"_s,
    u"    Headings (headings, 3)"_s,  u"    Images (images, 3)"_s,       u"    Layers (layers, 3)"_s,
    u"    Links (links, 3)"_s,        u"    Lists (lists, 3)"_s,         u"    Scripts (scripts, 3)"_s,
    u"    Styles (styles, 3)"_s,      u"    Tables (tables, 3)"_s,       u"    Others (other, 3)"_s,
    u"  Declaration (declare, 4)+"_s, u"  Page Title (title, 4)+"_s,
};

} // namespace

class TstOutlineTree final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyDocument()
    {
        OutlineTree tree;
        tree.ParseOutline({}, false);
        QCOMPARE(describe(tree), emptyOutline);
        QCOMPARE(tree.currentIndex().data(KeyRole).toString(), u"Main"_s);
        QCOMPARE(tree.objectName(), u"TreeView1"_s);
    }

    void leavesStandBelowTheirGroups()
    {
        OutlineTree tree;
        tree.ParseOutline(u"<!DOCTYPE html><title>Home</title>\r\n<body><a href=x><a href='y'>"_s, false);
        QStringList lines = emptyOutline;
        lines.insert(17, u"    Home (, 2)"_s);
        lines.insert(16, u"    !DOCTYPE (, 2)"_s);
        lines.insert(15, u"    BODY (, 2)"_s);
        lines.insert(10, u"      y (, 2)"_s);
        lines.insert(10, u"      x (, 2)"_s);
        QCOMPARE(describe(tree), lines);
        QCOMPARE(nodeOf(tree, u"y"_s).data(TagRole).toString(), u"a href='y'"_s);
        QCOMPARE(nodeOf(tree, u"y"_s).data(OutlineModel::PositionRole).toLongLong(), 52);
        QVERIFY(!nodeOf(tree, u"Links"_s).data(TagRole).isValid());
        QCOMPARE(tree.currentIndex().data(KeyRole).toString(), u"Main"_s);
    }

    void aSecondParseStartsAnew()
    {
        OutlineTree tree;
        tree.ParseOutline(u"<body><a href=x>"_s, false);
        tree.expand(nodeOf(tree, u"Links"_s));
        tree.setCurrentIndex(nodeOf(tree, u"x"_s));
        tree.ParseOutline({}, false);
        QCOMPARE(describe(tree), emptyOutline);
        QCOMPARE(tree.currentIndex().data(KeyRole).toString(), u"Main"_s);
    }

    void skippingDoesNothing()
    {
        OutlineTree tree;
        tree.ParseOutline(u"<body>"_s, false);
        const QStringList before = describe(tree);
        tree.ParseOutline(u"<head>"_s, true);
        QCOMPARE(describe(tree), before);
    }

    void anErrorKeepsTheLeavesBefore()
    {
        OutlineTree tree;
        tree.ParseOutline({}, false);
        QVERIFY_EXCEPTION_THROWN(tree.ParseOutline(u"<a href=x><!--><a href=y>"_s, false), HandlerError);
        QStringList lines = emptyOutline;
        lines.replaceInStrings(u"+"_s, QString());
        lines.insert(10, u"      x (, 2)"_s);
        QCOMPARE(describe(tree), lines);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void thePointerIsAnHourglass()
    {
        OutlineTree tree;
        QList<Qt::CursorShape> shapes;
        connect(tree.model(), &QAbstractItemModel::modelReset, &tree,
                [&] { shapes.append(QGuiApplication::overrideCursor()->shape()); });
        tree.ParseOutline(u"<body>"_s, false);
        QCOMPARE(shapes, QList<Qt::CursorShape>{Qt::WaitCursor});
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void openingAndClosingSelectTheNode()
    {
        OutlineTree tree;
        tree.ParseOutline(u"<a href=x>"_s, false);
        const QModelIndex links = nodeOf(tree, u"Links"_s);
        tree.expand(links);
        QCOMPARE(tree.currentIndex(), links);
        tree.setCurrentIndex(nodeOf(tree, u"HTML Outline"_s));
        tree.collapse(links);
        QCOMPARE(tree.currentIndex(), links);
    }

    void selectingAHiddenLeafKeepsIt()
    {
        OutlineTree tree;
        tree.resize(300, 600);
        tree.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tree));
        tree.ParseOutline(u"<a href=x>"_s, false);
        tree.setCurrentIndex(nodeOf(tree, u"x"_s));
        QCOMPARE(tree.currentIndex().data().toString(), u"x"_s);
        QVERIFY(tree.isExpanded(nodeOf(tree, u"Links"_s)));
        QVERIFY(tree.findChild<QAction *>(u"goToTag"_s)->isEnabled());
    }

    void aClickOnlySelects()
    {
        OutlineTree tree;
        tree.resize(300, 600);
        tree.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tree));
        tree.ParseOutline(u"<body>"_s, false);
        const QSignalSpy asked(&tree, &OutlineTree::goToTag);
        const QModelIndex body = nodeOf(tree, u"BODY"_s);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(body).center());
        QCOMPARE(tree.currentIndex(), body);
        QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(body).center());
        QCOMPARE(asked.size(), 0);
    }

    void goToTagNamesTheLeaf()
    {
        OutlineTree tree;
        tree.ParseOutline(u"..<a href=x>"_s, false);
        const QSignalSpy asked(&tree, &OutlineTree::goToTag);
        auto *goTo = tree.findChild<QAction *>(u"goToTag"_s);
        QVERIFY(goTo);
        QCOMPARE(goTo->text(), u"Go to Tag"_s);
        QCOMPARE(tree.contextMenuPolicy(), Qt::ActionsContextMenu);
        QVERIFY(!goTo->isEnabled());
        tree.setCurrentIndex(nodeOf(tree, u"Links"_s));
        QVERIFY(!goTo->isEnabled());
        tree.setCurrentIndex(nodeOf(tree, u"x"_s));
        QVERIFY(goTo->isEnabled());
        goTo->trigger();
        QCOMPARE(asked.size(), 1);
        QCOMPARE(asked.first(), (QVariantList{u"a href=x"_s, QVariant::fromValue<qsizetype>(2)}));
        tree.ParseOutline({}, false);
        QVERIFY(!goTo->isEnabled());
    }

    void theModelIsSound()
    {
        OutlineModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.parse(u"<body><a href=x><title>a</title>\n<h1>"_s);
        model.parse({});
        QCOMPARE(model.rowCount(), 1);
    }

    void allNodesHavePictures()
    {
        QIcon::setThemeSearchPaths(QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, u"icons"_s,
                                                             QStandardPaths::LocateDirectory));
        QIcon::setThemeName(u"breeze"_s);
        OutlineModel model;
        model.parse(u"<body>"_s);
        const QModelIndex document = model.groupIndex(OutlineGroup::Document);
        for (const QModelIndex &node :
             {model.index(0, 0), document, model.index(0, 0, document), model.index(13, 0, document)})
            QVERIFY2(!node.data(Qt::DecorationRole).value<QIcon>().isNull(), qPrintable(node.data().toString()));
    }
};

ZEPHIRA_TEST(TstOutlineTree)

#include "tst_outlinetree.moc"
