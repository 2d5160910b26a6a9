// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/testregistry.h"
#include "views/lateviews.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstLateViews final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDesignerThatIsNotThereHoldsNothing()
    {
        LateDesigner designer;
        QVERIFY(!designer.isAttached());
        QVERIFY(!designer.isShowing());
        QVERIFY(!designer.isDirty());
        designer.setDocumentHtml(u"<p>"_s);
        QCOMPARE(designer.documentHtml(), QString());
        QVERIFY(designer.queryStatus(DesignerCommand::Bold) < DesignerStatus::Enabled);
    }

    void everythingGoesToTheRealDesigner()
    {
        LateDesigner designer;
        int changes = 0;
        designer.setEvents({.displayChanged = [&] { ++changes; }});
        FakeDesigner real;
        real.dirty = true;
        real.html = u"<p>"_s;
        real.whole = WholePage::NotFound;
        real.selected = u"Control"_s;
        real.statuses[DesignerCommand::Bold] = DesignerStatus::On;
        designer.attach(real);
        real.events.displayChanged();
        QCOMPARE(changes, 1);
        QVERIFY(designer.isDirty());
        QCOMPARE(designer.documentHtml(), u"<p>"_s);
        QVERIFY(designer.wholePage() == WholePage::NotFound);
        QCOMPARE(designer.selectionType(), u"Control"_s);
        QCOMPARE(designer.queryStatus(DesignerCommand::Bold), 7);
        designer.setDocumentHtml(u"<b>"_s);
        designer.loadDocument(u"/a"_s);
        designer.setBaseFile(u"/b"_s);
        designer.pasteHtml(u"<i>"_s);
        designer.execCommand(DesignerCommand::SetFontSize, DesignerPrompting::DontPromptUser, 3);
        designer.setShowBorders(true);
        designer.setShowDetails(true);
        designer.setBrowseMode(true);
        designer.setSnapToGrid(true);
        designer.setRemoteAllowed(true);
        designer.setContextMenu({u"Cut"_s}, {DesignerMenuState::Greyed});
        QCOMPARE(real.html, u"<b>"_s);
        QCOMPARE(real.loaded, QStringList{u"/a"_s});
        QCOMPARE(designer.baseFile(), u"/b"_s);
        QCOMPARE(real.pasted, QStringList{u"<i>"_s});
        QVERIFY(real.runs.front()
                == (FakeDesigner::Run{DesignerCommand::SetFontSize, DesignerPrompting::DontPromptUser, 3}));
        QVERIFY(designer.showBorders() && designer.showDetails() && designer.browseMode() && designer.snapToGrid());
        QVERIFY(real.borders && real.details && real.browsing && real.snapping && real.isRemoteAllowed);
        QCOMPARE(real.menuEntries, QStringList{u"Cut"_s});
        designer.setEvents({.displayChanged = [&] { changes = 10; }});
        real.events.displayChanged();
        QCOMPARE(changes, 10);
    }

    void visualModeIsTheWindowsWord()
    {
        LateDesigner designer;
        FakeDesigner real;
        real.showing = true;
        designer.attach(real);
        QVERIFY(!designer.isShowing());
        designer.setShowing(true);
        QVERIFY(designer.isShowing());
    }

    void whoeverLeavesItSaysHowThatIsFinished()
    {
        LateDesigner designer;
        int finished = 0;
        designer.finishLeaving();
        designer.setLeaving([&] { ++finished; });
        QVERIFY(!designer.isShowing());
        QCOMPARE(finished, 0);
        designer.finishLeaving();
        QCOMPARE(finished, 1);
    }

    void aBrowserThatIsNotThereGoesNowhere()
    {
        LateBrowser browser;
        QVERIFY(!browser.isAttached());
        browser.navigate(u"/a.html"_s);
        browser.goBack();
        browser.goForward();
        browser.goHome();
        browser.refresh();
        browser.stop();
        browser.setHome(u"/a.html"_s, FileKind::ByName);
        QCOMPARE(browser.locationUrl(), QString());
    }

    void everythingGoesToTheRealBrowser()
    {
        LateBrowser browser;
        int navigations = 0;
        browser.onNavigateComplete([&] { ++navigations; });
        QStringList refused;
        browser.setRemoteAllowed(true);
        browser.onRemoteRefused([&](const QStringList &hosts) { refused = hosts; });
        FakeBrowser real;
        real.location = u"file:///a.html"_s;
        browser.attach(real);
        real.navigateComplete();
        QCOMPARE(navigations, 1);
        real.remoteRefused({u"example.org"_s});
        QCOMPARE(refused, QStringList{u"example.org"_s});
        browser.setRemoteAllowed(true);
        QVERIFY(real.isRemoteAllowed);
        browser.navigate(u"/a.html"_s);
        browser.goBack();
        browser.goForward();
        browser.goHome();
        browser.refresh();
        browser.stop();
        browser.setHome(u"/b.html"_s, FileKind::Page);
        QCOMPARE(real.calls, (QStringList{u"/a.html"_s, u"back"_s, u"forward"_s, u"home"_s, u"refresh"_s, u"stop"_s}));
        QCOMPARE(real.home, u"/b.html"_s);
        QVERIFY(real.homeKind == FileKind::Page);
        QCOMPARE(browser.locationUrl(), u"file:///a.html"_s);
    }
};

ZEPHIRA_TEST(TstLateViews)
#include "tst_lateviews.moc"
