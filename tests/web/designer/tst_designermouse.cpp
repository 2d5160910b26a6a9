// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/designer/designerbench.h"
#include "web/designer/designerhandles.h"

#include <QWebEngineView>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Selecting, moving and resizing elements with the mouse.
class TstDesignerMouse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_bench = std::make_unique<DesignerBench>(); }
    void cleanupTestCase() { m_bench.reset(); }

    void clickSelects_data();
    void clickSelects();
    void secondClickOpens();
    void drags_data();
    void drags();
    void snapsToTheGrid();
    void handlesFollow();
    void tabGoesFromCellToCell();

private:
    /// A positioned box with its upper left corner at 100, 50.
    QString box(const QString &more = {}) const
    {
        return u"<div style=\"position: absolute; left: 100px; top: 50px; width: 80px; height: 40px\"%1>box</div>"_s
            .arg(more);
    }
    bool comesTo(const QString &type)
    {
        return QTest::qWaitFor([&] { return m_bench->designer.selectionType() == type; }, DesignerBench::patience);
    }
    /// These wait for the element's style, and for the numbers of one of its properties.
    bool styleComesTo(const QString &style)
    {
        return QTest::qWaitFor(
            [&] {
                return m_bench->ask(u"document.querySelector('div,img').getAttribute('style')"_s).toString() == style;
            },
            DesignerBench::patience);
    }

    std::unique_ptr<DesignerBench> m_bench;
};

void TstDesignerMouse::clickSelects_data()
{
    QTest::addColumn<QString>("element");
    const QString place = u" style=\"position:absolute;left:100px;top:50px;width:80px;height:40px\""_s;
    for (const QString &name : {u"img src=x"_s, u"input"_s, u"button"_s, u"textarea"_s, u"hr"_s, u"div"_s})
        QTest::newRow(qPrintable(name)) << u"<%1%2>"_s.arg(name, place);
    QTest::newRow("in the flow") << u"<img src=x width=80 height=40 style=\"margin: 0 100px\">"_s;
}

void TstDesignerMouse::clickSelects()
{
    QFETCH(QString, element);
    m_bench->load(u"<p>text</p>"_s + element);
    QCOMPARE(m_bench->designer.selectionType(), u"None"_s);
    m_bench->click({140, 70});
    QVERIFY(comesTo(u"Control"_s));
    QVERIFY(!m_bench->designer.isDirty());
    m_bench->click({10, 300});
    QVERIFY(comesTo(u"None"_s));
}

/// The first click selects a box, the second puts the caret into it.
void TstDesignerMouse::secondClickOpens()
{
    m_bench->load(box());
    m_bench->click({120, 60});
    QVERIFY(comesTo(u"Control"_s));
    m_bench->click({120, 60});
    QVERIFY(comesTo(u"None"_s));
    m_bench->type(u"x"_s);
    QTRY_VERIFY_WITH_TIMEOUT(m_bench->body().contains(u"x</div>") || m_bench->body().contains(u"x"),
                             DesignerBench::patience);
    QVERIFY(m_bench->ask(u"document.querySelector('div').textContent"_s).toString().size() == 4);
}

void TstDesignerMouse::drags_data()
{
    QTest::addColumn<QString>("more");
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QString>("style");
    const QString same = u"position: absolute; left: 100px; top: 50px; width: 80px; height: 40px"_s;
    const auto row = [](const char *name, const QString &more, const QPoint &from, const QPoint &to,
                        const QString &style) { QTest::newRow(name) << more << from << to << style; };
    row("moved", {}, {140, 70}, {160, 100}, u"position: absolute; left: 120px; top: 80px; width: 80px; height: 40px"_s);
    row("hardly moved", {}, {140, 70}, {141, 71}, same);
    row("locked", u" design_time_lock=\"true\""_s, {140, 70}, {160, 100}, same);
    row("right side", {}, {180, 70}, {200, 90},
        u"position: absolute; left: 100px; top: 50px; width: 100px; height: 40px"_s);
    row("lower right corner", {}, {180, 90}, {190, 110},
        u"position: absolute; left: 100px; top: 50px; width: 90px; height: 60px"_s);
    row("upper left corner", {}, {100, 50}, {90, 60},
        u"position: absolute; left: 90px; top: 60px; width: 90px; height: 30px"_s);
    row("smaller than nothing", {}, {180, 70}, {20, 70},
        u"position: absolute; left: 100px; top: 50px; width: 1px; height: 40px"_s);
}

void TstDesignerMouse::drags()
{
    QFETCH(QString, more);
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QString, style);
    m_bench->load(box(more));
    const QString before = m_bench->body();
    m_bench->click({140, 70});
    QVERIFY(comesTo(u"Control"_s));
    m_bench->drag(from, to);
    QVERIFY2(styleComesTo(style), qPrintable(m_bench->body()));
    if (m_bench->body() == before) {
        QVERIFY(!m_bench->designer.isDirty());
        return;
    }
    m_bench->awaitChange();
    m_bench->run(DesignerCommand::Undo);
    QCOMPARE(m_bench->body(), before);
}

void TstDesignerMouse::snapsToTheGrid()
{
    m_bench->designer.setSnapToGrid(true);
    m_bench->load(box());
    m_bench->click({140, 70});
    QVERIFY(comesTo(u"Control"_s));
    m_bench->drag({140, 70}, {170, 100});
    QVERIFY2(styleComesTo(u"position: absolute; left: 150px; top: 100px; width: 80px; height: 40px"_s),
             qPrintable(m_bench->body()));
    // When resizing, the dragged side snaps to the grid.
    m_bench->drag({230, 140}, {240, 160});
    QVERIFY2(styleComesTo(u"position: absolute; left: 150px; top: 100px; width: 100px; height: 50px"_s),
             qPrintable(m_bench->body()));
    m_bench->designer.setSnapToGrid(false);
}

void TstDesignerMouse::handlesFollow()
{
    m_bench->load(box());
    QVERIFY(m_bench->designer.handles().isHidden());
    m_bench->click({140, 70});
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->designer.handles().frame(), QRectF(100, 50, 80, 40), DesignerBench::patience);
    QVERIFY(!m_bench->designer.handles().isHidden());
    QCOMPARE(m_bench->designer.handles().grips().size(), 8);
    m_bench->drag({140, 70}, {160, 100});
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->designer.handles().frame(), QRectF(120, 80, 80, 40), DesignerBench::patience);
    m_bench->click({10, 300});
    QTRY_VERIFY_WITH_TIMEOUT(m_bench->designer.handles().isHidden(), DesignerBench::patience);
    m_bench->load(u"<body style=\"margin: 50px 100px\"><img src=x width=80 height=40>"_s);
    m_bench->click({140, 70});
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->designer.handles().grips().size(), 3, DesignerBench::patience);
    m_bench->drag({180, 90}, {200, 100});
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->body(), u"<img src=\"x\" width=\"100\" height=\"50\">"_s,
                              DesignerBench::patience);
}

void TstDesignerMouse::tabGoesFromCellToCell()
{
    m_bench->show(u"<table><tbody><tr><td>a|</td><td>b</td></tr></tbody></table>"_s);
    m_bench->press(Qt::Key_Tab);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->text(), u"<table><tbody><tr><td>a</td><td>|b</td></tr></tbody></table>"_s,
                              DesignerBench::patience);
    m_bench->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->text(), u"<table><tbody><tr><td>|a</td><td>b</td></tr></tbody></table>"_s,
                              DesignerBench::patience);
    QVERIFY(!m_bench->designer.isDirty());
}

ZEPHIRA_TEST(TstDesignerMouse)
#include "tst_designermouse.moc"
