// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/palettes.h"
#include "support/testregistry.h"
#include "widgets/pickpopup.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTextEdit>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// A window with a text, whose popup offers names of fruits.
class Bench
{
public:
    Bench()
    {
        text = new QTextEdit(&window);
        window.setCentralWidget(text);
        window.resize(800, 600);
        window.menuBar()->addMenu(u"&File"_s)->addAction(u"Save"_s, QKeySequence(u"Ctrl+S"_s), [this] {
            log.append(u"saved"_s);
        });
        window.show();
        window.activateWindow();
        text->setFocus();
    }

    bool isReady() { return QTest::qWaitForWindowActive(&window); }

    PickPopup &open()
    {
        PickPopup &popup = PickPopup::of(window);
        popup.open({u"Fruits"_s, u"Search for a fruit"_s, u"No fruit"_s,
                    [this](const QString &typed) { return search(typed); },
                    [this](int row) { log.append(u"chose %1, %2"_s.arg(row).arg(focusName())); },
                    [this](int row) { log.append(u"look %1"_s.arg(row)); }, [this] { log.append(u"left"_s); }});
        log.clear();
        return popup;
    }

    QString focusName() const { return text->hasFocus() ? u"in the text"_s : u"elsewhere"_s; }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    std::vector<PickRow> search(const QString &typed) const
    {
        std::vector<PickRow> rows;
        for (const QString &fruit : fruits) {
            if (fruit.contains(typed))
                rows.push_back({fruit, {fruit.indexOf(typed)}, u"a fruit"_s, u"Ctrl+B"_s, fruit != u"medlar"_s});
        }
        return rows;
    }

    QStringList fruits{u"apple"_s, u"pear"_s, u"medlar"_s, u"plum"_s};
    QStringList log;
    QMainWindow window;
    QTextEdit *text;
};

QListView &listOf(const PickPopup &popup)
{
    return *popup.findChild<QListView *>(u"lstpick"_s);
}

int currentRow(const PickPopup &popup)
{
    return listOf(popup).currentIndex().row();
}

} // namespace

/// The field with the list over a window.
class TstPickPopup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void returnChooses()
    {
        Bench bench;
        QVERIFY(bench.isReady());
        const PickPopup &popup = bench.open();
        QVERIFY(popup.isVisible());
        QCOMPARE(QApplication::focusWidget()->objectName(), u"txtpick"_s);
        QCOMPARE(listOf(popup).model()->rowCount(), 4);
        QTest::keyClicks(QApplication::focusWidget(), u"pl"_s);
        QCOMPARE(listOf(popup).model()->rowCount(), 2);
        Bench::press(Qt::Key_Down);
        Bench::press(Qt::Key_Return);
        QVERIFY(!popup.isVisible());
        QCOMPARE(bench.log, (QStringList{u"look 0"_s, u"look 0"_s, u"look 1"_s, u"chose 1, in the text"_s}));
    }

    void escapeLeaves()
    {
        Bench bench;
        QVERIFY(bench.isReady());
        const PickPopup &popup = bench.open();
        Bench::press(Qt::Key_Escape);
        QVERIFY(!popup.isVisible());
        QVERIFY(bench.text->hasFocus());
        QCOMPARE(bench.log, QStringList{u"left"_s});
        // Opened again, it begins anew.
        bench.open();
        QTest::keyClicks(QApplication::focusWidget(), u"m"_s);
        Bench::press(Qt::Key_Escape);
        bench.open();
        QCOMPARE(popup.findChild<QLineEdit *>(u"txtpick"_s)->text(), QString());
        QCOMPARE(listOf(popup).model()->rowCount(), 4);
    }

    void keysMove_data()
    {
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<int>("row");
        QTest::newRow("down") << QList<int>{Qt::Key_Down} << 1;
        QTest::newRow("up, around") << QList<int>{Qt::Key_Up} << 29;
        QTest::newRow("down, around") << QList<int>{Qt::Key_Up, Qt::Key_Down} << 0;
        QTest::newRow("Tab") << QList<int>{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab} << 1;
        QTest::newRow("page down") << QList<int>{Qt::Key_PageDown} << 9;
        QTest::newRow("not beyond the end")
            << QList<int>{Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageDown} << 29;
        QTest::newRow("page up") << QList<int>{Qt::Key_Up, Qt::Key_PageUp} << 20;
        QTest::newRow("not beyond the start") << QList<int>{Qt::Key_Down, Qt::Key_PageUp} << 0;
    }

    void keysMove()
    {
        QFETCH(QList<int>, keys);
        Bench bench;
        QVERIFY(bench.isReady());
        bench.fruits.clear();
        for (int i = 0; i < 30; ++i)
            bench.fruits.append(u"fruit %1"_s.arg(i));
        const PickPopup &popup = bench.open();
        QCOMPARE(listOf(popup).viewport()->height() / listOf(popup).sizeHintForRow(0), 10);
        for (const int key : std::as_const(keys))
            Bench::press(static_cast<Qt::Key>(key));
        QTEST(currentRow(popup), "row");
        QVERIFY(listOf(popup).viewport()->rect().contains(listOf(popup).visualRect(listOf(popup).currentIndex())));
    }

    /// A disabled row can be read, but neither Return nor a click chooses it.
    void disabledRows()
    {
        Bench bench;
        QVERIFY(bench.isReady());
        const PickPopup &popup = bench.open();
        Bench::press(Qt::Key_Down);
        Bench::press(Qt::Key_Down);
        QCOMPARE(currentRow(popup), 2);
        Bench::press(Qt::Key_Return);
        QVERIFY(popup.isVisible());
        QTest::mouseClick(listOf(popup).viewport(), Qt::LeftButton, {},
                          listOf(popup).visualRect(listOf(popup).currentIndex()).center());
        QVERIFY(popup.isVisible());
        QCOMPARE(bench.log, QStringList{u"look 1"_s});
    }

    void aClickChooses()
    {
        Bench bench;
        QVERIFY(bench.isReady());
        const PickPopup &popup = bench.open();
        QTest::mouseClick(listOf(popup).viewport(), Qt::LeftButton, {},
                          listOf(popup).visualRect(listOf(popup).model()->index(3, 0)).center());
        QVERIFY(!popup.isVisible());
        QCOMPARE(bench.log.last(), u"chose 3, in the text"_s);
    }

    void nothingFound()
    {
        Bench bench;
        QVERIFY(bench.isReady());
        const PickPopup &popup = bench.open();
        QTest::keyClicks(QApplication::focusWidget(), u"zz"_s);
        QCOMPARE(listOf(popup).model()->rowCount(), 1);
        QCOMPARE(listOf(popup).model()->index(0, 0).data().toString(), u"No fruit"_s);
        Bench::press(Qt::Key_Return);
        QVERIFY(popup.isVisible());
    }

    /// The window's keys rest meanwhile.
    void keysOfTheWindow()
    {
        Bench bench;
        QVERIFY(bench.isReady());
        bench.open();
        QTest::keyClick(bench.window.windowHandle(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(bench.log, QStringList());
        Bench::press(Qt::Key_Escape);
        QTest::keyClick(bench.window.windowHandle(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(bench.log, (QStringList{u"left"_s, u"saved"_s}));
    }

    /// A click elsewhere leaves it, and the focus goes where the click was.
    void focusElsewhere()
    {
        Bench bench;
        QVERIFY(bench.isReady());
        const PickPopup &popup = bench.open();
        bench.text->setFocus(Qt::MouseFocusReason);
        QVERIFY(!popup.isVisible());
        QCOMPARE(bench.log, QStringList{u"left"_s});
        QVERIFY(bench.text->hasFocus());
    }

    /// Another window in front doesn't end the search.
    void otherWindows()
    {
        Bench bench;
        QVERIFY(bench.isReady());
        const PickPopup &popup = bench.open();
        QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(popup.findChild<QLineEdit *>(u"txtpick"_s), &out);
        QVERIFY(popup.isVisible());
    }

    void staysInsideOfTheWindow()
    {
        Bench bench;
        QVERIFY(bench.isReady());
        const PickPopup &popup = bench.open();
        QCOMPARE(popup.geometry().center().x(), bench.window.rect().center().x());
        bench.window.resize(300, 200);
        QTRY_VERIFY(bench.window.rect().contains(popup.geometry()));
    }

    void isReadOut()
    {
        Bench bench;
        QVERIFY(bench.isReady());
        const PickPopup &popup = bench.open();
        QAccessibleInterface *list = QAccessible::queryAccessibleInterface(&listOf(popup));
        QVERIFY(list);
        QCOMPARE(list->childCount(), 4);
        QCOMPARE(list->child(1)->text(QAccessible::Name), u"pear, Ctrl+B, a fruit"_s);
        QCOMPARE(list->text(QAccessible::Name), u"Fruits"_s);
        QCOMPARE(popup.findChild<QLineEdit *>(u"txtpick"_s)->accessibleName(), u"Fruits"_s);
    }

    /// Text, keys and detail can be told from their background, selected or not, in light and dark.
    void isPainted()
    {
        const std::vector<NamedPalette> palettes = desktopPalettes();
        for (const auto &[name, palette] : palettes) {
            Bench bench;
            QVERIFY(bench.isReady());
            PickPopup &popup = bench.open();
            popup.setPalette(palette);
            const QImage picture = listOf(popup).viewport()->grab().toImage();
            for (int row = 0; row < 2; ++row) {
                const QRect box = listOf(popup).visualRect(listOf(popup).model()->index(row, 0));
                const QColor back = picture.pixelColor(box.left() + 2, box.center().y());
                QCOMPARE(back, palette.color(row == 0 ? QPalette::Highlight : QPalette::Base));
                int different = 0;
                for (int y = box.top(); y < box.bottom(); ++y) {
                    for (int x = box.left(); x < box.right(); ++x)
                        different += picture.pixelColor(x, y) != back;
                }
                QVERIFY2(different > 100, name);
            }
        }
    }
};

ZEPHIRA_TEST(TstPickPopup)

#include "tst_pickpopup.moc"
