// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"
#include "panes/sidepane.h"
#include "support/eventwait.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QRegularExpression>

#include <algorithm>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// The parts of the window in the order in which the help tells of them, in its words.
QStringList partsOfTheHelp()
{
    const QString help = QString::fromUtf8(WindowBench::read(sourcePath(u"data/help/main-window.html"_s)));
    static const QRegularExpression row(
        u"<kbd>Ctrl\\+F6</kbd>, <kbd>Shift\\+Ctrl\\+F6</kbd></td><td>Next or previous part of the window:([^<]*)</td>"_s);
    return row.match(help).captured(1).simplified().split(u", "_s);
}

/// The help's word for the part that has the focus.
QString focusedPart(const WebBench &bench)
{
    const QWidget *focus = QApplication::focusWidget();
    const auto holds = [focus](const QWidget *part) { return focus && (part == focus || part->isAncestorOf(focus)); };
    if (holds(bench.find<QStackedWidget>(u"views"_s)))
        return u"text"_s;
    if (holds(bench.find<QWidget>(u"cboLang"_s)))
        return u"language list"_s;
    if (holds(bench.find<QWidget>(u"workspace"_s)))
        return u"views"_s;
    if (holds(&bench.window->sidePane()))
        return u"side pane"_s;
    return holds(bench.find<QWidget>(u"toolpane"_s)->parentWidget()) ? u"palette"_s : u"elsewhere"_s;
}

} // namespace

/// The keys that leave a view in which Tab is typed or belongs to the page.
class TstFocusWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromEachViewAndBack_data()
    {
        QTest::addColumn<int>("view");
        QTest::newRow("code") << 1;
        QTest::newRow("preview") << 2;
        QTest::newRow("designer") << 3;
    }

    void fromEachViewAndBack()
    {
        QFETCH(int, view);
        WebBench bench(u"page.html"_s, "<title>one</title><p><input></p>");
        bench.window->resize(1800, 900);
        bench.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(bench.window.get()));
        bench.window->rt().setFocus();
        if (view == 2)
            QVERIFY(bench.preview(u"one"_s));
        if (view == 3)
            QVERIFY(bench.design());
        const QWidget *keyboard = bench.keyboardOf(view == 1 ? u"rt"_s : view == 2 ? u"ww1"_s : u"DHTMLEdit1"_s);
        QCOMPARE(QApplication::focusWidget(), keyboard);
        QStringList order = partsOfTheHelp();
        QCOMPARE(order.size(), 5);
        QCOMPARE(order.front(), u"text"_s);
        for (const Qt::KeyboardModifiers keys :
             {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier}) {
            QStringList walked;
            for (qsizetype i = 0; i < order.size(); ++i) {
                walked.append(focusedPart(bench));
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, keys);
            }
            QCOMPARE(walked, order);
            QCOMPARE(QApplication::focusWidget(), keyboard);
            std::reverse(order.begin() + 1, order.end());
        }
    }

    /// A designer that was entered by the tabs takes keys once it has the focus.
    void fromTheTabs()
    {
        WebBench bench(u"page.html"_s, "<p>x</p>");
        bench.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(bench.window.get()));
        bench.tabs().setFocus();
        QVERIFY(bench.design());
        QCOMPARE(focusedPart(bench), u"views"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ControlModifier);
        QCOMPARE(focusedPart(bench), u"text"_s);
        QTest::keyClicks(QApplication::focusWidget(), u"Z"_s);
        QVERIFY(waitUntil([&] { return bench.html() == u"<p>Zx</p>"; }, WebBench::patience));
    }
};

ZEPHIRA_TEST(TstFocusWalk)
#include "tst_focuswalk.moc"
