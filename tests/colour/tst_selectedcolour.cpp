// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/selectedcolour.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstSelectedColour final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("colour");
        const auto row = [](const QString &text, qint64 colour) {
            QTest::newRow(text.isEmpty() ? "empty" : qPrintable(text)) << text << colour;
        };
        row(u"#123456"_s, 0x563412);
        row(u"#abc"_s, 0xccbbaa);
        row(u"#ABCDEF"_s, 0xefcdab);
        row(u" #fff "_s, 0xffffff);
        row(u"rgb(1,2,3)"_s, 0x030201);
        row(u"RGB( 255 , 0 , 16 )"_s, 0x1000ff);
        row(u"red"_s, 0x0000ff);
        row(u"CornflowerBlue"_s, 0xed9564);
        row(u"rgb(100%,0%,50%)"_s, 0x8000ff);
        row(u"rgb( 33.3% , 0.2% , 99.9% )"_s, 0xff0155);
        row(u"rebeccapurple"_s, 0x993366);
        row(u"RebeccaPurple"_s, 0x993366);
        row(u"rgb(101%,0%,0%)"_s, -1);
        row(u"rgb(100.5%,0%,0%)"_s, -1);
        row(u"rgb(10%,0,0)"_s, -1);
        row(u"rgb(10,20%,30)"_s, -1);
        row(u"rgb(-1%,0%,0%)"_s, -1);
        row(u"rgb(.%,0%,0%)"_s, -1);
        row(u"rgb(99999999999999999999999999999%,0%,0%)"_s, -1);
        row({}, -1);
        row(u"#12"_s, -1);
        row(u"#1234"_s, -1);
        row(u"#12345"_s, -1);
        row(u"#1234567"_s, -1);
        row(u"#12345g"_s, -1);
        row(u"123456"_s, -1);
        row(u"rgb(256,0,0)"_s, -1);
        row(u"rgb(1,2)"_s, -1);
        row(u"rgb(1,2,3"_s, -1);
        row(u"redd"_s, -1);
        row(u"transparent"_s, -1);
        row(u"light blue"_s, -1);
    }

    void aText()
    {
        QFETCH(QString, text);
        const auto colour = colourOfText(text);
        QTEST(colour ? qint64(*colour) : static_cast<qint64>(-1), "colour");
    }
};

ZEPHIRA_TEST(TstSelectedColour)
#include "tst_selectedcolour.moc"
