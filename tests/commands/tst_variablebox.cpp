// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/palette.h"
#include "commands/variablebox.h"
#include "commands/variablelists.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTabBar>
#include <QTest>
#include <QToolBar>
#include <QWheelEvent>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

struct Bench {
    Bench()
    {
        addVariableBoxes(palette, world.editor);
        palette.resize(1200, 120);
        palette.show();
    }

    VariableBox &box(const QString &name) const { return *palette.findChild<VariableBox *>(name); }

    TestContext world;
    Palette palette;
};

} // namespace

class TstVariableBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lists_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("toolbar");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::newRow("ssivar") << u"ssivar"_s << 11 << u"SSI variables"_s << 24 << u"CONTENT_LENGTH"_s
                                << u"SERVER_SOFTWARE"_s;
        QTest::newRow("Combo6") << u"Combo6"_s << 10 << u"Server Variables"_s << 22 << u"HTTP_REFERER"_s
                                << u"SERVER_SOFTWARE"_s;
    }

    void lists()
    {
        QFETCH(QString, name);
        QFETCH(int, toolbar);
        const Bench bench;
        const VariableBox &box = bench.box(name);
        QTEST(box.placeholderText(), "caption");
        QTEST(box.accessibleName(), "caption");
        QCOMPARE(box.currentIndex(), -1);
        QTEST(box.count(), "count");
        QTEST(box.itemText(0), "first");
        QTEST(box.itemText(box.count() - 1), "last");
        QVERIFY(!box.isVisible());
        bench.palette.tabs()->setCurrentIndex(toolbar);
        QVERIFY(box.isVisible());
        QCOMPARE(bench.palette.toolBar(toolbar)->widgetForAction(bench.palette.toolBar(toolbar)->actions().last()),
                 &box);
        const QList<QAction *> all = bench.palette.toolBar(toolbar)->actions().sliced(0, 5);
        for (const QAction *action : all)
            QVERIFY(bench.palette.toolBar(toolbar)->widgetForAction(const_cast<QAction *>(action))->x() < box.x());
    }

    void oneNameStandsTwice()
    {
        const Bench bench;
        const VariableBox &box = bench.box(u"Combo6"_s);
        QCOMPARE(box.itemText(12), u"REMOTE_IDENT"_s);
        QCOMPARE(box.itemText(13), u"REMOTE_IDENT"_s);
    }

    void choosingReplacesTheSelection_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("toolbar");
        QTest::addColumn<bool>("visual");
        QTest::newRow("ssivar") << u"ssivar"_s << 11 << false;
        QTest::newRow("Combo6") << u"Combo6"_s << 10 << false;
        QTest::newRow("in visual mode too") << u"Combo6"_s << 10 << true;
    }

    void choosingReplacesTheSelection()
    {
        QFETCH(QString, name);
        QFETCH(int, toolbar);
        QFETCH(bool, visual);
        Bench bench;
        bench.palette.tabs()->setCurrentIndex(toolbar);
        bench.world.designer.showing = visual;
        bench.world.editor.setText(u"a b c"_s);
        bench.world.editor.selectPart(u"b"_s);
        QTest::keyClick(&bench.box(name), Qt::Key_Down);
        const QString first = bench.box(name).itemText(0);
        QCOMPARE(bench.world.editor.text(), u"a "_s + first + u" c"_s);
        // The selected item may be chosen again.
        bench.box(name).textActivated(first);
        QCOMPARE(bench.world.editor.text(), u"a "_s + first + first + u" c"_s);
    }

    void theWheelChoosesNothing()
    {
        Bench bench;
        VariableBox &box = bench.box(u"ssivar"_s);
        bench.palette.tabs()->setCurrentIndex(11);
        QWheelEvent wheel({5, 5}, box.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(&box, &wheel);
        QCOMPARE(box.currentIndex(), -1);
        QCOMPARE(bench.world.editor.text(), QString());
    }
};

ZEPHIRA_TEST(TstVariableBox)
#include "tst_variablebox.moc"
