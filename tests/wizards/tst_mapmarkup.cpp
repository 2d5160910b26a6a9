// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/fieldtemplate.h"
#include "wizards/mapmarkup.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstMapMarkup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void circle() { QCOMPARE(circleArea(1, -2, 30), u"<AREA SHAPE=CIRCLE COORDS=\"1,-2,30\""_s); }

    void rectangle_data()
    {
        QTest::addColumn<float>("number");
        QTest::addColumn<QString>("text");
        QTest::newRow("whole") << 12.0F << u"12"_s;
        QTest::newRow("zero") << 0.0F << u"0"_s;
        QTest::newRow("negative zero") << -0.0F << u"0"_s;
        QTest::newRow("negative") << -7.0F << u"-7"_s;
        QTest::newRow("half") << 1.5F << u"1.5"_s;
        QTest::newRow("a tenth") << 0.1F << u"0.1"_s;
        QTest::newRow("large") << 1e10F << u"10000000000"_s;
        QTest::newRow("a million") << 1000000.0F << u"1000000"_s;
        QTest::newRow("small") << 1e-7F << u"0.0000001"_s;
        QTest::newRow("largest") << 3.4028235e38F << u"340282346638528859811704183484516925440"_s;
        QTest::newRow("smallest") << 1e-45F << u"0.000000000000000000000000000000000000000000001"_s;
    }
    void rectangle()
    {
        QFETCH(float, number);
        QFETCH(QString, text);
        QCOMPARE(rectangleArea({number, 2}, {3, number}),
                 u"<AREA SHAPE=RECT COORDS=\""_s + text + u",2,3,"_s + text + u'"');
    }

    void polygon()
    {
        const MapPoint corners[] = {{1, 2}, {3.5F, -4}, {0, 0}};
        QCOMPARE(polygonArea(corners), u"<AREA SHAPE=POLY COORDS=\"1,2,3.5,-4,0,0\""_s);
        QCOMPARE(polygonArea(std::span(corners).last(1)), u"<AREA SHAPE=POLY COORDS=\"0,0\""_s);
    }

    void kinds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("polygon");
        QTest::newRow("polygon") << u"<AREA SHAPE=POLY COORDS=\"0,0\""_s << true;
        QTest::newRow("rectangle") << u"<AREA SHAPE=RECT COORDS=\"0,0,0,0\""_s << false;
        QTest::newRow("lower case") << u"<area shape=poly"_s << false;
        QTest::newRow("the 13th letter alone counts") << u"............P"_s << true;
        QTest::newRow("too short") << u"...........P"_s << false;
        QTest::newRow("empty") << QString() << false;
    }
    void kinds()
    {
        QFETCH(QString, text);
        QTEST(isPolygonArea(text), "polygon");
    }

    void untouched()
    {
        ImageMapFields fields;
        fields.areas[0].text = u" "_s;
        QCOMPARE(imageMapMarkup(fields),
                 u"<!-- Created by Zephira -->\r\n<!-- Start of Image Map -->\r\n"
                 "<IMG SRC=\"\" USEMAP=\"#\" WIDTH=0 HEIGHT=0 BORDER=0>\r\n<MAP NAME=\"\">\r\n"
                 "  HREF = \"\" ALT = \"\">\r\n</MAP>\r\n<!-- End of Image Map -->\r\n"_s);
    }

    void allAreas()
    {
        ImageMapFields fields{u"/p/a.gif"_s, u"map"_s, {320, 200}};
        for (int area = 0; area < 6; ++area) {
            const QString number = QString::number(area);
            fields.areas[area] = {u"<AREA "_s + number, u"u"_s + number, u"a"_s + number};
        }
        fields.areas[2].text.clear();
        QCOMPARE(imageMapMarkup(fields),
                 u"<!-- Created by Zephira -->\r\n<!-- Start of Image Map -->\r\n"
                 "<IMG SRC=\"/p/a.gif\" USEMAP=\"#map\" WIDTH=320 HEIGHT=200 BORDER=0>\r\n<MAP NAME=\"map\">\r\n"
                 "<AREA 0 HREF = \"u0\" ALT = \"a0\">\r\n<AREA 1 HREF = \"u1\" ALT = \"a1\">\r\n"
                 "<AREA 3 HREF = \"u3\" ALT = \"a3\">\r\n<AREA 4 HREF = \"u4\" ALT = \"a4\">\r\n"
                 "<AREA 5 HREF = \"u5\" ALT = \"a5\">\r\n</MAP>\r\n<!-- End of Image Map -->\r\n"_s);
    }

    void anyFields()
    {
        QRandomGenerator random(7);
        for (int round = 0; round < 2000; ++round) {
            const QStringList texts = generatedFields(random, 20);
            ImageMapFields fields{texts[0], texts[1], {random.bounded(1000), random.bounded(1000)}};
            QString areas;
            for (int area = 0; area < 6; ++area) {
                fields.areas[area] = {texts[2 + 3 * area], texts[3 + 3 * area], texts[4 + 3 * area]};
                if (!fields.areas[area].text.isEmpty())
                    areas += filled(u"① HREF = '②' ALT = '③'>\n"_s, texts.mid(2 + 3 * area, 3));
            }
            const QString expected =
                filled(u"<!-- Created by Zephira -->\n<!-- Start of Image Map -->\n"
                       "<IMG SRC='①' USEMAP='#②' WIDTH=③ HEIGHT=④ BORDER=0>\n<MAP NAME='②'>\n⑤</MAP>\n"
                       "<!-- End of Image Map -->\n"_s,
                       {texts[0], texts[1], QString::number(fields.size.width()), QString::number(fields.size.height()),
                        areas});
            QCOMPARE(imageMapMarkup(fields), expected);
        }
    }
};

ZEPHIRA_TEST(TstMapMarkup)

#include "tst_mapmarkup.moc"
