// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "desktop/modalformopener.h"
#include "handbook/helpkey.h"
#include "handbook/helptable.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The main window and its parts have pages of the handbook, which F1 opens.
class TstHelpParts final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Each part that the table names is in the window, and has the page that the table gives it.
    void eachPartHasItsPage()
    {
        WindowBench bench;
        bench.start();
        bench.find<QTabBar>(u"workspace"_s)->setCurrentIndex(1);
        bench.find<QTabBar>(u"workspace"_s)->setCurrentIndex(2);
        bench.find<QTabBar>(u"workspace"_s)->setCurrentIndex(0);
        bench.choose(u"textCommandPalette"_s);
        bench.choose(u"textFindInProject"_s);
        bench.choose(u"textListProblems"_s);
        bench.choose(u"textBreadcrumb"_s);
        bench.choose(u"textLivePage"_s);
        int parts = 0;
        for (const HelpChapter &chapter : helpChapters()) {
            for (const HelpPage &page : chapter.pages) {
                if (page.window != u"frmmain" || page.parts.isEmpty())
                    continue;
                const QList<QStringView> names = page.parts.split(u' ');
                for (const QStringView part : names) {
                    const QString name = part.toString();
                    const QWidget *widget = bench.window->findChild<QWidget *>(name);
                    QVERIFY2(widget, qPrintable(name));
                    QCOMPARE(helpPageOf(*widget), page.name.toString());
                    ++parts;
                }
            }
        }
        QVERIFY(parts > 15);
        QCOMPARE(helpPageOf(*bench.window), u"main-window"_s);
    }

    void theKeyAndTheEntry()
    {
        WindowBench bench;
        for (const char *page : {"code-view", "main-window"})
            bench.write(u"app/help/%1.html"_s.arg(QString::fromLatin1(page)), "<h1>x</h1>");
        frmmain &window = bench.start();
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.rt().setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
        auto *languages = bench.find<QWidget>(u"cboLang"_s);
        languages->setFocus();
        QTest::keyClick(languages, Qt::Key_F1);
        bench.choose(u"helpme"_s);
        const QString folder = bench.appPath() + u"/help/"_s;
        QCOMPARE(bench.shell.opened,
                 (QStringList{folder + u"code-view.html"_s, folder + u"main-window.html"_s, folder + u"index.html"_s}));
    }

    /// The dialogs of the editing control aren't in the catalogue.
    void aFormOfTheWindow_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("page");
        QTest::newRow("find") << u"find"_s << u"FindDialog"_s << u"find.html"_s;
        QTest::newRow("spy") << u"colors"_s << u"frmColorSpy"_s << u"color-spy.html"_s;
        QTest::newRow("file transfer") << u"mnuftpclient"_s << u"frmmainftp"_s << u"ftp.html"_s;
    }

    void aFormOfTheWindow()
    {
        QFETCH(QString, entry);
        QFETCH(QString, form);
        QFETCH(QString, page);
        WindowBench bench;
        bench.write(u"app/help/"_s + page, "<h1>x</h1>");
        frmmain &window = bench.start();
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        bench.choose(entry);
        QWidget *shown = nullptr;
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *each : windows) {
            if (each->objectName() == form)
                shown = each;
        }
        QVERIFY2(shown, qPrintable(form));
        shown->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(shown));
        QTest::keyClick(shown->focusWidget() ? shown->focusWidget() : shown, Qt::Key_F1);
        QCOMPARE(bench.shell.opened, QStringList{bench.appPath() + u"/help/"_s + page});
        shown->close();
    }
};

ZEPHIRA_TEST(TstHelpParts)

#include "tst_helpparts.moc"
