// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/foldertree.h"
#include "panes/placefolders.h"
#include "support/testregistry.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

QStringList childrenOf(const QTreeWidgetItem *item)
{
    QStringList names;
    for (int i = 0; i < item->childCount(); ++i)
        names.append(item->child(i)->text(0));
    return names;
}

QTreeWidgetItem *child(const QTreeWidgetItem *item, const QString &name)
{
    for (int i = 0; i < item->childCount(); ++i) {
        if (item->child(i)->text(0) == name)
            return item->child(i);
    }
    return nullptr;
}

QTreeWidgetItem *rootItem(const FolderTree &tree)
{
    return tree.topLevelItem(0);
}

} // namespace

class TstFolderTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_places = std::make_unique<PlaceFolders>(); }
    void cleanup() { m_places.reset(); }

    void theDesktopsOwnFoldersStandAtTheTop()
    {
        FolderTree tree;
        QCOMPARE(childrenOf(tree.invisibleRootItem()),
                 (QStringList{u"Desktop"_s, u"My Documents"_s, u"Home"_s, u"My Computer"_s}));
        QCOMPARE(childrenOf(tree.topLevelItem(3)), QStringList{u"/"_s});
        QCOMPARE(tree.selectedFolder(), QString());
        tree.setCurrentItem(tree.topLevelItem(0));
        QCOMPARE(tree.selectedFolder(), m_places->path(u"Desktop"_s) + u'/');
        tree.setCurrentItem(tree.topLevelItem(1));
        QCOMPARE(tree.selectedFolder(), m_places->path(u"Documents"_s) + u'/');
        tree.setCurrentItem(tree.topLevelItem(2));
        QCOMPARE(tree.selectedFolder(), m_places->path() + u'/');
        tree.setCurrentItem(tree.topLevelItem(3));
        QCOMPARE(tree.selectedFolder(), QString());
        tree.setCurrentItem(tree.topLevelItem(3)->child(0));
        QCOMPARE(tree.selectedFolder(), u"/"_s);
    }

    void aFolderThatIsMadeAgainIsSelectedAgain()
    {
        m_places->makeFolder(u"root/a/b"_s);
        FolderTree tree;
        tree.setRootFolder(m_places->path(u"root"_s));
        tree.setCurrentItem(child(rootItem(tree), u"a"_s));
        QVERIFY(QDir(m_places->path(u"root/a"_s)).removeRecursively());
        QTRY_COMPARE_WITH_TIMEOUT(tree.selectedFolder(), m_places->path(u"root"_s), patience);
        QTest::qWait(1000);
        const QSignalSpy selected(&tree, &FolderTree::folderSelected);
        m_places->makeFolder(u"root/a/c"_s);
        QTRY_COMPARE_WITH_TIMEOUT(tree.selectedFolder(), m_places->path(u"root/a"_s), patience);
        QCOMPARE(selected.last(), QVariantList{m_places->path(u"root/a"_s)});
        // If the user has selected another folder meanwhile, that stays selected.
        QVERIFY(QDir(m_places->path(u"root/a"_s)).removeRecursively());
        QTRY_COMPARE_WITH_TIMEOUT(tree.selectedFolder(), m_places->path(u"root"_s), patience);
        m_places->makeFolder(u"root/z"_s);
        QTRY_VERIFY_WITH_TIMEOUT(child(rootItem(tree), u"z"_s), patience);
        tree.setCurrentItem(child(rootItem(tree), u"z"_s));
        m_places->makeFolder(u"root/a"_s);
        QTRY_VERIFY_WITH_TIMEOUT(child(rootItem(tree), u"a"_s), patience);
        QCOMPARE(tree.selectedFolder(), m_places->path(u"root/z"_s));
    }

    void aRootThatIsMadeAgainIsFollowedAgain()
    {
        m_places->makeFolder(u"root/a"_s);
        FolderTree tree;
        tree.setRootFolder(m_places->path(u"root"_s));
        QVERIFY(QDir(m_places->path(u"root"_s)).removeRecursively());
        QTRY_COMPARE_WITH_TIMEOUT(childrenOf(rootItem(tree)), QStringList(), patience);
        QTest::qWait(1000);
        m_places->makeFolder(u"root/b"_s);
        QTRY_COMPARE_WITH_TIMEOUT(childrenOf(rootItem(tree)), QStringList{u"b"_s}, patience);
        m_places->makeFolder(u"root/c"_s);
        QTRY_COMPARE_WITH_TIMEOUT(childrenOf(rootItem(tree)), (QStringList{u"b"_s, u"c"_s}), patience);
    }

    void foldersBelowTheDesktop()
    {
        m_places->makeFolder(u"Desktop/site"_s);
        FolderTree tree;
        tree.topLevelItem(0)->setExpanded(true);
        QCOMPARE(childrenOf(tree.topLevelItem(0)), QStringList{u"site"_s});
        tree.setCurrentItem(tree.topLevelItem(0)->child(0));
        QCOMPARE(tree.selectedFolder(), m_places->path(u"Desktop/site"_s));
    }

    void aSelectionOpensTheTree()
    {
        const QString target = m_places->makeFolder(u"a/b/c"_s);
        m_places->makeFolder(u"a/bb"_s);
        FolderTree tree;
        QSignalSpy selected(&tree, &FolderTree::folderSelected);
        tree.setSelectedFolder(target);
        QCOMPARE(tree.selectedFolder(), target);
        QVERIFY(tree.currentItem()->parent()->isExpanded());
        QCOMPARE(childrenOf(tree.currentItem()->parent()->parent()), (QStringList{u"b"_s, u"bb"_s}));
        tree.setSelectedFolder(m_places->path(u"a/bb/"_s));
        QCOMPARE(tree.selectedFolder(), m_places->path(u"a/bb"_s));
        QCOMPARE(selected.size(), 0); // Only selections by the user are reported.
        tree.setCurrentItem(tree.currentItem()->parent());
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected[0][0].toString(), m_places->path(u"a"_s));
    }

    void whatCannotBeSelectedIsIgnored_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("empty") << QString();
        QTest::newRow("not there") << u"HOME/none"_s;
        QTest::newRow("a file") << u"HOME/file.txt"_s;
        QTest::newRow("not below the root") << u"/"_s;
        QTest::newRow("a neighbour whose name begins alike") << u"HOME/ab"_s;
        QTest::newRow("not a full path") << u"."_s;
        QTest::newRow("a literal") << u"Project Path"_s;
    }

    void whatCannotBeSelectedIsIgnored()
    {
        QFETCH(QString, folder);
        m_places->makeFile(u"file.txt"_s);
        m_places->makeFolder(u"a/inner"_s);
        m_places->makeFolder(u"ab"_s);
        FolderTree tree;
        tree.setRootFolder(m_places->path(u"a"_s));
        tree.setSelectedFolder(m_places->path(u"a/inner"_s));
        tree.setSelectedFolder(folder.replace(u"HOME"_s, m_places->path()));
        QCOMPARE(tree.selectedFolder(), m_places->path(u"a/inner"_s));
    }

    void aRootIsOpenAndSelected()
    {
        m_places->makeFolder(u"a/b"_s);
        FolderTree tree;
        tree.setRootFolder(m_places->path(u"a/"_s));
        QCOMPARE(tree.rootFolder(), m_places->path(u"a"_s));
        QCOMPARE(tree.selectedFolder(), m_places->path(u"a"_s));
        QCOMPARE(tree.topLevelItemCount(), 1);
        QVERIFY(rootItem(tree)->isExpanded());
        QCOMPARE(childrenOf(rootItem(tree)), QStringList{u"b"_s});
        tree.setRootFolder({});
        QCOMPARE(tree.topLevelItemCount(), 4);
        QCOMPARE(tree.selectedFolder(), QString());
    }

    void namesInAnyScript()
    {
        const QStringList names{u"a b"_s, u"Alpha"_s, u"beta"_s, u"Жук"_s, u"日本"_s};
        for (const QString &name : names)
            m_places->makeFolder(u"root/"_s + name + u"/inner"_s);
        FolderTree tree;
        tree.setRootFolder(m_places->path(u"root"_s));
        QCOMPARE(childrenOf(rootItem(tree)), names);
        tree.setSelectedFolder(m_places->path(u"root/日本/inner"_s));
        QCOMPARE(tree.selectedFolder(), m_places->path(u"root/日本/inner"_s));
    }

    void aHiddenFolderJoinsInItsPlace()
    {
        m_places->makeFolder(u"root/z"_s);
        m_places->makeFolder(u"root/.hidden/inner"_s);
        FolderTree tree;
        tree.setRootFolder(m_places->path(u"root"_s));
        QCOMPARE(childrenOf(rootItem(tree)), QStringList{u"z"_s});
        tree.setSelectedFolder(m_places->path(u"root/.hidden/inner"_s));
        QCOMPARE(tree.selectedFolder(), m_places->path(u"root/.hidden/inner"_s));
        // It stays selected when its parent folder changes.
        m_places->makeFolder(u"root/a"_s);
        QTRY_COMPARE_WITH_TIMEOUT(childrenOf(rootItem(tree)), (QStringList{u".hidden"_s, u"a"_s, u"z"_s}), patience);
        QCOMPARE(tree.selectedFolder(), m_places->path(u"root/.hidden/inner"_s));
    }

    void theTreeFollowsTheDisk()
    {
        m_places->makeFolder(u"root/b/inner"_s);
        m_places->makeFolder(u"root/d"_s);
        FolderTree tree;
        tree.setRootFolder(m_places->path(u"root"_s));
        tree.setSelectedFolder(m_places->path(u"root/b/inner"_s));
        QSignalSpy selected(&tree, &FolderTree::folderSelected);

        m_places->makeFolder(u"root/A"_s);
        m_places->makeFolder(u"root/c"_s);
        m_places->makeFolder(u"root/e"_s);
        QVERIFY(QDir().rmdir(m_places->path(u"root/d"_s)));
        QTRY_COMPARE_WITH_TIMEOUT(childrenOf(rootItem(tree)), (QStringList{u"A"_s, u"b"_s, u"c"_s, u"e"_s}), patience);
        QVERIFY(child(rootItem(tree), u"b"_s)->isExpanded());
        QCOMPARE(tree.selectedFolder(), m_places->path(u"root/b/inner"_s));
        QCOMPARE(selected.size(), 0);
    }

    void aFolderThatBecomesAParentCanBeOpened()
    {
        m_places->makeFolder(u"root/a"_s);
        FolderTree tree;
        tree.setRootFolder(m_places->path(u"root"_s));
        QTreeWidgetItem *a = child(rootItem(tree), u"a"_s);
        a->setExpanded(true);
        QCOMPARE(a->childIndicatorPolicy(), QTreeWidgetItem::DontShowIndicatorWhenChildless);
        m_places->makeFolder(u"root/a/b"_s);
        QTRY_COMPARE_WITH_TIMEOUT(childrenOf(a), QStringList{u"b"_s}, patience);
    }

    void theParentTakesOverFromAVanishedFolder()
    {
        m_places->makeFolder(u"root/a/b/c"_s);
        FolderTree tree;
        tree.setRootFolder(m_places->path(u"root"_s));
        tree.setSelectedFolder(m_places->path(u"root/a/b/c"_s));
        QSignalSpy selected(&tree, &FolderTree::folderSelected);
        QVERIFY(QDir(m_places->path(u"root/a"_s)).removeRecursively());
        QTRY_COMPARE_WITH_TIMEOUT(tree.selectedFolder(), m_places->path(u"root"_s), patience);
        QVERIFY(!selected.isEmpty());
        QCOMPARE(childrenOf(rootItem(tree)), QStringList());
    }

    void aFolderThatIsMadeAgainIsFollowed()
    {
        m_places->makeFolder(u"root/a/old"_s);
        FolderTree tree;
        tree.setRootFolder(m_places->path(u"root"_s));
        child(rootItem(tree), u"a"_s)->setExpanded(true);
        QVERIFY(QDir(m_places->path(u"root/a"_s)).removeRecursively());
        m_places->makeFolder(u"root/a/new"_s);
        QTRY_VERIFY_WITH_TIMEOUT(child(rootItem(tree), u"a"_s) && !child(child(rootItem(tree), u"a"_s), u"old"_s),
                                 patience);
        child(rootItem(tree), u"a"_s)->setExpanded(true);
        QTRY_COMPARE_WITH_TIMEOUT(childrenOf(child(rootItem(tree), u"a"_s)), QStringList{u"new"_s}, patience);
    }

    void linksInCirclesDoNoHarm()
    {
        m_places->makeFolder(u"root/a"_s);
        QVERIFY(QFile::link(m_places->path(u"root"_s), m_places->path(u"root/a/up"_s)));
        QVERIFY(QFile::link(m_places->path(u"root/self"_s), m_places->path(u"root/self"_s)));
        FolderTree tree;
        tree.setRootFolder(m_places->path(u"root"_s));
        QCOMPARE(childrenOf(rootItem(tree)), QStringList{u"a"_s});
        const QString deep = m_places->path(u"root"_s) + u"/a/up"_s.repeated(20);
        tree.setSelectedFolder(deep);
        QCOMPARE(tree.selectedFolder(), deep);
        // A change inside the circle updates each of its items, and the update terminates.
        m_places->makeFolder(u"root/a/b"_s);
        QTRY_COMPARE_WITH_TIMEOUT(childrenOf(child(rootItem(tree), u"a"_s)), (QStringList{u"b"_s, u"up"_s}), patience);
        QCOMPARE(tree.selectedFolder(), deep);
    }

    void theAsteriskOpensOneFolder()
    {
        m_places->makeFolder(u"root/a/b"_s);
        QVERIFY(QFile::link(m_places->path(u"root"_s), m_places->path(u"root/a/b/up"_s)));
        FolderTree tree;
        tree.setRootFolder(m_places->path(u"root"_s));
        rootItem(tree)->setExpanded(false);
        QTest::keyClick(&tree, Qt::Key_Asterisk);
        QVERIFY(rootItem(tree)->isExpanded());
        QVERIFY(!child(rootItem(tree), u"a"_s)->isExpanded());
    }

    void thousandsOfFolders()
    {
        for (int i = 0; i < 3000; ++i)
            QVERIFY(QDir().mkpath(m_places->path(u"root/%1"_s.arg(i, 5, 10, QChar(u'0')))));
        FolderTree tree;
        tree.setRootFolder(m_places->path(u"root"_s));
        QCOMPARE(rootItem(tree)->childCount(), 3000);
        QCOMPARE(rootItem(tree)->child(2999)->text(0), u"02999"_s);
    }

private:
    std::unique_ptr<PlaceFolders> m_places;
};

ZEPHIRA_TEST(TstFolderTree)
#include "tst_foldertree.moc"
