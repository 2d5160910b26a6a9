// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/completionpopup.h"
#include "support/testregistry.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The list in its window, without a text.
class TstCompletionPopup final : public QObject
{
    Q_OBJECT

private:
    struct Bench {
        QMainWindow window;
        QLineEdit &edit = *new QLineEdit(&window);
        CompletionPopup *popup = nullptr;
        DataRow row{.kind = 'T', .name = "b", .since = "2015 C1", .text = "Text that is bold."};

        Bench()
        {
            window.setCentralWidget(&edit);
            window.show();
            window.activateWindow();
            edit.setFocus();
            popup = new CompletionPopup(edit);
            QList<Proposal> list{{.text = u"a"_s}, {.text = u"b"_s, .row = &row}, {.text = u"c"_s}};
            for (int i = 0; i < 40; ++i)
                list.append({.text = u"more%1"_s.arg(i)});
            popup->setProposals(list);
        }
        QString current() const { return popup->current() ? popup->current()->text : QString(); }
        template<typename Widget>
        Widget *find(const QString &name) const
        {
            return popup->findChild<Widget *>(name);
        }
    };

private Q_SLOTS:
    void movesThroughTheEntries()
    {
        Bench bench;
        QVERIFY(bench.popup->filter({}));
        bench.popup->showAt({100, 100, 1, 15});
        QCOMPARE(bench.current(), u"a"_s);
        QVERIFY(!bench.popup->hasMoved());
        bench.popup->moveBy(1);
        QCOMPARE(bench.current(), u"b"_s);
        QVERIFY(bench.popup->hasMoved());
        bench.popup->moveBy(-1);
        bench.popup->moveBy(-1);
        QCOMPARE(bench.current(), u"more39"_s);
        bench.popup->moveBy(1);
        QCOMPARE(bench.current(), u"a"_s);
        bench.popup->movePage(true);
        QCOMPARE(bench.current(), u"more6"_s);
        bench.popup->movePage(false);
        bench.popup->movePage(false);
        QCOMPARE(bench.current(), u"a"_s);
        bench.popup->filter(u"more"_s);
        QVERIFY(!bench.popup->hasMoved());
        QVERIFY(!bench.popup->filter(u"xyz"_s));
        QCOMPARE(bench.current(), QString());
        bench.popup->moveBy(1);
        QCOMPARE(bench.current(), QString());
    }

    void describesTheCurrentEntry()
    {
        Bench bench;
        bench.popup->filter({});
        bench.popup->showAt({100, 100, 1, 15});
        const auto *label = bench.find<QLabel>(u"completionDescription"_s);
        QVERIFY(!label->isVisible());
        bench.popup->moveBy(1);
        bench.popup->showAt({100, 100, 1, 15});
        QVERIFY(label->isVisible());
        QCOMPARE(label->text(), u"Text that is bold.\n\nIn all browsers since 2015: Chrome 1"_s);
        bench.popup->moveBy(1);
        QVERIFY(!label->isVisible());
    }

    void neverTakesTheFocus()
    {
        Bench bench;
        QTRY_VERIFY(bench.edit.hasFocus());
        bench.popup->filter({});
        bench.popup->showAt({100, 100, 1, 15});
        QVERIFY(bench.popup->isVisible());
        QCOMPARE(bench.popup->windowType(), Qt::ToolTip);
        QCOMPARE(bench.popup->parentWidget(), &bench.window);
        const QList<QWidget *> parts = bench.popup->findChildren<QWidget *>();
        for (const QWidget *part : parts)
            QVERIFY2(!(part->focusPolicy() & Qt::ClickFocus), part->metaObject()->className());
        QTest::mouseClick(bench.find<QListView>(u"completionList"_s)->viewport(), Qt::LeftButton, {}, {10, 30});
        QCOMPARE(QApplication::focusWidget(), &bench.edit);
        QCOMPARE(QApplication::activeWindow(), &bench.window);
    }

    void isAsLargeAsItsEntries()
    {
        Bench bench;
        bench.popup->filter({});
        bench.popup->showAt({100, 100, 1, 15});
        const int tall = bench.popup->height();
        bench.popup->filter(u"more1"_s);
        bench.popup->filter(u"c"_s);
        bench.popup->showAt({100, 100, 1, 15});
        const auto *list = bench.find<QListView>(u"completionList"_s);
        QCOMPARE(list->model()->rowCount(), 1);
        QCOMPARE(list->height(), list->sizeHintForRow(0));
        QCOMPARE(bench.popup->height(), list->height() + 2);
        QVERIFY(bench.popup->height() < tall / 5);
    }

    void aClickTakesAnEntry()
    {
        Bench bench;
        bench.popup->filter({});
        bench.popup->showAt({100, 100, 1, 15});
        QString taken;
        connect(bench.popup, &CompletionPopup::clicked, this, [&] { taken = bench.current(); });
        const auto *list = bench.find<QListView>(u"completionList"_s);
        const QRect row = list->visualRect(list->model()->index(2, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
        QCOMPARE(taken, u"c"_s);
    }

    void staysOnTheScreen()
    {
        Bench bench;
        bench.popup->filter({});
        const QRect room = bench.window.screen()->availableGeometry();
        bench.popup->showAt({room.left() + 100, room.top() + 100, 1, 15});
        QCOMPARE(bench.popup->geometry().top(), room.top() + 115);
        bench.popup->showAt({room.right() - 5, room.bottom() - 30, 1, 15});
        QVERIFY(room.contains(bench.popup->geometry()));
        QCOMPARE(bench.popup->geometry().bottom(), room.bottom() - 31);
    }

    void assistiveTechnologyHearsOfIt()
    {
        Bench bench;
        QTRY_VERIFY(bench.edit.hasFocus());
        bench.popup->filter({});
        bench.popup->showAt({100, 100, 1, 15});
        auto *list = bench.find<QListView>(u"completionList"_s);
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(list);
        QCOMPARE(accessible->role(), QAccessible::List);
        QCOMPARE(accessible->text(QAccessible::Name), u"Completion"_s);
        QCOMPARE(accessible->childCount(), 43);
        bench.popup->moveBy(1);
        // The list counts as focused, so that Qt announces each entry on which the user moves.
        QVERIFY(list->hasFocus());
        QCOMPARE(accessible->child(1)->text(QAccessible::Name), u"b"_s);
        QVERIFY(accessible->child(1)->state().selected);
    }
};

ZEPHIRA_TEST(TstCompletionPopup)

#include "tst_completionpopup.moc"
