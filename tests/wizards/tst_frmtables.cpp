// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "wizards/frmtables.h"
#include "wizards/registerforms.h"
#include "wizards/sizesquare.h"
#include "wizards/tablemarkup.h"

#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The wizard with fakes of its own.
struct Wizard {
    TestContext world;
    LivingForm form;

    Wizard() : form(catalogue(), u"frmTables"_s, world) {}

    static FormCatalogue catalogue()
    {
        FormCatalogue forms;
        wizards::registerForms(forms);
        return forms;
    }

    /// The numbers of the highlighted squares; 0 for a square that is neither highlighted nor in the background colour.
    QList<int> highlighted() const
    {
        QList<int> numbers;
        for (int n = 1; n <= 25; ++n) {
            auto &square = form.get<SizeSquare>(u"pic%1"_s.arg(n));
            const QColor colour = square.grab().toImage().pixelColor(square.width() / 2, square.height() / 2);
            if (colour == square.palette().color(QPalette::Highlight))
                numbers.append(n);
            else if (colour != square.palette().color(QPalette::Base))
                numbers.append(0);
        }
        return numbers;
    }
};

} // namespace

class TstFrmTables final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsWithOneCell()
    {
        const Wizard wizard;
        QCOMPARE(wizard.form.value(u"frmTables"_s), u"Table Wizard ..."_s);
        QCOMPARE(wizard.form.value(u"txtRows"_s), u"1"_s);
        QCOMPARE(wizard.form.value(u"txtColls"_s), u"1"_s);
        QCOMPARE(wizard.form.value(u"lblTable"_s), u"1"_s);
        QCOMPARE(wizard.highlighted(), QList<int>{1});
        QVERIFY(wizard.form.get<QPushButton>(u"cmdCreate"_s).isDefault());
    }

    void squaresLieInAGrid()
    {
        const Wizard wizard;
        const QPoint first = wizard.form.get(u"pic1"_s).pos();
        for (int n = 1; n <= 25; ++n) {
            const QWidget &square = wizard.form.get(u"pic%1"_s.arg(n));
            QCOMPARE(square.size(), QSize(27, 27));
            QCOMPARE(square.pos() - first, QPoint((n - 1) % 5 * 32, (n - 1) / 5 * 32));
        }
    }

    void aClickPicksTheSize_data()
    {
        QTest::addColumn<int>("square");
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("columns");
        QTest::addColumn<QList<int>>("highlighted");
        QTest::newRow("top left") << 1 << u"1"_s << u"1"_s << QList<int>{1};
        QTest::newRow("top row") << 3 << u"1"_s << u"3"_s << QList<int>{1, 2, 3};
        QTest::newRow("first column") << 16 << u"4"_s << u"1"_s << QList<int>{1, 6, 11, 16};
        QTest::newRow("middle") << 13 << u"3"_s << u"3"_s << QList<int>{1, 2, 3, 6, 7, 8, 11, 12, 13};
        QList<int> all;
        for (int n = 1; n <= 25; ++n)
            all.append(n);
        QTest::newRow("bottom right") << 25 << u"5"_s << u"5"_s << all;
    }

    void aClickPicksTheSize()
    {
        QFETCH(int, square);
        const Wizard wizard;
        wizard.form.press(u"pic25"_s);
        wizard.form.press(u"pic%1"_s.arg(square));
        QTEST(wizard.form.value(u"txtRows"_s), "rows");
        QTEST(wizard.form.value(u"txtColls"_s), "columns");
        QCOMPARE(wizard.form.value(u"lblTable"_s), QString::number(square));
        QTEST(wizard.highlighted(), "highlighted");
    }

    void arrowKeysPickTheSize()
    {
        const Wizard wizard;
        QCOMPARE(wizard.form.focus(), u"pic1"_s);
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left})
            wizard.form.key(key);
        QCOMPARE(wizard.form.value(u"lblTable"_s), u"7"_s);
        QCOMPARE(wizard.highlighted(), (QList<int>{1, 2, 6, 7}));
        for (int i = 0; i < 9; ++i)
            wizard.form.key(Qt::Key_Up);
        QCOMPARE(wizard.form.value(u"lblTable"_s), u"2"_s);
        wizard.form.key(Qt::Key_Tab);
        QCOMPARE(wizard.form.focus(), u"txtRows"_s);
        wizard.form.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(wizard.form.focus(), u"pic2"_s);
    }

    void typingLeavesTheGrid()
    {
        const Wizard wizard;
        wizard.form.press(u"pic7"_s);
        wizard.form.type(u"txtRows"_s, u"12"_s);
        wizard.form.type(u"txtColls"_s, u"1"_s);
        QCOMPARE(wizard.highlighted(), (QList<int>{1, 2, 6, 7}));
        wizard.form.press(u"cmdCreate"_s);
        QCOMPARE(wizard.world.inserter.inserted, QStringList{simpleTableMarkup({1, 12}).value()});
    }

    void theSelectionStaysInFront()
    {
        Wizard wizard;
        wizard.world.editor.setText(u"<p>chosen</p>"_s);
        QVERIFY(wizard.world.editor.selectPart(u"chosen"_s));
        wizard.form.press(u"cmdCreate"_s);
        QCOMPARE(wizard.world.inserter.inserted, QStringList{u"chosen"_s + simpleTableMarkup({1, 1}).value()});
    }

    void cleanUpPaintsAllSquares()
    {
        const Wizard wizard;
        wizard.form.press(u"pic25"_s);
        QVERIFY(QMetaObject::invokeMethod(&wizard.form.widget(), "CleanUp"));
        QCOMPARE(wizard.highlighted(), QList<int>());
        QCOMPARE(wizard.form.value(u"txtRows"_s), u"5"_s);
    }

    void addTableTakesColumnsFirst()
    {
        const Wizard wizard;
        QVERIFY(QMetaObject::invokeMethod(&wizard.form.widget(), "AddTable", Q_ARG(int, 3), Q_ARG(int, 1)));
        QCOMPARE(wizard.world.inserter.inserted, QStringList{simpleTableMarkup({.columns = 3, .rows = 1}).value()});
        QVERIFY(wizard.form.isOpen());
    }

    void whatIsNoNumberCountsAsNothing_data()
    {
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("columns");
        QTest::addColumn<int>("rowCount");
        QTest::addColumn<int>("columnCount");
        QTest::newRow("rows") << u"many"_s << u"2"_s << 0 << 2;
        QTest::newRow("columns") << u"2"_s << QString() << 2 << 0;
        QTest::newRow("too large for a number") << u"99999999999"_s << u"1"_s << 0 << 1;
        QTest::newRow("halves") << u"2.5"_s << u"3.5"_s << 2 << 4;
    }

    void whatIsNoNumberCountsAsNothing()
    {
        QFETCH(QString, rows);
        QFETCH(QString, columns);
        QFETCH(int, rowCount);
        QFETCH(int, columnCount);
        const Wizard wizard;
        wizard.form.type(u"txtRows"_s, rows);
        wizard.form.type(u"txtColls"_s, columns);
        wizard.form.press(u"cmdCreate"_s);
        QCOMPARE(wizard.world.inserter.inserted, QStringList{simpleTableMarkup({columnCount, rowCount}).value()});
        QVERIFY(!wizard.form.isOpen());
    }

    void tooLargeIsTold()
    {
        Wizard wizard;
        wizard.world.prompts.expectTell(u"A table of 100000 columns and 100000 rows is too large for a page."_s,
                                        u"Table Wizard ..."_s, Question::Icon::Exclamation);
        wizard.form.type(u"txtRows"_s, u"100000"_s);
        wizard.form.type(u"txtColls"_s, u"100000"_s);
        wizard.form.press(u"cmdCreate"_s);
        QVERIFY(wizard.form.isOpen());
        QVERIFY(wizard.world.inserter.inserted.isEmpty());
        QVERIFY(wizard.world.prompts.verify());
    }

    void keys_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<qsizetype>("inserted");
        QTest::newRow("Return creates") << Qt::Key_Return << static_cast<qsizetype>(1);
        QTest::newRow("Escape cancels") << Qt::Key_Escape << static_cast<qsizetype>(0);
    }

    void keys()
    {
        QFETCH(Qt::Key, key);
        const Wizard wizard;
        wizard.form.key(key);
        QVERIFY(!wizard.form.isOpen());
        QTEST(wizard.world.inserter.inserted.size(), "inserted");
    }

    void cancelInsertsNothing()
    {
        const Wizard wizard;
        wizard.form.press(u"Command2"_s);
        QVERIFY(!wizard.form.isOpen());
        QVERIFY(wizard.world.inserter.inserted.isEmpty());
    }

    void theFrameDragsTheWindow()
    {
        const Wizard wizard;
        QWidget &window = wizard.form.widget();
        QWidget &frame = wizard.form.get(u"Frame1"_s);
        window.move(100, 100);
        const QPoint corner(2, 2);
        QTest::mousePress(&frame, Qt::LeftButton, {}, corner);
        QTest::mouseMove(&frame, corner + QPoint(30, 20));
        QTRY_COMPARE(window.pos(), QPoint(130, 120));
        QTest::mouseRelease(&frame, Qt::LeftButton, {}, corner);
        QTest::mouseMove(&frame, corner + QPoint(50, 50));
        QTest::qWait(20);
        QCOMPARE(window.pos(), QPoint(130, 120));
    }
};

ZEPHIRA_TEST(TstFrmTables)

#include "tst_frmtables.moc"
