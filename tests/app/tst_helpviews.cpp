// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"
#include "support/testregistry.h"

#include <QApplication>

using namespace Qt::StringLiterals;
using namespace zephira;

/// F1 in the views of the web engine, which gets the keys in widgets of its own.
class TstHelpViews final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensThePageOfTheView_data()
    {
        QTest::addColumn<QString>("view");
        QTest::addColumn<QString>("page");
        QTest::newRow("preview") << u"ww1"_s << u"preview.html"_s;
        QTest::newRow("designer") << u"DHTMLEdit1"_s << u"designer.html"_s;
    }

    void opensThePageOfTheView()
    {
        QFETCH(QString, view);
        QFETCH(QString, page);
        WebBench bench(u"page.html"_s, "<title>one</title><p>x</p>");
        bench.write(u"app/help/"_s + page, "<h1>x</h1>");
        bench.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(bench.window.get()));
        bench.window->rt().setFocus();
        QVERIFY(view == u"ww1" ? bench.preview(u"one"_s) : bench.design());
        QWidget *keyboard = bench.keyboardOf(view);
        QCOMPARE(QApplication::focusWidget(), keyboard);
        QTest::keyClick(keyboard, Qt::Key_F1);
        QCOMPARE(bench.shell.opened, QStringList{bench.appPath() + u"/help/"_s + page});
    }
};

ZEPHIRA_TEST(TstHelpViews)

#include "tst_helpviews.moc"
