// SPDX-License-Identifier: GPL-3.0-or-later
#include "handbook/helpkey.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QAction>
#include <QDialog>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// A window of that name with a box, and the key.
struct Bench {
    TestContext world;
    QWidget window;
    QLineEdit *box = new QLineEdit(&window);
    HelpKey key{world};

    explicit Bench(const QString &name = u"frmTables"_s)
    {
        window.setObjectName(name);
        for (const char *file : {"table-wizard", "meta-tag-wizard", "index"})
            world.files.contents[u"/app/help/%1.html"_s.arg(QString::fromLatin1(file))] = "<h1>x</h1>";
        show(window);
    }

    static void show(QWidget &window)
    {
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
};

} // namespace

/// F1 in whichever window.
class TstHelpKey final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensThePageOfTheWindow()
    {
        Bench bench;
        bench.box->setFocus();
        QTest::keyClick(bench.box, Qt::Key_F1);
        QCOMPARE(bench.world.shell.opened, QStringList{u"/app/help/table-wizard.html"_s});
    }

    void keypadAndNothingElse()
    {
        Bench bench;
        QTest::keyClick(bench.box, Qt::Key_F1, Qt::ShiftModifier);
        QTest::keyClick(bench.box, Qt::Key_F1, Qt::ControlModifier);
        QTest::keyClick(bench.box, Qt::Key_F2);
        QCOMPARE(bench.world.shell.opened, QStringList());
        QTest::keyClick(bench.box, Qt::Key_F1, Qt::KeypadModifier);
        QCOMPARE(bench.world.shell.opened.size(), 1);
    }

    void theWindowInFrontCounts()
    {
        Bench bench;
        QDialog dialog(&bench.window);
        dialog.setObjectName(u"frmMeta"_s);
        QLineEdit box(&dialog);
        dialog.setModal(true);
        Bench::show(dialog);
        QTest::keyClick(&box, Qt::Key_F1);
        QCOMPARE(bench.world.shell.opened, QStringList{u"/app/help/meta-tag-wizard.html"_s});
    }

    void aWindowWithoutAPageHasItsOwners()
    {
        Bench bench;
        QDialog dialog(&bench.window);
        Bench::show(dialog);
        QTest::keyClick(&dialog, Qt::Key_F1);
        QCOMPARE(bench.world.shell.opened, QStringList{u"/app/help/table-wizard.html"_s});
    }

    void withoutAnyPageTheContents()
    {
        Bench bench(u"frmUnheardOf"_s);
        QTest::keyClick(bench.box, Qt::Key_F1);
        QCOMPARE(bench.world.shell.opened, QStringList{u"/app/help/index.html"_s});
    }

    /// A program folder that an older version filled doesn't have every page.
    void aMissingFileIsReplacedByTheContents()
    {
        Bench bench;
        bench.world.files.contents.erase(u"/app/help/table-wizard.html"_s);
        QTest::keyClick(bench.box, Qt::Key_F1);
        QCOMPARE(bench.world.shell.opened, QStringList{u"/app/help/index.html"_s});
    }

    void aCommandOfTheWindowKeepsTheKey()
    {
        Bench bench;
        int own = 0;
        QAction action;
        bench.window.addAction(&action);
        action.setParent(&bench.window);
        action.setShortcut(Qt::Key_F1);
        connect(&action, &QAction::triggered, this, [&own] { ++own; });
        QTest::keyClick(bench.box, Qt::Key_F1);
        QCOMPARE(own, 1);
        QCOMPARE(bench.world.shell.opened, QStringList());
        action.setEnabled(false);
        QTest::keyClick(bench.box, Qt::Key_F1);
        QCOMPARE(bench.world.shell.opened.size(), 1);
    }

    void soDoesAShortcut()
    {
        Bench bench;
        int own = 0;
        QShortcut shortcut(Qt::Key_F1, &bench.window);
        connect(&shortcut, &QShortcut::activated, this, [&own] { ++own; });
        QTest::keyClick(bench.box, Qt::Key_F1);
        QCOMPARE(own, 1);
        QCOMPARE(bench.world.shell.opened, QStringList());
    }

    void theEntryOfTheContentsGivesWay()
    {
        Bench bench;
        int own = 0;
        QAction action(&bench.window);
        action.setObjectName(u"helpme"_s);
        action.setShortcut(Qt::Key_F1);
        bench.window.addAction(&action);
        connect(&action, &QAction::triggered, this, [&own] { ++own; });
        QTest::keyClick(bench.box, Qt::Key_F1);
        QCOMPARE(own, 0);
        QCOMPARE(bench.world.shell.opened, QStringList{u"/app/help/table-wizard.html"_s});
    }

    void anOpenMenuKeepsTheKey()
    {
        Bench bench;
        QMenu menu(&bench.window);
        menu.addAction(u"Entry"_s);
        menu.popup(bench.window.mapToGlobal(QPoint()));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QTest::keyClick(&menu, Qt::Key_F1);
        QCOMPARE(bench.world.shell.opened, QStringList());
        menu.close();
    }

    void aBoxForKeysKeepsTheKey()
    {
        Bench bench;
        QKeySequenceEdit keys(&bench.window);
        keys.show();
        keys.setFocus();
        QTest::keyClick(&keys, Qt::Key_F1);
        QCOMPARE(keys.keySequence().toString(), u"F1"_s);
        QCOMPARE(bench.world.shell.opened, QStringList());
    }

    void aFailureIsTold()
    {
        Bench bench;
        bench.world.shell.failure = Error{Error::Code::Failed, u"There is no browser."_s};
        bench.world.prompts.expectTell(u"There is no browser."_s, {}, Question::Icon::Exclamation);
        QTest::keyClick(bench.box, Qt::Key_F1);
        QVERIFY(bench.world.prompts.verify());
    }

    void whenItIsGoneTheKeyIsFree()
    {
        TestContext world;
        QLineEdit box;
        {
            const HelpKey key(world);
        }
        Bench::show(box);
        QTest::keyClick(&box, Qt::Key_F1);
        QCOMPARE(world.shell.opened, QStringList());
    }
};

ZEPHIRA_TEST(TstHelpKey)

#include "tst_helpkey.moc"
