// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"
#include "support/eventwait.h"
#include "support/testregistry.h"
#include "views/live/livepane.h"

#include <memory>

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
        const auto title = [&] {
            const QList<QWidget *> parts = pane->findChildren<QWidget *>();
            for (const QWidget *part : parts) {
                if (part->inherits("QWebEngineView"))
                    return part->property("title").toString();
            }
            return QString();
        };
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
};

ZEPHIRA_TEST(TstLiveWindow)

#include "tst_livewindow.moc"
