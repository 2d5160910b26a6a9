// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "colour/charactergrid.h"
#include "desktop/modalformopener.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace zephira;
using namespace Qt::StringLiterals;

/// The tools for colours and characters, opened from each entry, button and palette key that names them.
class TstColourTools final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modalTools_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("form");
        QTest::newRow("menu: key converter") << u"mnuascwiz"_s << u"frmascii"_s;
        QTest::newRow("menu: colour picker") << u"mnucp"_s << u"ColorPick"_s;
    }

    void modalTools()
    {
        QFETCH(QString, entry);
        QFETCH(QString, form);
        WindowBench bench;
        bench.start();
        QVERIFY(bench.find<QAction>(entry)->isEnabled());
        QStringList opened;
        atModal([&](QWidget &modal) {
            opened.append(modal.objectName());
            modal.close();
        });
        bench.choose(entry);
        QCOMPARE(opened, QStringList{form});
    }

    void pickerFromThePalette()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        QString opened;
        atModal([&](QWidget &modal) {
            opened = modal.objectName();
            modal.close();
        });
        QAction *key = nullptr;
        const auto actions = window.findChildren<QAction *>(u"color"_s);
        for (QAction *action : actions)
            key = action;
        QVERIFY(key);
        QVERIFY(key->isEnabled());
        key->trigger();
        QCOMPARE(opened, u"ColorPick"_s);
    }

    void pickerTakesTheSelection()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.context().editor.setText(u"a { color: #0a141e }"_s);
        window.context().editor.select({0, 11, 0, 18});
        QString hex;
        atModal([&](QWidget &modal) {
            modal.findChild<QPushButton *>(u"cmdFromSelection"_s)->click();
            hex = modal.findChild<QLineEdit *>(u"TEXTHEX"_s)->text();
            modal.close();
        });
        bench.choose(u"mnucp"_s);
        QCOMPARE(hex, u"#0A141E"_s);
        QCOMPARE(window.context().editor.text(), u"a { color: #0a141e }"_s);
    }

    void theMapIsOneWindowBesideTheMainOne()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        bench.click(u"Toolbar1"_s, u"specchars"_s);
        QWidget *map = window.forms().openForm(u"frmChar"_s);
        QVERIFY(map && map->isVisible());
        QVERIFY(!QApplication::activeModalWidget());
        bench.click(u"Toolbar1"_s, u"specchars"_s);
        QCOMPARE(window.forms().openForm(u"frmChar"_s), map);
        QCOMPARE(window.findChildren<QDialog *>(u"frmChar"_s).size(), 1);
        // It can be minimised by itself, and comes back.
        map->showMinimized();
        QTRY_VERIFY(map->isMinimized());
        QVERIFY(!window.isMinimized());
        bench.click(u"Toolbar1"_s, u"specchars"_s);
        QTRY_VERIFY(!map->isMinimized());
        QVERIFY(map->isVisible());
    }

    void theSpyIsOneWindowBesideTheMainOne()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        QVERIFY(bench.find<QAction>(u"colors"_s)->isEnabled());
        bench.choose(u"colors"_s);
        QWidget *spy = window.forms().openForm(u"frmColorSpy"_s);
        QVERIFY(spy && spy->isVisible());
        QVERIFY(!QApplication::activeModalWidget());
        bench.choose(u"colors"_s);
        QCOMPARE(window.forms().openForm(u"frmColorSpy"_s), spy);
        QCOMPARE(window.findChildren<QDialog *>(u"frmColorSpy"_s).size(), 1);
    }

    void theMapWritesAtTheCaretOfThatMoment()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        EditingControl &editor = window.context().editor;
        editor.setText(u"one two"_s);
        editor.select({0, 0, 0, 0});
        bench.click(u"Toolbar1"_s, u"specchars"_s);
        const QPointer<QWidget> map = window.forms().openForm(u"frmChar"_s);
        auto *grid = map->findChild<CharacterGrid *>(u"Picture1"_s);
        grid->setIndex(0xe9 - 31);
        QTest::keyClick(grid, Qt::Key_Return);
        editor.select({0, 3, 0, 3});
        QTest::mouseClick(map->findChild<QPushButton *>(u"Command1"_s), Qt::LeftButton);
        QCOMPARE(editor.text(), u"one\u00e9 two"_s);
        QCOMPARE(editor.selection(true), (CodeMaxRange{0, 4, 0, 4}));
        QTRY_VERIFY(!map);
        QVERIFY(!window.forms().openForm(u"frmChar"_s));
    }

private:
    /// Runs the action once a modal window is open.
    void atModal(std::function<void(QWidget &)> action)
    {
        auto *timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, [timer, action = std::move(action)] {
            QWidget *modal = QApplication::activeModalWidget();
            if (!modal)
                return;
            timer->stop();
            timer->deleteLater();
            action(*modal);
        });
        timer->start(5);
    }
};

ZEPHIRA_TEST(TstColourTools)
#include "tst_colourtools.moc"
