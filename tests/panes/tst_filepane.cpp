// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/filelist.h"
#include "panes/filepane.h"
#include "panes/foldertree.h"
#include "panes/placefolders.h"
#include "support/scriptedprompts.h"
#include "support/testregistry.h"
#include "widgets/drivebox.h"
#include "widgets/drives.h"

#include <QDir>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct Bench {
    PlaceFolders places;
    ScriptedPrompts prompts;
    FilePane pane{prompts};
    DriveBox &drives = *pane.findChild<DriveBox *>(u"DRV"_s);
    FolderTree &tree = *pane.findChild<FolderTree *>(u"DIR"_s);
    FileList &list = *pane.findChild<FileList *>(u"ListFiles"_s);
    QLineEdit &project = *pane.findChild<QLineEdit *>(u"PrjPath"_s);

    explicit Bench(const QString &patterns = u"*.txt;*.htm"_s) { pane.fileList().setPattern(patterns); }

    QStringList listed() const { return list.names(); }
    QString path() { return pane.fileList().path(); }
    /// Chooses a drive as the user does.
    void chooseDrive(const QString &drive) const
    {
        drives.setCurrentText(drive);
        Q_EMIT drives.activated(drives.currentIndex());
    }
};

} // namespace

class TstFilePane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atTheStart()
    {
        Bench bench;
        QCOMPARE(bench.project.text(), u"Project Path"_s);
        QCOMPARE(bench.pane.findChild<QToolButton *>(u"cmdprojpath"_s)->text(), u"..."_s);
        QCOMPARE(bench.drives.toolTip(), u"Available Drives"_s);
        QCOMPARE(bench.drives.itemText(0), u"/"_s);
        QCOMPARE(bench.listed(), QStringList());
        auto *file = bench.pane.findChild<QWidget *>(u"file"_s);
        QCOMPARE(file->toolTip(), u"Available Files"_s);
        bench.pane.show();
        QVERIFY(!file->isVisible());
        QVERIFY(bench.list.isVisible());
    }

    void aSelectedFolderIsListed()
    {
        Bench bench;
        bench.places.makeFile(u"site/b.txt"_s);
        bench.places.makeFile(u"site/A.htm"_s);
        bench.places.makeFile(u"site/c.png"_s);
        bench.tree.setSelectedFolder(bench.places.path());
        bench.tree.currentItem()->setExpanded(true);
        bench.tree.setCurrentItem(
            bench.tree.itemBelow(bench.tree.itemBelow(bench.tree.itemBelow(bench.tree.currentItem()))));
        QCOMPARE(bench.path(), bench.places.path(u"site"_s));
        QCOMPARE(bench.listed(), (QStringList{u"A.htm"_s, u"b.txt"_s}));
        QCOMPARE(bench.pane.fileList().fileName(), u"A.htm"_s);
        QCOMPARE(bench.pane.selectedFile(), u"A.htm"_s);
        QVERIFY(bench.path() != bench.project.text());
    }

    void theDesktopsOwnFolders()
    {
        Bench bench;
        bench.places.makeFile(u"Desktop/d.txt"_s);
        bench.places.makeFile(u"Documents/m.txt"_s);
        bench.tree.setCurrentItem(bench.tree.topLevelItem(0));
        QCOMPARE(bench.path(), bench.places.path(u"Desktop"_s) + u'/');
        QCOMPARE(bench.listed(), QStringList{u"d.txt"_s});
        bench.tree.setCurrentItem(bench.tree.topLevelItem(1));
        QCOMPARE(bench.path(), bench.places.path(u"Documents"_s) + u'/');
        QCOMPARE(bench.listed(), QStringList{u"m.txt"_s});
        // With "My Computer" the list still shows the files of the previous path.
        bench.places.makeFile(u"Documents/n.txt"_s);
        bench.tree.setCurrentItem(bench.tree.topLevelItem(3));
        QCOMPARE(bench.path(), bench.places.path(u"Documents"_s) + u'/');
        QCOMPARE(bench.listed(), (QStringList{u"m.txt"_s, u"n.txt"_s}));
    }

    void picturesLookLikePictures()
    {
        QIcon::setThemeSearchPaths(QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, u"icons"_s,
                                                             QStandardPaths::LocateDirectory));
        QIcon::setThemeName(u"breeze"_s);
        Bench bench(u"*.*"_s);
        for (const QString &name : {u"site/a.txt"_s, u"site/b.PNG"_s, u"site/c.webp"_s, u"site/png"_s})
            bench.places.makeFile(name);
        bench.pane.showFolder(bench.places.path(u"site"_s));
        const auto pixels = [&](int row) { return bench.list.item(row)->icon().pixmap(16).toImage(); };
        QVERIFY(pixels(1) != pixels(0));
        QCOMPARE(pixels(2), pixels(1));
        QCOMPARE(pixels(3), pixels(0));
    }

    void theMenuKeys()
    {
        Bench bench;
        bench.places.makeFile(u"site/a.txt"_s);
        bench.pane.show();
        bench.pane.showFolder(bench.places.path(u"site"_s));
        const QSignalSpy wanted(&bench.pane, &FilePane::menuWanted);
        QTest::keyClick(&bench.list, Qt::Key_F10, Qt::ShiftModifier);
        QCOMPARE(wanted.size(), 1);
        QVERIFY(bench.list.rect().contains(bench.list.mapFromGlobal(wanted.first().first().toPoint())));
        QTest::keyClick(&bench.list, Qt::Key_F10);
        QCOMPARE(wanted.size(), 1);
    }

    void aListedFolderThatIsMadeAgainIsFollowedAgain()
    {
        Bench bench;
        bench.places.makeFile(u"site/a.txt"_s);
        bench.pane.setRootSelect(true);
        bench.pane.showFolder(bench.places.path(u"site"_s));
        QVERIFY(QDir(bench.places.path(u"site"_s)).removeRecursively());
        QTRY_COMPARE_WITH_TIMEOUT(bench.listed(), QStringList(), patience);
        QTest::qWait(1000);
        bench.places.makeFile(u"site/b.txt"_s);
        QTRY_COMPARE_WITH_TIMEOUT(bench.listed(), QStringList{u"b.txt"_s}, patience);
    }

    void aFolderThatIsCalledDesktopIsItself()
    {
        Bench bench;
        bench.places.makeFile(u"project/Desktop/p.txt"_s);
        bench.pane.showFolder(bench.places.path(u"project/Desktop"_s));
        QCOMPARE(bench.listed(), QStringList{u"p.txt"_s});
        QCOMPARE(bench.path(), bench.places.path(u"project/Desktop"_s));
    }

    void noMatchLeavesTheListEmpty()
    {
        Bench bench(u"*.nothing"_s);
        bench.places.makeFile(u"a.txt"_s);
        bench.pane.showFolder(bench.places.path());
        QCOMPARE(bench.listed(), QStringList());
        QCOMPARE(bench.pane.fileList().fileName(), QString());
        QCOMPARE(bench.pane.selectedFile(), QString());
    }

    void theProjectPathMovesTheTree()
    {
        Bench bench;
        bench.places.makeFile(u"site/a.txt"_s);
        bench.project.setText(bench.places.path(u"site"_s));
        QCOMPARE(bench.tree.selectedFolder(), bench.places.path(u"site"_s));
        QCOMPARE(bench.listed(), QStringList{u"a.txt"_s});
        for (const QString &nonsense : {u"/no/such/folder"_s, u""_s, u"Project Path"_s, u"."_s, u"C:\\site"_s}) {
            bench.project.setText(nonsense);
            QCOMPARE(bench.tree.selectedFolder(), bench.places.path(u"site"_s));
            QCOMPARE(bench.listed(), QStringList{u"a.txt"_s});
        }
    }

    void aFolderThatVanishedLeavesTheListEmpty()
    {
        Bench bench;
        bench.places.makeFile(u"site/a.txt"_s);
        bench.pane.showFolder(bench.places.path(u"site"_s));
        QVERIFY(QDir(bench.places.path(u"site"_s)).removeRecursively());
        bench.pane.showFolder(bench.places.path(u"site"_s));
        QCOMPARE(bench.listed(), QStringList());
    }

    void rootSelectMovesTheRoot_data()
    {
        QTest::addColumn<bool>("rootSelect");
        QTest::addColumn<QString>("root");
        QTest::newRow("selection") << false << u""_s;
        QTest::newRow("root") << true << u"/"_s;
    }

    void rootSelectMovesTheRoot()
    {
        QFETCH(bool, rootSelect);
        Bench bench;
        bench.pane.setRootSelect(rootSelect);
        bench.chooseDrive(u"/"_s);
        QTEST(bench.tree.rootFolder(), "root");
        QCOMPARE(bench.tree.selectedFolder(), u"/"_s);
        QCOMPARE(bench.path(), u"/"_s);
        bench.project.setText(bench.places.path());
        QCOMPARE(bench.tree.rootFolder(), rootSelect ? bench.places.path() : QString());
        QCOMPARE(bench.tree.selectedFolder(), bench.places.path());
    }

    void aDriveThatIsGoneIsTold()
    {
        Bench bench;
        bench.pane.showFolder(bench.places.path());
        bench.drives.addItem(u"/media/unmounted"_s);
        bench.prompts.expectTell(u"The drive /media/unmounted is no longer available."_s, {},
                                 Question::Icon::Exclamation);
        bench.chooseDrive(u"/media/unmounted"_s);
        QCOMPARE(bench.drives.currentText(), u"/"_s);
        QCOMPARE(bench.drives.findText(u"/media/unmounted"_s), -1);
        QCOMPARE(bench.tree.selectedFolder(), bench.places.path());
    }

    void theDrivesAreReadWhenTheListOpens()
    {
        Bench bench;
        bench.pane.show();
        bench.drives.addItem(u"/media/unmounted"_s);
        bench.drives.showPopup();
        QStringList drives;
        for (int i = 0; i < bench.drives.count(); ++i)
            drives.append(bench.drives.itemText(i));
        bench.drives.hidePopup();
        QCOMPARE(drives, mountedDrives());
    }

    void browsingForTheProject_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("text");
        QTest::newRow("cancel") << QString() << u"Project Path"_s;
        QTest::newRow("empty") << u""_s << u"Project Path"_s;
        QTest::newRow("a separator is added") << u"/tmp"_s << u"/tmp/"_s;
        QTest::newRow("one that is there is kept") << u"/tmp/"_s << u"/tmp/"_s;
        QTest::newRow("the root") << u"/"_s << u"/"_s;
    }

    void browsingForTheProject()
    {
        QFETCH(QString, answer);
        Bench bench;
        bench.prompts.expectFolder(u"Please choose the folder of your project"_s, u"Project Path"_s,
                                   answer.isNull() ? std::optional<QString>() : answer);
        bench.pane.findChild<QToolButton *>(u"cmdprojpath"_s)->click();
        QTEST(bench.project.text(), "text");
    }

    void theListFollowsTheDisk()
    {
        Bench bench;
        bench.places.makeFile(u"site/b.txt"_s);
        bench.places.makeFile(u"site/d.txt"_s);
        bench.pane.showFolder(bench.places.path(u"site"_s));
        bench.list.setCurrentRow(1);
        bench.places.makeFile(u"site/a.txt"_s);
        bench.places.makeFile(u"site/c.txt"_s);
        bench.places.makeFile(u"site/c.png"_s);
        QVERIFY(QFile::remove(bench.places.path(u"site/b.txt"_s)));
        QTRY_COMPARE_WITH_TIMEOUT(bench.listed(), (QStringList{u"a.txt"_s, u"c.txt"_s, u"d.txt"_s}), patience);
        QCOMPARE(bench.pane.selectedFile(), u"d.txt"_s);
        QCOMPARE(bench.pane.fileList().fileName(), u"a.txt"_s);
        QVERIFY(QFile::remove(bench.places.path(u"site/d.txt"_s)));
        QTRY_COMPARE_WITH_TIMEOUT(bench.listed(), (QStringList{u"a.txt"_s, u"c.txt"_s}), patience);
        QCOMPARE(bench.pane.selectedFile(), u"c.txt"_s);
    }

    /// A new pattern takes effect when another folder is chosen, and not even a change of the folder on disk shows it
    /// earlier.
    void aNewPatternWaitsForTheNextFolder()
    {
        Bench bench(u"*.txt"_s);
        bench.places.makeFile(u"site/a.txt"_s);
        bench.places.makeFile(u"site/a.css"_s);
        bench.pane.showFolder(bench.places.path(u"site"_s));
        bench.pane.fileList().setPattern(u"*.css"_s);
        QCOMPARE(bench.listed(), QStringList{u"a.txt"_s});
        bench.places.makeFile(u"site/b.css"_s);
        bench.places.makeFile(u"site/b.txt"_s);
        QTRY_COMPARE_WITH_TIMEOUT(bench.listed(), (QStringList{u"a.txt"_s, u"b.txt"_s}), patience);
        bench.pane.showFolder(bench.places.path(u"site"_s));
        QCOMPARE(bench.listed(), (QStringList{u"a.css"_s, u"b.css"_s}));
    }

    void aDoubleClickAndReturnOpen()
    {
        Bench bench;
        bench.places.makeFile(u"a.txt"_s);
        bench.pane.showFolder(bench.places.path());
        bench.pane.show();
        QSignalSpy opened(&bench.pane, &FilePane::fileActivated);
        const QPoint place = bench.list.visualItemRect(bench.list.item(0)).center();
        QTest::mouseClick(bench.list.viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(opened.size(), 0);
        QTest::mouseDClick(bench.list.viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(opened.size(), 1);
        QTest::keyClick(&bench.list, Qt::Key_Return);
        QCOMPARE(opened.size(), 2);
        bench.list.clear();
        QTest::keyClick(&bench.list, Qt::Key_Return);
        QCOMPARE(opened.size(), 2);
    }

    void theRightButtonAsksForTheMenuWhenItIsReleased()
    {
        Bench bench;
        bench.places.makeFile(u"a.txt"_s);
        bench.places.makeFile(u"b.txt"_s);
        bench.pane.showFolder(bench.places.path());
        bench.pane.show();
        QSignalSpy wanted(&bench.pane, &FilePane::menuWanted);
        const QPoint place = bench.list.visualItemRect(bench.list.item(1)).center();
        QTest::mousePress(bench.list.viewport(), Qt::RightButton, {}, place);
        QCOMPARE(wanted.size(), 0);
        QCOMPARE(bench.pane.selectedFile(), u"b.txt"_s);
        QTest::mouseRelease(bench.list.viewport(), Qt::RightButton, {}, place);
        QCOMPARE(wanted.size(), 1);
        QCOMPARE(wanted[0][0].toPoint(), bench.list.viewport()->mapToGlobal(place));
        QTest::mouseClick(bench.list.viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(wanted.size(), 1);
    }

    void everyFileHasItsPicture()
    {
        Bench bench;
        for (int i = 0; i < 300; ++i)
            bench.places.makeFile(u"many/%1.txt"_s.arg(i, 3, 10, QChar(u'0')));
        bench.pane.showFolder(bench.places.path(u"many"_s));
        QCOMPARE(bench.list.count(), 300);
        const qint64 picture = bench.list.item(0)->icon().cacheKey();
        for (int row = 0; row < bench.list.count(); ++row)
            QCOMPARE(bench.list.item(row)->icon().cacheKey(), picture);
        QCOMPARE(bench.list.item(299)->text(), u"299.txt"_s);
    }
};

ZEPHIRA_TEST(TstFilePane)
#include "tst_filepane.moc"
