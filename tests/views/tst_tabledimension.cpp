// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "views/tabledimension.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstTableDimension final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("number"); // 0 for none.
        QTest::newRow("one") << u"1"_s << 1;
        QTest::newRow("blanks") << u" 12 "_s << 12;
        QTest::newRow("leading zero") << u"007"_s << 7;
        QTest::newRow("largest") << u"32767"_s << 32767;
        QTest::newRow("too large") << u"32768"_s << 0;
        QTest::newRow("far too large") << u"99999999999999999999"_s << 0;
        QTest::newRow("zero") << u"0"_s << 0;
        QTest::newRow("empty") << u""_s << 0;
        QTest::newRow("letter") << u"x"_s << 0;
        QTest::newRow("negative") << u"-1"_s << 0;
        QTest::newRow("plus") << u"+1"_s << 0;
        QTest::newRow("fraction") << u"1.5"_s << 0;
        QTest::newRow("exponent") << u"1e2"_s << 0;
        QTest::newRow("other digits") << u"٣"_s << 0;
    }

    void numbers()
    {
        QFETCH(QString, text);
        QTEST(tableDimension(text).value_or(0), "number");
    }
};

ZEPHIRA_TEST(TstTableDimension)
#include "tst_tabledimension.moc"
