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
        QAbstractItemView *list = field.completer()->popup();
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
        QTest::keyClick(field.completer()->popup(), Qt::Key_Escape);
        QCOMPARE(field.text(), u"own"_s);
    }

    void whatIsTypedStandsAsItIs()
    {
        QLineEdit field;
        offerWords(&field, {u"_blank"_s, u"_top"_s});
        field.show();
        field.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        QTest::keyClicks(&field, u"_T"_s);
        QCOMPARE(field.text(), u"_T"_s);
        field.completer()->popup()->hide();
        QTest::keyClicks(&field, u"ab"_s);
        QCOMPARE(field.text(), u"_Tab"_s);
    }
};

ZEPHIRA_TEST(TstOfferedWords)

#include "tst_offeredwords.moc"
