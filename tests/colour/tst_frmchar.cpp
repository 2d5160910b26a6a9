// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/charactergrid.h"
#include "colour/characters.h"
#include "colour/registerforms.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct Map {
    TestContext world;
    LivingForm form;

    Map() : form(catalogue(), u"frmChar"_s, world) {}

    static FormCatalogue catalogue()
    {
        FormCatalogue forms;
        colour::registerForms(forms);
        return forms;
    }

    CharacterGrid &grid() const { return form.get<CharacterGrid>(u"Picture1"_s); }
    QPoint centreOf(MapCell cell) const { return cellRect(cell, grid().size()).center(); }
    void click(MapCell cell, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(&grid(), button, {}, centreOf(cell));
    }
    /// Moves the pointer over a cell; a button that is pressed is still held.
    void move(MapCell cell, Qt::MouseButtons held = Qt::NoButton) const
    {
        const QPointF point(centreOf(cell));
        QMouseEvent event(QEvent::MouseMove, point, grid().mapToGlobal(point), Qt::NoButton, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&grid(), &event);
    }
    bool isEnlarged() const { return form.get(u"Picture2"_s).isVisible(); }
    QString collected() const { return form.value(u"txtCopy"_s); }
};

} // namespace

class TstFrmChar final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atLoad()
    {
        const Map map;
        QCOMPARE(map.form.value(u"Label1"_s), u"Special Character  Set:"_s);
        QCOMPARE(map.grid().property("index").toInt(), 1);
        QCOMPARE(map.form.value(u"lblCharacter"_s), u"32: space"_s);
        QCOMPARE(map.collected(), QString());
        QVERIFY(!map.isEnlarged());
        QVERIFY(!map.form.get(u"Picture3"_s).isVisible());
        QCOMPARE(map.form.focus(), u"Picture1"_s);
        QCOMPARE(map.grid().cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(map.grid().font().family(), u"Arial"_s);
        QCOMPARE(map.grid().font().pointSize(), 8);
        QCOMPARE(map.form.get(u"Picture2"_s).font().family(), u"Arial"_s);
        QCOMPARE(map.form.get(u"Picture2"_s).font().pointSize(), 18);
        QCOMPARE(map.form.get(u"txtCopy"_s).font().family(), u"Arial"_s);
    }

    void everyCellGivesItsCharacter()
    {
        const Map map;
        QString expected;
        for (int row = 0; row < 7; ++row) {
            for (int column = 0; column < 32; ++column) {
                map.click({row, column});
                QCOMPARE(map.grid().index(), 1 + column + 32 * row);
                map.form.press(u"cmdSelect"_s);
                expected += characterOfCode(32 + row * 32 + column);
                QCOMPARE(map.collected(), expected);
                QCOMPARE(map.form.focus(), u"Picture1"_s);
            }
        }
        QCOMPARE(expected.size(), 224 - 6);
    }

    void aDoubleClickAdds()
    {
        const Map map;
        QTest::mouseDClick(&map.grid(), Qt::LeftButton, {}, map.centreOf({1, 1}));
        QCOMPARE(map.collected(), u"A"_s);
        // Another button chooses nothing.
        QTest::mouseDClick(&map.grid(), Qt::RightButton, {}, map.centreOf({1, 2}));
        QCOMPARE(map.collected(), u"A"_s);
        QCOMPARE(map.grid().index(), 34);
    }

    void onlyTheLeftButtonCounts()
    {
        const Map map;
        map.click({3, 3}, Qt::RightButton);
        map.click({3, 3}, Qt::MiddleButton);
        QCOMPARE(map.grid().index(), 1);
        // The strip that is left over beside the last column isn't a cell.
        map.grid().resize(map.grid().width() / 32 * 32 + 20, map.grid().height());
        QTest::mouseClick(&map.grid(), Qt::LeftButton, {}, {map.grid().width() - 1, 1});
        QCOMPARE(map.grid().index(), 1);
    }

    void thePointerIsHiddenWhileTheButtonIsHeld()
    {
        const Map map;
        QTest::mousePress(&map.grid(), Qt::LeftButton, {}, map.centreOf({2, 5}));
        QCOMPARE(map.grid().cursor().shape(), Qt::BlankCursor);
        QCOMPARE(map.grid().index(), 70);
        map.move({4, 6}, Qt::LeftButton);
        QCOMPARE(map.grid().index(), 135);
        QTest::mouseRelease(&map.grid(), Qt::LeftButton, {}, map.centreOf({4, 6}));
        QCOMPARE(map.grid().cursor().shape(), Qt::ArrowCursor);
        map.move({0, 0});
        QCOMPARE(map.grid().index(), 135);
    }

    void aLostFocusBringsThePointerBack()
    {
        const Map map;
        QTest::mousePress(&map.grid(), Qt::LeftButton, {}, map.centreOf({2, 5}));
        map.form.get(u"txtCopy"_s).setFocus();
        QCOMPARE(map.grid().cursor().shape(), Qt::ArrowCursor);
    }

    void theCursorByName()
    {
        const Map map;
        QVERIFY(QMetaObject::invokeMethod(&map.form.widget(), "makeCursorInvisible"));
        QCOMPARE(map.grid().cursor().shape(), Qt::BlankCursor);
        QVERIFY(QMetaObject::invokeMethod(&map.form.widget(), "makeCursorVisible"));
        QCOMPARE(map.grid().cursor().shape(), Qt::ArrowCursor);
    }

    void theCellUnderThePointerIsEnlarged()
    {
        const Map map;
        map.move({1, 2});
        QVERIFY(map.isEnlarged());
        const auto &enlarged = map.form.get<QLabel>(u"Picture2"_s);
        QCOMPARE(enlarged.text(), u"B"_s);
        QVERIFY(map.form.widget().rect().contains(enlarged.geometry()));
        QVERIFY(!enlarged.geometry().contains(map.grid().mapTo(&map.form.widget(), map.centreOf({1, 2}))));
        // A code without a character has nothing to enlarge.
        map.move({2, 31});
        QVERIFY(!map.isEnlarged());
        map.move({6, 31});
        QCOMPARE(enlarged.text(), u"\u00ff"_s);
        QVERIFY(map.form.widget().rect().contains(enlarged.geometry()));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&map.grid(), &leave);
        QVERIFY(!map.isEnlarged());
        QCOMPARE(map.grid().index(), 1);
    }

    void theKeyboard()
    {
        const Map map;
        map.form.key(Qt::Key_Down);
        map.form.key(Qt::Key_Right);
        QCOMPARE(map.form.value(u"lblCharacter"_s), u"65: latin capital letter a"_s);
        QCOMPARE(map.grid().accessibleDescription(), u"65: latin capital letter a"_s);
        QVERIFY(map.isEnlarged());
        map.form.key(Qt::Key_Return);
        map.form.key(Qt::Key_End);
        map.form.key(Qt::Key_Left);
        map.form.key(Qt::Key_Enter);
        map.form.key(Qt::Key_Home);
        map.form.key(Qt::Key_Return);
        map.form.key(Qt::Key_End, Qt::ControlModifier);
        map.form.key(Qt::Key_Up);
        map.form.key(Qt::Key_Return);
        map.form.key(Qt::Key_Home, Qt::ControlModifier);
        map.form.key(Qt::Key_Return);
        QCOMPARE(map.collected(), u"A^@\u00df "_s);
        QVERIFY(map.form.isOpen());
    }

    void theCurrentCellIsDrawn()
    {
        const Map map;
        map.click({3, 4});
        const QPoint corner = cellRect({3, 4}, map.grid().size()).topLeft() + QPoint(2, 2);
        const QPoint other = cellRect({3, 5}, map.grid().size()).topLeft() + QPoint(2, 2);
        const QImage picture = map.grid().grab().toImage();
        QCOMPARE(picture.pixelColor(corner), map.grid().palette().color(QPalette::Highlight));
        QCOMPARE(picture.pixelColor(other), map.grid().palette().color(QPalette::Base));
    }

    void theGridIsLegible_data()
    {
        QTest::addColumn<QColor>("base");
        QTest::addColumn<QColor>("text");
        QTest::newRow("light") << QColor(0xfc, 0xfc, 0xfc) << QColor(0x23, 0x26, 0x29);
        QTest::newRow("dark") << QColor(0x1b, 0x1e, 0x20) << QColor(0xfc, 0xfc, 0xfc);
    }

    void theGridIsLegible()
    {
        QFETCH(QColor, base);
        QFETCH(QColor, text);
        const Map map;
        QPalette colours(base.darker(110));
        colours.setColor(QPalette::Base, base);
        colours.setColor(QPalette::Text, text);
        map.grid().setPalette(colours);
        map.click({0, 0});
        map.form.get(u"txtCopy"_s).setFocus();
        const QImage picture = map.grid().grab().toImage();
        const QRect current = cellRect({0, 0}, map.grid().size());
        const auto differ = [](const QColor &one, const QColor &other) {
            return std::abs(one.lightness() - other.lightness());
        };
        // The current cell without the focus, and a line between two cells.
        const QColor cell = picture.pixelColor(current.center());
        const QColor line = picture.pixelColor(3 * current.width(), current.height() / 2);
        for (const QColor &grey : {cell, line}) {
            QVERIFY(differ(grey, base) >= 50);
            QVERIFY(differ(grey, text) >= 100);
        }
        const auto &shadow = map.form.get<QLabel>(u"Picture3"_s);
        QCOMPARE(shadow.palette().color(shadow.backgroundRole()), QColor(Qt::gray));
    }

    void copy()
    {
        const Map map;
        map.form.type(u"txtCopy"_s, u"<x>"_s);
        map.form.press(u"cmdCopy"_s);
        QCOMPARE(map.world.clipboard.content, u"<x>"_s);
        QCOMPARE(map.form.focus(), u"Picture1"_s);
    }

    void okWritesBehindTheSelection()
    {
        Map map;
        map.world.editor.setText(u"one two"_s);
        QVERIFY(map.world.editor.selectPart(u"two"_s));
        map.form.set(u"txtCopy"_s, u"<\u00e9&"_s);
        map.form.press(u"Command1"_s);
        QCOMPARE(map.world.inserter.inserted, QStringList{u"two<\u00e9&"_s});
        QVERIFY(!map.form.isOpen());
    }

    void okPastesTextIntoTheDesigner()
    {
        Map map;
        map.world.designer.showing = true;
        map.form.set(u"txtCopy"_s, u"<\u00e9&"_s);
        map.form.press(u"Command1"_s);
        QCOMPARE(map.world.designer.pasted, QStringList{u"&lt;\u00e9&amp;"_s});
        QVERIFY(map.world.inserter.inserted.isEmpty());
    }

    void okWithoutCharactersWritesNothing()
    {
        Map map;
        map.world.editor.setText(u"one"_s);
        QVERIFY(map.world.editor.selectPart(u"one"_s));
        map.form.press(u"Command1"_s);
        QVERIFY(map.world.inserter.inserted.isEmpty());
        QVERIFY(!map.form.isOpen());
        Map visual;
        visual.world.designer.showing = true;
        visual.form.press(u"Command1"_s);
        QVERIFY(visual.world.designer.pasted.isEmpty());
    }

    void theWindowHasNoOwner()
    {
        TestContext world;
        auto main = std::make_unique<QWidget>();
        main->show();
        const QPointer<QWidget> map = Map::catalogue().make(u"frmChar"_s, world, main.get());
        map->show();
        QVERIFY(QTest::qWaitForWindowExposed(map));
        const auto hasOwner = [&] { return map->windowHandle()->transientParent() != nullptr; };
        QVERIFY(map->isWindow());
        QVERIFY(!hasOwner());
        QCOMPARE(map->windowType(), Qt::Window);
        map->hide();
        map->show();
        QVERIFY(!hasOwner());
        // The main window's end is the program's end, and takes the map along.
        QTimer::singleShot(0, main.get(), &QWidget::close);
        QTimer::singleShot(5000, main.get(), [] { QCoreApplication::exit(1); });
        QCOMPARE(QCoreApplication::exec(), 0);
        main.reset();
        QVERIFY(!map);
    }

    void cancelAndEscapeClose()
    {
        const Map map;
        map.form.type(u"txtCopy"_s, u"x"_s);
        map.form.press(u"cmdClose"_s);
        QVERIFY(!map.form.isOpen());
        QVERIFY(map.world.inserter.inserted.isEmpty());
        const Map second;
        second.form.key(Qt::Key_Escape);
        QVERIFY(!second.form.isOpen());
    }
};

ZEPHIRA_TEST(TstFrmChar)
#include "tst_frmchar.moc"
