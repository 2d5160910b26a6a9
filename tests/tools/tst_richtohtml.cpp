// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "tools/plainrichtohtml.h"
#include "tools/richtohtml.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstRichToHtml final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hex_data()
    {
        QTest::addColumn<quint32>("colour");
        QTest::addColumn<QString>("hex");
        QTest::newRow("black") << 0U << u"000000"_s;
        QTest::newRow("red") << 0x0000FFU << u"FF0000"_s;
        QTest::newRow("green") << 0x00FF00U << u"00FF00"_s;
        QTest::newRow("blue") << 0xFF0000U << u"0000FF"_s;
        QTest::newRow("padded") << 0x01020AU << u"0A0201"_s;
    }

    void hex()
    {
        QFETCH(quint32, colour);
        QTEST(RGBtoHEX(colour), "hex");
    }

    void nothingGivesNothing() { QCOMPARE(richToHtml({}), QString()); }

    void plainText()
    {
        CharacterFormat black;
        black.fontName = u"Arial"_s;
        const std::vector<FormattedRun> runs{{u"a & <b>\r\nc"_s, black}};
        QCOMPARE(richToHtml(runs), u"<p align=left><font face=\"Arial\"><font color=#000000>a & <b>\r\nc"_s);
    }

    void aColourInMidWord()
    {
        CharacterFormat black;
        black.fontName = u"Arial"_s;
        CharacterFormat red = black;
        red.colour = 0xFF;
        QCOMPARE(richToHtml({{u"a"_s, black}, {u"b"_s, red}, {u"c"_s, black}}),
                 u"<p align=left><font face=\"Arial\"><font color=#000000>a<font color=#FF0000>b"
                 "<font color=#000000>c"_s);
    }

    void everythingAtOnce()
    {
        const CharacterFormat all{CharacterFormat::Alignment::Center, true, true, true, true, u"Mono"_s, 0xFF0000};
        const CharacterFormat none{CharacterFormat::Alignment::Right, false, false, false, false, u"Sans"_s, 0};
        QCOMPARE(richToHtml({{u"x"_s, all}, {u"y"_s, none}}),
                 u"<p align=center><b><u><i><s><font face=\"Mono\"><font color=#0000FF>x"
                 "<p align=right></b></u></i></s><font face=\"Sans\"><font color=#000000>y"_s);
    }

    void likeOneCharacterAfterAnother()
    {
        QRandomGenerator random(55);
        const auto coin = [&random] { return random.bounded(3) == 0; };
        for (int round = 0; round < 5000; ++round) {
            std::vector<FormattedRun> runs;
            for (int count = random.bounded(8); count > 0; --count) {
                runs.push_back({QString(random.bounded(3), u'x'),
                                {static_cast<CharacterFormat::Alignment>(random.bounded(3)), coin(), coin(), coin(),
                                 coin(), coin() ? u"A"_s : u"B"_s, random.bounded(2U)}});
            }
            QCOMPARE(richToHtml(runs), plainRichToHtml(runs));
        }
    }

    void tenTimesTheText()
    {
        const double times = timesForTenTimes([](qsizetype count) { return QString(count, u'x'); }, 10000,
                                              [](const QString &text) {
                                                  std::vector<FormattedRun> runs;
                                                  for (const QChar character : text) {
                                                      CharacterFormat format;
                                                      format.bold = runs.size() % 2 == 0;
                                                      runs.push_back({character, format});
                                                  }
                                                  richToHtml(runs);
                                              });
        QVERIFY2(times <= mostOfLinear, qPrintable(QString::number(times)));
    }
};

ZEPHIRA_TEST(TstRichToHtml)

#include "tst_richtohtml.moc"
