// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/itemroles.h"
#include "panes/scriptlibrary.h"
#include "support/fakes.h"
#include "support/itemviews.h"
#include "support/testregistry.h"

#include <QDir>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// The library with a folder on the disk; the contents of its files are in memory.
struct LibraryBench {
    LibraryBench()
    {
        add(u"Hello.spt"_s, "<script>\nhi()\n</script>\n");
        add(u"empty.spt"_s, "");
        add(u"readme.txt"_s, "no script");
        add(u"Forms/Check.spt"_s, "check");
        add(u"Имя.spt"_s, "\xcf\xf0\xe8");
        library.resize(300, 500);
        library.setRootFolder(folder.path());
        library.show();
    }

    void add(const QString &name, const QByteArray &content)
    {
        const QString path = folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        world.files.contents[path] = content;
    }

    QListWidget &scripts() const { return *library.findChild<QListWidget *>(u"scriptlist"_s); }
    QTreeWidget &folders() const { return *library.findChild<QTreeWidget *>(u"scriptfolder"_s); }

    QStringList names() const
    {
        QStringList list;
        for (int i = 0; i < scripts().count(); ++i)
            list.append(scripts().item(i)->text());
        return list;
    }

    QTemporaryDir folder;
    TestContext world;
    ScriptLibrary library{world};
};

} // namespace

class TstScriptLibrary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theRootHasAName()
    {
        const LibraryBench bench;
        QCOMPARE(bench.folders().topLevelItem(0)->text(0), u"Scripts"_s);
        QCOMPARE(bench.folders().topLevelItem(0)->toolTip(0), QDir::toNativeSeparators(bench.folder.path()));
    }

    void theRootsScriptsShowWithoutTheirEnding()
    {
        const LibraryBench bench;
        QCOMPARE(bench.library.objectName(), u"frmscripts"_s);
        QCOMPARE(bench.library.title(), u"Script Library"_s);
        QCOMPARE(bench.library.findChild<QObject *>(u"scriptfilelist"_s)->property("Pattern").toString(), u"*.spt"_s);
        QCOMPARE(bench.names(), (QStringList{u"empty"_s, u"Hello"_s, u"Имя"_s}));
        QCOMPARE(bench.scripts().item(1)->data(KeyRole).toString(), u"Hello.spt"_s);
    }

    void anotherFolderReplacesTheList()
    {
        const LibraryBench bench;
        QTreeWidgetItem *forms = bench.folders().topLevelItem(0)->child(0);
        QCOMPARE(forms->text(0), u"Forms"_s);
        bench.folders().setCurrentItem(forms);
        QCOMPARE(bench.names(), QStringList{u"Check"_s});
        doubleClickItem(bench.scripts(), u"Check"_s);
        QCOMPARE(bench.world.inserter.inserted, QStringList{u"check"_s});
    }

    void theListIsOfTheLastSelection()
    {
        LibraryBench bench;
        bench.add(u"Later.spt"_s, "later");
        QVERIFY(!bench.names().contains(u"Later"_s));
        bench.folders().setCurrentItem(bench.folders().topLevelItem(0)->child(0));
        bench.folders().setCurrentItem(bench.folders().topLevelItem(0));
        QVERIFY(bench.names().contains(u"Later"_s));
    }

    void theWholeFileGoesBehindTheSelection()
    {
        LibraryBench bench;
        bench.world.editor.setText(u"one two"_s);
        bench.world.editor.selectPart(u"two"_s);
        doubleClickItem(bench.scripts(), u"Hello"_s);
        QCOMPARE(bench.world.inserter.inserted, QStringList{u"two<script>\nhi()\n</script>\n"_s});
    }

    void anEmptyFileInsertsNothing()
    {
        LibraryBench bench;
        bench.world.editor.setText(u"one"_s);
        bench.world.editor.selectPart(u"one"_s);
        doubleClickItem(bench.scripts(), u"empty"_s);
        QVERIFY(bench.world.inserter.inserted.isEmpty());
    }

    void theEncodingIsFound()
    {
        LibraryBench bench;
        doubleClickItem(bench.scripts(), u"Имя"_s);
        QCOMPARE(bench.world.inserter.inserted, QStringList{u"Ïðè"_s}); // Not UTF-8, so it is read as Windows-1252.
    }

    void aFileThatIsGoneIsTold()
    {
        LibraryBench bench;
        const QString path = bench.folder.filePath(u"Hello.spt"_s);
        bench.world.files.contents.erase(path);
        bench.world.prompts.expectTell(path + u" doesn't exist."_s, {}, Question::Icon::Exclamation);
        doubleClickItem(bench.scripts(), u"Hello"_s);
        QVERIFY(bench.world.inserter.inserted.isEmpty());
    }

    void visualModeIsRefused()
    {
        LibraryBench bench;
        bench.world.designer.showing = true;
        bench.world.prompts.expectTell(u"Sorry, these tools can only be used in Code View"_s, u"Feature Limitation"_s);
        doubleClickItem(bench.scripts(), u"Hello"_s);
        QVERIFY(bench.world.inserter.inserted.isEmpty());
    }

    void aFolderThatIsMissingIsAnEmptyList()
    {
        LibraryBench bench;
        bench.library.setRootFolder(bench.folder.filePath(u"nowhere"_s));
        QVERIFY(bench.names().isEmpty());
    }
};

ZEPHIRA_TEST(TstScriptLibrary)
#include "tst_scriptlibrary.moc"
