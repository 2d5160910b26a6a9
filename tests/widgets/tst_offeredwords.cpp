// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "widgets/offeredwords.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstOfferedWords final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theListOpensAndAWordIsChosen()
    {
        QLineEdit field(u"own"_s);
        offerWords(&field, {u"_blank"_s, u"_top"_s});
        field.show();
        field.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        QTest::keyClick(&field, Qt::Key_Down, Qt::AltModifier);
        QAbstractItemView *list = listOf(field);
        QVERIFY(list->isVisible());
        QCOMPARE(list->model()->rowCount(), 2);
        QCOMPARE(field.text(), u"own"_s);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(field.text(), u"_top"_s);
        QVERIFY(!list->isVisible());
    }

    void escapeLeavesTheText()
    {
        QLineEdit field(u"own"_s);
        offerWords(&field, {u"_blank"_s, u"_top"_s});
        field.show();
        field.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        QTest::keyClick(&field, Qt::Key_Down, Qt::AltModifier);
        QTest::keyClick(listOf(field), Qt::Key_Escape);
        QCOMPARE(field.text(), u"own"_s);
    }

    /// A list that opened by itself would take the Return key, which belongs to the form.
    void whatIsTypedStandsAsItIs()
    {
        QLineEdit field;
        offerWords(&field, {u"_blank"_s, u"_top"_s});
        field.show();
        field.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        QTest::keyClicks(&field, u"_t"_s);
        QCOMPARE(field.text(), u"_t"_s);
        QVERIFY(!listOf(field)->isVisible());
        QTest::keyClicks(&field, u"ab"_s);
        QCOMPARE(field.text(), u"_tab"_s);
    }

    void typingClosesTheList()
    {
        QLineEdit field;
        offerWords(&field, {u"_blank"_s, u"_top"_s});
        field.show();
        field.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        QTest::keyClick(&field, Qt::Key_Down, Qt::AltModifier);
        QVERIFY(listOf(field)->isVisible());
        QTest::keyClicks(listOf(field), u"_b"_s);
        QCOMPARE(field.text(), u"_b"_s);
        QVERIFY(!listOf(field)->isVisible());
    }

private:
    static QAbstractItemView *listOf(const QLineEdit &field) { return field.findChild<QCompleter *>()->popup(); }
};

ZEPHIRA_TEST(TstOfferedWords)

#include "tst_offeredwords.moc"
