// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "widgets/qtvalues.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

class TstQtValues final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colours_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("black") << 0x000000U << QColor(0, 0, 0);
        QTest::newRow("red is lowest") << 0x0000ffU << QColor(255, 0, 0);
        QTest::newRow("blue is highest") << 0xff0000U << QColor(0, 0, 255);
        QTest::newRow("a mixture") << 0x123456U << QColor(0x56, 0x34, 0x12);
    }

    void colours()
    {
        QFETCH(quint32, number);
        QFETCH(QColor, colour);
        QCOMPARE(toQColor(number), colour);
        QCOMPARE(toColourNumber(colour), number);
    }

    void theHighestByteIsLeftOut() { QCOMPARE(toQColor(0x80123456U), QColor(0x56, 0x34, 0x12)); }

    void fonts()
    {
        const FontChoice choice{u"Liberation Mono"_s, 12.5, true, false, true, true};
        const QFont font = toQFont(choice);
        QCOMPARE(font.pointSizeF(), 12.5);
        QVERIFY(font.bold() && !font.italic() && font.strikeOut() && font.underline());
        QVERIFY(toFontChoice(font) == choice);
    }

    void aSizeOfNothingIsLeftToTheDesktop()
    {
        QCOMPARE(toQFont({.name = u"Liberation Mono"_s, .size = 0}).pointSizeF(),
                 QFont(u"Liberation Mono"_s).pointSizeF());
    }
};

ZEPHIRA_TEST(TstQtValues)

#include "tst_qtvalues.moc"
