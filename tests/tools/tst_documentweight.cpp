// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "tools/documentweight.h"
#include "tools/numbertext.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstDocumentWeight final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void number_data()
    {
        QTest::addColumn<double>("number");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << 0.0 << u"0"_s;
        QTest::newRow("one") << 1.0 << u"1"_s;
        QTest::newRow("ten") << 10.0 << u"10"_s;
        QTest::newRow("decimals") << 3.456 << u"3.456"_s;
        QTest::newRow("fifteen digits") << 2.0 / 3 * 10 << u"6.66666666666667"_s;
        QTest::newRow("below one") << 0.5 << u"0.5"_s;
        QTest::newRow("below one, fifteen decimals") << 2.0 / 3 << u"0.666666666666667"_s;
        QTest::newRow("few decimals") << 0.052 << u"0.052"_s;
        QTest::newRow("one byte") << 1.0 / 1024 << u"0.0009765625"_s;
        QTest::newRow("sixteen decimals") << 2.0 / 30 << u"6.66666666666667E-02"_s;
        QTest::newRow("a digit, fifteen decimals") << 1e-15 << u"0.000000000000001"_s;
        QTest::newRow("a digit, sixteen decimals") << 1e-16 << u"1E-16"_s;
        QTest::newRow("almost one") << 0.99999999999999999 << u"1"_s;
        QTest::newRow("nearly one") << 0.9999999999999999 << u"1"_s;
        QTest::newRow("large") << 262144.0 << u"262144"_s;
        QTest::newRow("negative") << -0.25 << u"-0.25"_s;
    }

    void number()
    {
        QFETCH(double, number);
        QTEST(numberText(number), "text");
    }

    void numbersReadBack()
    {
        QRandomGenerator random(54);
        for (int round = 0; round < 20000; ++round) {
            const double number = random.generateDouble() / std::pow(10, random.bounded(7));
            const QString text = numberText(number);
            QVERIFY2(qAbs(text.toDouble() - number) <= 1e-14 * number, qPrintable(text));
            QVERIFY(text.contains(u'E') || text.startsWith(u"0."));
        }
    }

    void size_data()
    {
        QTest::addColumn<double>("kilobytes");
        QTest::addColumn<QString>("caption");
        QTest::newRow("nothing") << 0.0 << u"0 KB"_s;
        QTest::newRow("cut, not rounded") << 3.456 << u"3.45 KB"_s;
        QTest::newRow("cut, though nearly more") << 3.999 << u"3.99 KB"_s;
        QTest::newRow("a whole number") << 4.0 << u"4 KB"_s;
        QTest::newRow("a byte") << 1.0 / 1024 << u"0.00 KB"_s;
        QTest::newRow("500 bytes") << 500.0 / 1024 << u"0.48 KB"_s;
        QTest::newRow("a byte below ten") << 10239.0 / 1024 << u"9.99 KB"_s;
        QTest::newRow("a byte above ten") << 10241.0 / 1024 << u"10.00 KB"_s;
        QTest::newRow("above ten") << 123.456 << u"123.4 KB"_s;
        QTest::newRow("the cut ends at the point") << 1234.5 << u"1234. KB"_s;
        QTest::newRow("more digits than fit") << 262144.0 << u"26214 KB"_s;
    }

    void size()
    {
        QFETCH(double, kilobytes);
        const std::optional<QString> caption = sizeCaption(kilobytes);
        QVERIFY(caption.has_value());
        QTEST(*caption, "caption");
    }

    void tenKilobytesHaveNoCaption() { QVERIFY(!sizeCaption(10)); }

    void time_data()
    {
        QTest::addColumn<double>("kilobytes");
        QTest::addColumn<double>("speed");
        QTest::addColumn<QString>("caption");
        const auto row = [](const char *name, double kilobytes, double speed, const QString &caption) {
            QTest::newRow(name) << kilobytes << speed << caption;
        };
        row("nothing", 0, 6.25, u"0 Sec."_s);
        row("a second", 6.25, 6.25, u"1 Sec."_s);
        row("cut, not rounded", 3.999, 1, u"3.99 Sec."_s);
        row("above ten", 123.456, 1, u"123.4 Sec."_s);
        row("exactly ten", 62.5, 6.25, u"10 Sec."_s);
        row("below one", 0.5, 1, u"0.5 Sec."_s);
        row("many decimals", 2, 3, u"0.66 Sec."_s);
        row("exponent 2", 2, 30, u"0.06 Sec."_s);
        row("exponent 3", 2, 300, u"0.00 Sec."_s);
        row("exponent 4", 2, 3000, u"0.00 Sec."_s);
        row("exponent 5", 2, 30000, u"0.00 Sec."_s);
        // The exponent takes the place of the prefix, and the outcome is a number by chance.
        row("exponent 10", 1.23456789012345e-10, 1, u"101. Sec."_s);
        row("exponent 16", 1e-16, 1, u"0.00 Sec."_s);
        row("no speed", 1, 0, u"0.00 Sec."_s);
    }

    void time()
    {
        QFETCH(double, kilobytes);
        QFETCH(double, speed);
        QTEST(timeCaption(kilobytes, LineSpeed{speed}), "caption");
    }

    void theFourLines()
    {
        QCOMPARE(timeCaption(10, modem14), u"6.20 Sec."_s);
        QCOMPARE(timeCaption(10, modem28), u"3.10 Sec."_s);
        QCOMPARE(timeCaption(10, modem56), u"1.6 Sec."_s);
        QCOMPARE(timeCaption(10, modemLan), u"0.40 Sec."_s);
    }
};

ZEPHIRA_TEST(TstDocumentWeight)

#include "tst_documentweight.moc"
