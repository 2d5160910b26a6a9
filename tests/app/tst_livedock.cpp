// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "assist/breadcrumb.h"
#include "support/testregistry.h"

#include <QComboBox>
#include <QDockWidget>
#include <QPointer>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The visible window with an open live page, which is a fake.
struct Bench : WindowBench {
    explicit Bench(const QByteArray &text = "<body>\r\n<p>\xc3\xa9</p>\r\n<p>b</p></body>\r\n")
    {
        start(write(u"site/page.html"_s, text));
        window->show();
        [this] { QVERIFY(QTest::qWaitForWindowExposed(window.get())); }();
        window->activateWindow();
    }

    FakeLivePage &page() { return webViews.livePage; }
    bool open()
    {
        choose(u"textLivePage"_s);
        return QTest::qWaitFor([this] { return page().calls.contains(u"show"_s); });
    }
    CodeMax &rt() const { return window->rt(); }
};

} // namespace

class TstLiveDock final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingAtFirst()
    {
        Bench bench;
        QVERIFY(!bench.window->findChild<QWidget *>(u"livePane"_s));
        QVERIFY(!bench.window->findChild<QWidget *>(u"breadcrumb"_s));
        QCOMPARE(bench.webViews.made, QStringList());
        QVERIFY(!bench.find<QAction>(u"textLivePage"_s)->isChecked());
    }

    void opensAndClosesByItsKey()
    {
        Bench bench;
        QTest::keyClick(&bench.rt(), Qt::Key_F9);
        auto *dock = bench.find<QDockWidget>(u"liveDock"_s);
        QVERIFY(dock->isVisible());
        QCOMPARE(bench.window->dockWidgetArea(dock), Qt::RightDockWidgetArea);
        QCOMPARE(dock->allowedAreas(), Qt::RightDockWidgetArea | Qt::BottomDockWidgetArea);
        QVERIFY(bench.find<QAction>(u"textLivePage"_s)->isChecked());
        QVERIFY(bench.rt().hasFocus());
        QTRY_COMPARE(bench.webViews.made, QStringList{u"live"_s});
        QTest::keyClick(&bench.rt(), Qt::Key_F9);
        QVERIFY(!dock->isVisible());
        QVERIFY(!bench.find<QAction>(u"textLivePage"_s)->isChecked());
        bench.choose(u"textLivePage"_s);
        QVERIFY(dock->isVisible());
        dock->close();
        QVERIFY(!bench.find<QAction>(u"textLivePage"_s)->isChecked());
        QCOMPARE(bench.webViews.made, QStringList{u"live"_s});
    }

    /// While other views of the window are destroyed, the engine may still deliver what its page tells.
    void goesBeforeWhatItFollows()
    {
        Bench bench;
        QVERIFY(bench.open());
        const QPointer<QWidget> pane = bench.find<QWidget>(u"livePane"_s);
        bool isGone = false;
        connect(&bench.rt(), &QObject::destroyed, this, [&] { isGone = pane.isNull(); });
        bench.window.reset();
        QVERIFY(isGone);
    }

    void followsTheText()
    {
        Bench bench;
        QVERIFY(bench.open());
        QCOMPARE(bench.page().html, u"<body>\r\n<p>\u00e9</p>\r\n<p>b</p></body>\r\n"_s);
        QCOMPARE(bench.page().file, bench.folder() + u"/site/page.html"_s);
        bench.rt().select({1, 4, 1, 4});
        QTest::keyClick(&bench.rt(), 'x');
        QTRY_COMPARE(bench.page().html, u"<body>\r\n<p>\u00e9x</p>\r\n<p>b</p></body>\r\n"_s);
        QTest::keyClick(&bench.rt(), Qt::Key_F9);
        QTest::keyClick(&bench.rt(), 'z');
        QTest::qWait(400);
        QVERIFY(!bench.page().html.contains(u'z'));
        QTest::keyClick(&bench.rt(), Qt::Key_F9);
        QTRY_VERIFY(bench.page().html.contains(u"xz"_s));
    }

    void tellsTheElementsOfTheCaret()
    {
        Bench bench;
        QVERIFY(bench.open());
        const QString text = bench.page().html;
        bench.rt().select({2, 4, 2, 4});
        QTRY_COMPARE(bench.page().caret, (std::vector<qsizetype>{text.indexOf(u"<p>b"), 0}));
        bench.rt().select({1, 0, 1, 0});
        QTRY_COMPARE(bench.page().caret, std::vector<qsizetype>{0});
    }

    void aClickLeadsToTheSource()
    {
        Bench bench;
        QVERIFY(bench.open());
        bench.find<QComboBox>(u"liveWidths"_s)->setFocus();
        const qsizetype place = bench.page().html.indexOf(u"<p>b");
        bench.page().events.clicked(place, true);
        QCOMPARE(bench.rt().selection(true), (CodeMaxRange{2, 1, 2, 1}));
        QVERIFY(!bench.rt().hasFocus());
        bench.page().events.clicked(0, false);
        QCOMPARE(bench.rt().selection(true), (CodeMaxRange{0, 1, 0, 1}));
        QVERIFY(bench.rt().hasFocus());
        // A click on a page that is behind the text could lead anywhere.
        QTest::keyClick(&bench.rt(), 'x');
        bench.page().events.clicked(place, false);
        QCOMPARE(bench.rt().selection(true), (CodeMaxRange{0, 2, 0, 2}));
    }

    void scrollsBothWays()
    {
        QByteArray text("<body>\r\n");
        for (int i = 0; i < 500; ++i)
            text += "<p>" + QByteArray::number(i) + "</p>\r\n";
        Bench bench(text);
        QVERIFY(bench.open());
        const QString html = bench.page().html;
        bench.rt().verticalScrollBar()->setValue(100);
        QTRY_COMPARE(bench.page().followed, html.indexOf(u"<p>99<"));
        bench.page().followed = -1;
        bench.page().events.scrolled(html.indexOf(u"<p>299<"), false);
        QCOMPARE(bench.rt().verticalScrollBar()->value(), 300);
        bench.page().events.scrolled(html.indexOf(u"<p>299<"), true);
        QCOMPARE(bench.rt().verticalScrollBar()->value(), bench.rt().verticalScrollBar()->maximum());
        QTest::qWait(100);
        QCOMPARE(bench.page().followed, -1);
    }

    void savedSheetsAreFollowed()
    {
        Bench bench;
        QVERIFY(bench.open());
        const QString sheet = bench.write(u"site/look.css"_s, "a");
        bench.page().events.sheetsChanged({sheet});
        bench.write(u"site/other.css"_s, "b");
        QTest::qWait(300);
        QVERIFY(!bench.page().calls.contains(u"sheet "_s + sheet));
        for (int i = 1; i < 3; ++i) {
            QVERIFY(bench.files.write(sheet, QByteArray(i + 1, 'c')));
            QTRY_COMPARE(bench.page().calls.count(u"sheet "_s + sheet), i);
        }
    }

    /// While a style sheet is edited in the window, the page that links it stays.
    void aStyleSheetAsTheDocument()
    {
        Bench bench;
        QVERIFY(bench.open());
        const QString html = bench.page().html;
        bench.window->document().openFileOrImage(bench.write(u"site/look.css"_s, "p { color: red }"));
        QCOMPARE(bench.rt().text(), u"p { color: red }"_s);
        QTest::qWait(400);
        QCOMPARE(bench.page().html, html);
    }

    void theBreadcrumb()
    {
        Bench bench;
        QVERIFY(!bench.find<QAction>(u"textBreadcrumb"_s)->isChecked());
        bench.choose(u"textBreadcrumb"_s);
        QVERIFY(bench.find<QAction>(u"textBreadcrumb"_s)->isChecked());
        QCOMPARE(bench.settings.GetSetting(UserSetting::Breadcrumb), u"1"_s);
        auto *line = bench.find<Breadcrumb>(u"breadcrumb"_s);
        QVERIFY(line->isVisible());
        bench.rt().select({2, 4, 2, 4});
        QTRY_COMPARE(line->captions(), (QStringList{u"body"_s, u"p"_s}));
        bench.find<QTabBar>(u"workspace"_s)->setCurrentIndex(1);
        QVERIFY(!line->isVisible());
        bench.find<QTabBar>(u"workspace"_s)->setCurrentIndex(0);
        QVERIFY(line->isVisible());
        bench.window->document().openFileOrImage(bench.write(u"site/look.css"_s, "p { color: red }"));
        QVERIFY(!line->isVisible());
        bench.choose(u"textBreadcrumb"_s);
        QCOMPARE(bench.settings.GetSetting(UserSetting::Breadcrumb), u"0"_s);
    }

    void theBreadcrumbIsKept()
    {
        Bench bench;
        bench.window.reset();
        bench.settings.SaveSetting(UserSetting::Breadcrumb, u"1"_s);
        bench.start(bench.folder() + u"/site/page.html"_s);
        bench.window->show();
        QTRY_VERIFY(bench.find<Breadcrumb>(u"breadcrumb"_s)->isVisible());
        QVERIFY(bench.find<QAction>(u"textBreadcrumb"_s)->isChecked());
    }
};

ZEPHIRA_TEST(TstLiveDock)

#include "tst_livedock.moc"
