// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/sidepane.h"
#include "panes/sidetabbar.h"
#include "support/scriptedprompts.h"
#include "support/testregistry.h"

#include <QDropEvent>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// A pane with four tabs: two plain pages, one that is filled before it is shown, and one that is filled afterwards.
/// The events are recorded in `log`.
struct Bench {
    ScriptedPrompts prompts;
    SidePane pane{prompts};
    QStringList log;
    QString failure;
    QLineEdit *plain = new QLineEdit;
    QWidget *tree = new QWidget;
    QWidget *custom = new QWidget;

    Bench()
    {
        for (const QString &key : {u"plain"_s, u"none"_s, u"tree"_s, u"custom"_s})
            pane.tabs()->setTabData(pane.tabs()->addTab(key), key);
        pane.setPage(u"plain"_s, plain);
        pane.setPage(u"tree"_s, tree, SidePane::Fill::BeforeShowing, [this] { fill(u"tree"_s, tree); });
        pane.setPage(u"custom"_s, custom, SidePane::Fill::AfterShowing, [this] { fill(u"custom"_s, custom); });
        pane.resize(300, 400);
        pane.show();
    }

    void fill(const QString &name, const QWidget *page)
    {
        log.append(name
                   + (plain->isVisible() || tree->isVisible() || custom->isVisible() ? u" in view"_s : u" hidden"_s));
        if (page->isVisible() != log.last().endsWith(u"in view"_s))
            log.append(u"another page shows"_s);
        if (!failure.isEmpty())
            throw HandlerError{failure};
    }

    void clickAt(int tab, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(pane.tabs(), button, {}, pane.tabs()->tabRect(tab).center());
    }

    static Question told(const QString &description)
    {
        return {
            u"An error has occured at: frmmain in Procedure: Frame1_Click\r\nThe error is as follows: "_s + description
                + u"\r\nPlease Report this to the Zephira. team\r\nClick OK to continue, Cancel to Exit the current SUB"_s,
            {},
            Question::Icon::Critical,
            Question::Buttons::OkCancel};
    }
};

} // namespace

class TstSidePane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tipsShowTheTitleOfThePage()
    {
        const Bench bench;
        SideTabBar &tabs = *bench.pane.tabs();
        tabs.setTabToolTip(0, u"Plain things"_s);
        tabs.setTitles([](const QString &key) { return key == u"custom" ? u"CSS properties"_s : QString(); });
        for (const int tab : {0, 3}) {
            const QPoint place = tabs.tabRect(tab).center();
            QHelpEvent event(QEvent::ToolTip, place, tabs.mapToGlobal(place));
            QCoreApplication::sendEvent(&tabs, &event);
        }
        QCOMPARE(tabs.tabToolTip(0), u"Plain things"_s);
        QCOMPARE(tabs.tabToolTip(3), u"CSS properties"_s);
    }

    void theFirstPageShowsAtOnce()
    {
        Bench bench;
        QVERIFY(bench.plain->isVisible());
        QVERIFY(!bench.tree->isVisible());
        QVERIFY(!bench.custom->isVisible());
    }

    void aClickShowsThePageAlone()
    {
        Bench bench;
        bench.clickAt(2);
        QVERIFY(!bench.plain->isVisible());
        QVERIFY(bench.tree->isVisible());
        bench.clickAt(1);
        QVERIFY(!bench.tree->isVisible()); // For a tab without a page no page is shown.
        bench.clickAt(0);
        QVERIFY(bench.plain->isVisible());
    }

    void theTreeIsFilledBeforeItShowsAndAListInView()
    {
        Bench bench;
        bench.clickAt(2);
        bench.clickAt(3);
        QCOMPARE(bench.log, (QStringList{u"tree hidden"_s, u"custom in view"_s}));
    }

    void eachClickRunsAlsoOnTheSelectedTab()
    {
        Bench bench;
        bench.clickAt(2);
        bench.clickAt(2);
        bench.pane.click(2);
        QCOMPARE(bench.log, (QStringList{u"tree hidden"_s, u"tree hidden"_s, u"tree hidden"_s}));
        QVERIFY(bench.tree->isVisible());
        bench.clickAt(2, Qt::RightButton);
        QCOMPARE(bench.log.size(), 3);
    }

    void aSelectionByNumberIsAClick()
    {
        Bench bench;
        bench.pane.click(3);
        QCOMPARE(bench.pane.tabs()->currentIndex(), 3);
        QCOMPARE(bench.log, QStringList{u"custom in view"_s});
    }

    void okGoesOnBehindTheError()
    {
        Bench bench;
        bench.failure = u"Overflow"_s;
        bench.prompts.expect(Bench::told(u"Overflow"_s), Answer::Ok, [&] { QVERIFY(!bench.tree->isVisible()); });
        bench.clickAt(2);
        QVERIFY(bench.tree->isVisible());
    }

    void cancelLeavesThePageHidden()
    {
        Bench bench;
        bench.failure = u"Invalid procedure call or argument"_s;
        bench.prompts.expect(Bench::told(u"Invalid procedure call or argument"_s), Answer::Cancel);
        bench.clickAt(2);
        QVERIFY(!bench.tree->isVisible());
        QVERIFY(!bench.plain->isVisible());
        QCOMPARE(bench.pane.tabs()->currentIndex(), 2);
    }

    void anErrorWithThePageInViewLeavesItThere()
    {
        Bench bench;
        bench.failure = u"File not found"_s;
        bench.prompts.expect(Bench::told(u"File not found"_s), Answer::Cancel);
        bench.clickAt(3);
        QVERIFY(bench.custom->isVisible());
    }

    void theFocusComesBack()
    {
        Bench bench;
        bench.pane.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&bench.pane));
        bench.plain->setFocus();
        bench.clickAt(0);
        QVERIFY(bench.plain->hasFocus());
    }

    void aPageForTheSelectedTabShowsAtOnce()
    {
        Bench bench;
        bench.clickAt(1);
        auto *late = new QWidget;
        bench.pane.setPage(u"none"_s, late);
        QVERIFY(late->isVisible());
    }

    void onlyTheFirstOfDroppedFilesCounts()
    {
        Bench bench;
        QSignalSpy dropped(bench.pane.tabs(), &SideTabBar::fileDropped);
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(u"/a b.htm"_s), QUrl::fromLocalFile(u"/second"_s)});
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        static_cast<QObject *>(bench.pane.tabs())->event(&drop);
        QCOMPARE(dropped.size(), 1);
        QCOMPARE(dropped[0][0].toString(), u"/a b.htm"_s);
        QMimeData text;
        text.setText(u"no file"_s);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        static_cast<QObject *>(bench.pane.tabs())->event(&enter);
        QVERIFY(!enter.isAccepted());
    }
};

ZEPHIRA_TEST(TstSidePane)
#include "tst_sidepane.moc"
