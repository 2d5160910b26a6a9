// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/keynotations.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstKeyNotations final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCode_data()
    {
        QTest::addColumn<uint>("code");
        QTest::addColumn<QString>("binary");
        QTest::addColumn<QString>("hexadecimal");
        QTest::newRow("nothing") << 0U << u"00000000"_s << u"0"_s;
        QTest::newRow("backspace") << 8U << u"00001000"_s << u"8"_s;
        QTest::newRow("return") << 13U << u"00001101"_s << u"D"_s;
        QTest::newRow("A") << 65U << u"01000001"_s << u"41"_s;
        QTest::newRow("last of ASCII") << 127U << u"01111111"_s << u"7F"_s;
        QTest::newRow("first above ASCII") << 128U << u"10000000"_s << u"80"_s;
        QTest::newRow("last of eight digits") << 255U << u"11111111"_s << u"FF"_s;
        QTest::newRow("nine digits") << 256U << u"100000000"_s << u"100"_s;
        QTest::newRow("euro") << 0x20acU << u"10000010101100"_s << u"20AC"_s;
        QTest::newRow("above the first plane") << 0x1f600U << u"11111011000000000"_s << u"1F600"_s;
    }

    void aCode()
    {
        QFETCH(uint, code);
        QTEST(binaryDigits(code), "binary");
        QTEST(hexadecimalDigits(code), "hexadecimal");
    }

    void digitsAddUpToTheCode()
    {
        for (char32_t code = 0; code < 0x3000; ++code) {
            QCOMPARE(binaryDigits(code).toUInt(nullptr, 2), static_cast<uint>(code));
            QVERIFY(binaryDigits(code).size() >= 8);
            QCOMPARE(hexadecimalDigits(code).toUInt(nullptr, 16), static_cast<uint>(code));
        }
    }

    void theFirstCodePoint()
    {
        QCOMPARE(static_cast<uint>(firstCodePoint(u"A")), 65U);
        QCOMPARE(static_cast<uint>(firstCodePoint(u"BA")), 66U);
        QCOMPARE(static_cast<uint>(firstCodePoint(u"\U0001f600x")), 0x1f600U);
        const QString half(QChar(0xd83d));
        QCOMPARE(static_cast<uint>(firstCodePoint(half)), 0xd83dU);
    }
};

ZEPHIRA_TEST(TstKeyNotations)
#include "tst_keynotations.moc"
