// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakelivepage.h"
#include "support/testregistry.h"
#include "views/live/livepane.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct Bench {
    FakeLivePage page;
    LivePane pane;
    int made = 0;
    std::optional<LivePane::Source> text{{u"<p>a"_s, u"/site/a.html"_s}};
    qsizetype size = 4;
    bool isRemoteAllowed = false;

    Bench()
    {
        pane.makeView = [this](QWidget *parent) {
            ++made;
            return LivePageView{new QWidget(parent), &page};
        };
        pane.source = [this] { return text; };
        pane.size = [this] { return size; };
        pane.permissions = [this] { return std::pair(u"/project/"_s, isRemoteAllowed); };
        pane.resize(600, 400);
    }
    Q_DISABLE_COPY_MOVE(Bench)

    QString notice() const
    {
        const auto *label = pane.findChild<QLabel *>(u"liveNotice"_s);
        return label->isVisible() ? label->text() : QString();
    }
    qsizetype shows() const { return page.calls.count(u"show"_s); }
};

} // namespace

class TstLivePane final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheTextAfterAPause()
    {
        Bench bench;
        bench.pane.textChanged();
        QTest::qWait(300);
        QCOMPARE(bench.made, 0);
        bench.pane.show();
        QTRY_COMPARE(bench.shows(), 1);
        QCOMPARE(bench.page.html, u"<p>a"_s);
        QCOMPARE(bench.page.file, u"/site/a.html"_s);
        QCOMPARE(bench.page.projectFolder, u"/project/"_s);
        bench.text->html = u"<p>ab"_s;
        QElapsedTimer time;
        time.start();
        bench.pane.textChanged();
        QTest::qWait(100);
        bench.pane.textChanged();
        QCOMPARE(bench.shows(), 1);
        QTRY_COMPARE(bench.shows(), 2);
        QVERIFY(time.elapsed() >= 340);
        QCOMPARE(bench.page.html, u"<p>ab"_s);
        QCOMPARE(bench.made, 1);
    }

    void nothingWhileItIsHidden()
    {
        Bench bench;
        bench.pane.show();
        QTRY_COMPARE(bench.shows(), 1);
        bench.pane.hide();
        bench.pane.textChanged();
        QTest::qWait(400);
        QCOMPARE(bench.shows(), 1);
        bench.pane.show();
        QTRY_COMPARE(bench.shows(), 2);
    }

    void largePagesWaitAndSaySo()
    {
        Bench bench;
        bench.size = 20'000'000;
        bench.pane.show();
        QTRY_COMPARE(bench.shows(), 1);
        bench.pane.textChanged();
        QCOMPARE(bench.notice(), u"This page is very large: it is shown when it is saved or reloaded."_s);
        QTest::qWait(400);
        QCOMPARE(bench.shows(), 1);
        bench.pane.showNow();
        QCOMPARE(bench.shows(), 2);
        bench.pane.showNow();
        QCOMPARE(bench.shows(), 2);
        bench.size = 4;
        bench.pane.textChanged();
        QTRY_COMPARE(bench.shows(), 3);
        QCOMPARE(bench.notice(), QString());
    }

    void whatIsNoPage()
    {
        Bench bench;
        const auto page = std::exchange(bench.text, {});
        bench.pane.show();
        QTRY_COMPARE(bench.notice(), u"Only pages have a live page."_s);
        QCOMPARE(bench.made, 0);
        bench.text = page;
        bench.pane.textChanged();
        QTRY_COMPARE(bench.shows(), 1);
        QCOMPARE(bench.notice(), QString());
        // A style sheet of it is being edited: the page stays.
        bench.text = {};
        bench.pane.textChanged();
        QTest::qWait(300);
        QCOMPARE(bench.shows(), 1);
        QCOMPARE(bench.notice(), QString());
    }

    void widths()
    {
        Bench bench;
        bench.pane.show();
        QTRY_COMPARE(bench.shows(), 1);
        auto *widths = bench.pane.findChild<QComboBox *>(u"liveWidths"_s);
        auto *frame = bench.pane.findChild<QWidget *>(u"liveFrame"_s);
        const auto *view = frame->findChildren<QWidget *>().value(0);
        const auto choose = [&](int choice) {
            widths->setCurrentIndex(choice);
            Q_EMIT widths->activated(choice);
        };
        QTRY_COMPARE(view->width(), 600);
        choose(1);
        QCOMPARE(view->geometry(), QRect(112, 0, 375, frame->height()));
        QCOMPARE(bench.page.zoom, 1);
        choose(3);
        QCOMPARE(view->width(), 600);
        QCOMPARE(bench.page.zoom, 600.0 / 1280);
        auto *other = bench.pane.findChild<QSpinBox *>(u"liveWidth"_s);
        QVERIFY(!other->isVisible());
        choose(4);
        QVERIFY(other->isVisible());
        other->setValue(300);
        QCOMPARE(view->width(), 300);
        choose(0);
        QCOMPARE(view->width(), 600);
        bench.pane.resize(500, 300);
        QTRY_COMPARE(view->width(), 500);
        QTRY_COMPARE(view->height(), frame->height());
    }

    void coloursAndReload()
    {
        Bench bench;
        bench.pane.show();
        QTRY_COMPARE(bench.shows(), 1);
        auto *colours = bench.pane.findChild<QComboBox *>(u"liveColors"_s);
        const auto choose = [&](int scheme) {
            colours->setCurrentIndex(scheme);
            Q_EMIT colours->activated(scheme);
        };
        choose(2);
        QCOMPARE(bench.page.scheme, ColourScheme::Dark);
        choose(0);
        QCOMPARE(bench.page.scheme, ColourScheme::Desktop);
        bench.pane.findChild<QToolButton *>(u"liveReload"_s)->click();
        QCOMPARE(bench.page.calls, (QStringList{u"show"_s, u"show"_s, u"reload"_s}));
    }

    void aDarkDesktop()
    {
        const QPalette light(Qt::lightGray);
        const QPalette dark(QColor(49, 54, 59));
        Bench bench;
        bench.pane.setPalette(dark);
        bench.pane.show();
        QTRY_COMPARE(bench.shows(), 1);
        QCOMPARE(bench.page.scheme, ColourScheme::Dark);
        bench.pane.setPalette(light);
        QCOMPARE(bench.page.scheme, ColourScheme::Desktop);
        bench.pane.findChild<QComboBox *>(u"liveColors"_s)->setCurrentIndex(1);
        bench.pane.setPalette(dark);
        QCOMPARE(bench.page.scheme, ColourScheme::Light);
    }

    void theFence()
    {
        Bench bench;
        bench.pane.show();
        QTRY_COMPARE(bench.shows(), 1);
        QVERIFY(!bench.page.isRemoteAllowed);
        const QSignalSpy allowed(&bench.pane, &LivePane::remoteAllowed);
        connect(&bench.pane, &LivePane::remoteAllowed, this, [&] { bench.isRemoteAllowed = true; });
        bench.page.events.remoteRefused({u"a.org"_s});
        auto *button = bench.pane.findChild<QPushButton *>(u"remoteAllow"_s);
        QVERIFY(button && button->isVisible());
        button->click();
        QCOMPARE(allowed.size(), 1);
        QVERIFY(bench.page.isRemoteAllowed);
        QCOMPARE(bench.page.calls.last(), u"reload"_s);
    }

    void aLostPage()
    {
        Bench bench;
        bench.pane.show();
        QTRY_COMPARE(bench.shows(), 1);
        bench.page.events.lost();
        QCOMPARE(bench.notice(), u"The page did not answer and was ended. It is shown again after the next change."_s);
        bench.pane.textChanged();
        QTRY_COMPARE(bench.notice(), QString());
    }
};

ZEPHIRA_TEST(TstLivePane)

#include "tst_livepane.moc"
