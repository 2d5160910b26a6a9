// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"
#include "support/eventwait.h"
#include "support/testregistry.h"
#include "views/live/livepane.h"

#include <QComboBox>
#include <QScrollBar>
#include <QWheelEvent>

#include <cstdlib>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The live page in the real window, with the real engine.
class TstLiveWindow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTypingAndLeadsBack()
    {
        WebBench bench(u"page.html"_s, "<title>one</title>\r\n<p style='height: 200px'>a</p>\r\n");
        CodeMax &rt = bench.window->rt();
        bench.window->activateWindow();
        rt.setFocus();
        QTest::keyClick(&rt, Qt::Key_F9);
        auto *pane = bench.find<LivePane>(u"livePane"_s);
        // The pane outlives this function's variables where a check fails.
        const auto shown = std::make_shared<int>(0);
        connect(pane, &LivePane::shown, this, [shown] { ++*shown; });
        QVERIFY(waitUntil([&] { return *shown == 1; }, WebBench::patience));
        QVERIFY(rt.hasFocus());
        const auto title = [&] { return titleOf(*pane); };
        QCOMPARE(title(), u"one"_s);
        rt.select({0, 10, 0, 10});
        QTest::keyClick(&rt, 'x');
        QVERIFY(waitUntil([&] { return title() == u"onxe"_s || title() == u"onex"_s; }, WebBench::patience));
        // The page's own report comes behind its new title.
        QVERIFY(waitUntil([&] { return *shown == 2; }, WebBench::patience));
        QVERIFY(rt.hasFocus());
        // A click in the page.
        QWidget *keyboard = bench.keyboardOf(u"livePageView"_s);
        QTest::mouseClick(keyboard, Qt::LeftButton, {}, {keyboard->width() / 2, 80});
        QVERIFY(waitUntil([&] { return rt.selection(true) == CodeMaxRange{1, 1, 1, 1}; }, WebBench::patience));
        QVERIFY(rt.hasFocus());
        // The key works in the page as well.
        keyboard->setFocus();
        QTest::keyClick(keyboard, Qt::Key_F9);
        QVERIFY(waitUntil([&] { return !pane->isVisible(); }, WebBench::patience));
    }

    void scrollsBothWays()
    {
        QByteArray page = "<!DOCTYPE html><title>long</title>\r\n";
        for (int number = 0; number < 300; ++number)
            page += "<p>line " + QByteArray::number(number) + "</p>\r\n";
        WebBench bench(u"page.html"_s, page);
        const LivePane &pane = open(bench);
        QVERIFY(waitUntil([&] { return titleOf(pane) == u"long"; }, WebBench::patience));
        const auto height = [&] { return bench.scrollOf(u"livePageView"_s).y(); };
        QScrollBar *bar = bench.window->rt().verticalScrollBar();
        bar->setValue(150);
        QVERIFY(waitUntil([&] { return height() > 2000; }, WebBench::patience));
        bar->setValue(0);
        QVERIFY(waitUntil([&] { return height() < 50; }, WebBench::patience));
        // The caret goes where neither shows anything yet.
        bench.window->rt().select({200, 5, 200, 5});
        QVERIFY(waitUntil([&] { return height() > 2000; }, WebBench::patience));
        bar->setValue(0);
        QVERIFY(waitUntil([&] { return height() < 50; }, WebBench::patience));
        // The wheel is turned in the page.
        QWidget *keyboard = bench.keyboardOf(u"livePageView"_s);
        const QPointF middle = QRectF(keyboard->rect()).center();
        QWheelEvent turn(middle, keyboard->mapToGlobal(middle), {}, {0, -1200}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(keyboard, &turn);
        QVERIFY(waitUntil([&] { return bar->value() > 10; }, WebBench::patience));
    }

    /// The page itself tells how wide it is.
    void widths()
    {
        WebBench bench(u"page.html"_s,
                       "<script>const tell = () => { document.title = innerWidth; };"
                       "addEventListener('resize', tell); addEventListener('load', tell)</script><p>a</p>\r\n");
        const LivePane &pane = open(bench);
        QVERIFY(waitUntil([&] { return titleOf(pane).toInt() > 100; }, WebBench::patience));
        auto *widths = bench.find<QComboBox>(u"liveWidths"_s);
        for (const auto &[choice, width] : {std::pair(1, 375), std::pair(2, 768), std::pair(3, 1280)}) {
            widths->setCurrentIndex(choice);
            Q_EMIT widths->activated(choice);
            QVERIFY2(waitUntil([&] { return std::abs(titleOf(pane).toInt() - width) < 4; }, WebBench::patience),
                     qPrintable(widths->currentText() + u": "_s + titleOf(pane)));
        }
    }

private:
    static LivePane &open(const WebBench &bench)
    {
        bench.choose(u"textLivePage"_s);
        return *bench.find<LivePane>(u"livePane"_s);
    }
    static QString titleOf(const LivePane &pane)
    {
        const QList<QWidget *> parts = pane.findChildren<QWidget *>();
        for (const QWidget *part : parts) {
            if (part->inherits("QWebEngineView"))
                return part->property("title").toString();
        }
        return {};
    }
};

ZEPHIRA_TEST(TstLiveWindow)

#include "tst_livewindow.moc"
