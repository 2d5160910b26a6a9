// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "tools/richtohtml.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// One character after another, as the rules are told.
QString plainRichToHtml(const std::vector<FormattedRun> &runs)
{
    QString html;
    int alignment = -1;
    bool bold = false;
    bool underline = false;
    bool italic = false;
    bool strikethrough = false;
    std::optional<QString> fontName;
    std::optional<quint32> colour;
    const auto turn = [&html](bool &memory, bool now, const QString &on, const QString &off) {
        if (memory != now)
            html += now ? on : off;
        memory = now;
    };
    for (const auto &[text, format] : runs) {
        for (const QChar character : text) {
            if (alignment != static_cast<int>(format.alignment)) {
                alignment = static_cast<int>(format.alignment);
                html += QStringList{u"<p align=left>"_s, u"<p align=right>"_s, u"<p align=center>"_s}[alignment];
            }
            turn(bold, format.bold, u"<b>"_s, u"</b>"_s);
            turn(underline, format.underline, u"<u>"_s, u"</u>"_s);
            turn(italic, format.italic, u"<i>"_s, u"</i>"_s);
            turn(strikethrough, format.strikethrough, u"<s>"_s, u"</s>"_s);
            if (fontName != format.fontName)
                html += u"<font face=\"%1\">"_s.arg(format.fontName);
            fontName = format.fontName;
            if (colour != format.colour)
                html += u"<font color=#%1>"_s.arg(RGBtoHEX(format.colour));
            colour = format.colour;
            html += character;
        }
    }
    return html;
}

} // namespace

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
        QVERIFY2(times <= 12, qPrintable(QString::number(times)));
    }
};

ZEPHIRA_TEST(TstRichToHtml)

#include "tst_richtohtml.moc"
