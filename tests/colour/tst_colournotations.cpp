// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/colournotations.h"
#include "support/testregistry.h"

#include <QRandomGenerator>
#include <QTest>

#include <map>
#include <set>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

using Box = std::pair<Notation, int>;

/// Boxes that report each change of their text, as those on the screen do.
struct EchoingBoxes final : ColourBoxes {
    std::map<Box, QString> texts{
        {{Notation::Hex, 0}, u"80"_s}, {{Notation::Hex, 1}, u"FF"_s}, {{Notation::Hex, 2}, u"FF"_s},
        {{Notation::Rgb, 0}, u"0"_s},  {{Notation::Rgb, 1}, u"0"_s},  {{Notation::Rgb, 2}, u"0"_s},
        {{Notation::Long, 0}, {}},
    };
    std::map<Notation, QString> results;
    std::set<Box> marked;
    quint32 colour = 0;
    /// How many changes took hold; an echo must not.
    int rounds = 0;
    ColourNotations notations{*this};

    EchoingBoxes()
    {
        for (int channel = 0; channel < 3; ++channel)
            notations.changed(Notation::Hex, channel);
        rounds = 0;
    }

    QString text(Notation notation, int channel) const override { return texts.at({notation, channel}); }
    void setText(Notation notation, int channel, const QString &text) override
    {
        if (std::exchange(texts[{notation, channel}], text) != text && notations.changed(notation, channel))
            ++rounds;
    }
    void setMarked(Notation notation, int channel, bool on) override
    {
        if (on)
            marked.insert({notation, channel});
        else
            marked.erase({notation, channel});
    }
    void setResult(Notation notation, const QString &text) override { results[notation] = text; }
    void showColour(quint32 shown) override { colour = shown; }

    /// All boxes and results on one line.
    QString state() const
    {
        QStringList parts;
        for (const auto &[box, text] : texts)
            parts.append(marked.contains(box) ? text + u'!' : text);
        for (const auto &[notation, text] : results)
            parts.append(text);
        return parts.join(u' ');
    }
};

/// What the state must be, told from the shown colour alone.
void verifyInStep(const EchoingBoxes &boxes)
{
    const Channels channels = channelsOf(boxes.colour);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(boxes.text(Notation::Hex, i).toUInt(nullptr, 16),
                 static_cast<uint>(channels.at(static_cast<std::size_t>(i))));
        QCOMPARE(boxes.text(Notation::Rgb, i).toUInt(), static_cast<uint>(channels.at(static_cast<std::size_t>(i))));
    }
    QCOMPARE(
        boxes.results.at(Notation::Hex),
        (u'#' + boxes.text(Notation::Hex, 0) + boxes.text(Notation::Hex, 1) + boxes.text(Notation::Hex, 2)).toUpper());
    QCOMPARE(boxes.results.at(Notation::Rgb),
             u"RGB("_s + boxes.text(Notation::Rgb, 0) + u',' + boxes.text(Notation::Rgb, 1) + u','
                 + boxes.text(Notation::Rgb, 2) + u')');
    QCOMPARE(boxes.results.at(Notation::Long), boxes.text(Notation::Long, 0));
    QCOMPARE(boxes.text(Notation::Long, 0).toLongLong() & 0xffffff, static_cast<qint64>(boxes.colour));
}

} // namespace

class TstColourNotations final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atLoad()
    {
        EchoingBoxes boxes;
        QCOMPARE(boxes.state(), u"80 FF FF 128 255 255 16777088 #80FFFF RGB(128,255,255) 16777088"_s);
        QCOMPARE(boxes.colour, 16777088U);
        QVERIFY(boxes.marked.empty());
    }

    void redIsTheLowestByte()
    {
        QCOMPARE(colourOf({1, 2, 3}), 0x030201U);
        QCOMPARE(channelsOf(0xff030201U), (Channels{1, 2, 3}));
    }

    void aChannel_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("hexadecimal");
        QTest::addColumn<int>("decimal");
        QTest::newRow("empty") << QString() << -1 << -1;
        QTest::newRow("one digit") << u"7"_s << 7 << 7;
        QTest::newRow("F") << u"F"_s << 15 << -1;
        QTest::newRow("f") << u"f"_s << 15 << -1;
        QTest::newRow("two digits") << u"99"_s << 153 << 99;
        QTest::newRow("largest decimal") << u"255"_s << -1 << 255;
        QTest::newRow("above") << u"256"_s << -1 << -1;
        QTest::newRow("four digits") << u"0001"_s << -1 << -1;
        QTest::newRow("letters") << u"GG"_s << -1 << -1;
        QTest::newRow("sign") << u"-1"_s << -1 << -1;
        QTest::newRow("blank") << u" 1"_s << -1 << -1;
        QTest::newRow("point") << u"1.5"_s << -1 << -1;
        QTest::newRow("digits of another script") << u"\u0661"_s << -1 << -1;
    }

    void aChannel()
    {
        QFETCH(QString, text);
        const auto hexadecimal = hexChannel(text);
        const auto decimal = decimalChannel(text);
        QTEST(hexadecimal ? int(*hexadecimal) : -1, "hexadecimal");
        QTEST(decimal ? int(*decimal) : -1, "decimal");
    }

    /// Changes are given as "h0=F r1=300 l=255".
    void aListOfChanges_data()
    {
        QTest::addColumn<QString>("changes");
        QTest::addColumn<QString>("state");
        const auto row = [](const char *name, const QString &changes, const QString &state) {
            QTest::newRow(name) << changes << state;
        };
        // clang-format off: a row a line
        row("hexadecimal", u"h0=10"_s, u"10 FF FF 16 255 255 16776976 #10FFFF RGB(16,255,255) 16776976"_s);
        row("lower case stays in the box", u"h1=a0"_s,
            u"80 a0 FF 128 160 255 16752768 #80A0FF RGB(128,160,255) 16752768"_s);
        row("one digit is valid", u"h0=F"_s, u"F FF FF 15 255 255 16776975 #FFFFF RGB(15,255,255) 16776975"_s);
        row("a leading zero stays", u"h0=0F"_s, u"0F FF FF 15 255 255 16776975 #0FFFFF RGB(15,255,255) 16776975"_s);
        row("decimal", u"r2=16"_s, u"80 FF 10 128 255 16 1113984 #80FF10 RGB(128,255,16) 1113984"_s);
        row("decimal makes one digit", u"r0=0 r1=9"_s, u"0 9 FF 0 9 255 16713984 #09FF RGB(0,9,255) 16713984"_s);
        row("decimal with zeros", u"r0=007"_s, u"7 FF FF 007 255 255 16776967 #7FFFF RGB(007,255,255) 16776967"_s);
        row("long", u"l=255"_s, u"FF 0 0 255 0 0 255 #FF00 RGB(255,0,0) 255"_s);
        row("long, red is low", u"l=16711680"_s, u"0 0 FF 0 0 255 16711680 #00FF RGB(0,0,255) 16711680"_s);
        row("long with a fourth byte", u"l=16777471"_s, u"FF 0 0 255 0 0 16777471 #FF00 RGB(255,0,0) 16777471"_s);
        row("negative long", u"l=-1"_s, u"FF FF FF 255 255 255 -1 #FFFFFF RGB(255,255,255) -1"_s);
        row("largest long", u"l=2147483647"_s,
            u"FF FF FF 255 255 255 2147483647 #FFFFFF RGB(255,255,255) 2147483647"_s);
        row("long too large", u"l=2147483648"_s,
            u"80 FF FF 128 255 255 2147483648! #80FFFF RGB(128,255,255) 16777088"_s);
        row("letters in the long box", u"l=12x"_s, u"80 FF FF 128 255 255 12x! #80FFFF RGB(128,255,255) 16777088"_s);
        row("not hexadecimal", u"h0=G1"_s, u"G1! FF FF 128 255 255 16777088 #80FFFF RGB(128,255,255) 16777088"_s);
        row("above 255", u"r0=256"_s, u"80 FF FF 256! 255 255 16777088 #80FFFF RGB(128,255,255) 16777088"_s);
        row("the largest of three digits", u"r2=999"_s,
            u"80 FF FF 128 255 999! 16777088 #80FFFF RGB(128,255,255) 16777088"_s);
        row("three too large", u"r0=999 r1=300 r2=256"_s,
            u"80 FF FF 999! 300! 256! 16777088 #80FFFF RGB(128,255,255) 16777088"_s);
        row("letters in a decimal box", u"r0=a"_s, u"80 FF FF a! 255 255 16777088 #80FFFF RGB(128,255,255) 16777088"_s);
        row("an empty box ends quietly", u"h0="_s, u" FF FF 128 255 255 16777088 #80FFFF RGB(128,255,255) 16777088"_s);
        row("an empty decimal box", u"r1="_s, u"80 FF FF 128  255 16777088 #80FFFF RGB(128,255,255) 16777088"_s);
        row("an empty long box", u"l="_s, u"80 FF FF 128 255 255  #80FFFF RGB(128,255,255) 16777088"_s);
        row("a mark goes", u"r0=256 r0=25"_s, u"19 FF FF 25 255 255 16776985 #19FFFF RGB(25,255,255) 16776985"_s);
        row("the other family takes a mark away", u"r0=256 h0=11"_s,
            u"11 FF FF 17 255 255 16776977 #11FFFF RGB(17,255,255) 16776977"_s);
        row("the long value takes marks away", u"r0=256 h1=XX l=0"_s, u"0 0 0 0 0 0 0 #000 RGB(0,0,0) 0"_s);
        row("a channel that waited for another", u"h0=XX h1=10 h0=80"_s,
            u"80 10 FF 128 16 255 16715904 #8010FF RGB(128,16,255) 16715904"_s);
        row("an empty box beside stays", u"r0= h1=10"_s,
            u"80 10 FF  16 255 16715904 #8010FF RGB(128,255,255) 16715904"_s);
        // clang-format on
    }

    void aListOfChanges()
    {
        QFETCH(QString, changes);
        EchoingBoxes boxes;
        const QStringList steps = changes.split(u' ');
        for (const QString &change : steps) {
            const QString box = change.section(u'=', 0, 0);
            const Notation notation = box.startsWith(u'h') ? Notation::Hex
                : box.startsWith(u'r')                     ? Notation::Rgb
                                                           : Notation::Long;
            boxes.setText(notation, box.mid(1).toInt(), change.section(u'=', 1));
        }
        QTEST(boxes.state(), "state");
    }

    void anEchoStartsNoRound()
    {
        EchoingBoxes boxes;
        boxes.setText(Notation::Long, 0, u"255"_s);
        QCOMPARE(boxes.rounds, 1);
        boxes.setText(Notation::Hex, 1, u"12"_s);
        QCOMPARE(boxes.rounds, 2);
        boxes.setText(Notation::Rgb, 2, u"300"_s);
        QCOMPARE(boxes.rounds, 2);
    }

    void randomChangesStayInStep()
    {
        QRandomGenerator random(8);
        EchoingBoxes boxes;
        for (int i = 0; i < 10'000; ++i) {
            const int value = random.bounded(256);
            const int channel = random.bounded(3);
            switch (random.bounded(5)) {
            case 0:
                boxes.setText(Notation::Hex, channel, QString::number(value, 16));
                QCOMPARE(static_cast<int>(channelsOf(boxes.colour).at(static_cast<std::size_t>(channel))), value);
                break;
            case 1:
                boxes.setText(Notation::Rgb, channel, QString::number(value));
                QCOMPARE(static_cast<int>(channelsOf(boxes.colour).at(static_cast<std::size_t>(channel))), value);
                break;
            case 2: {
                const quint32 colour = random.bounded(0x1000000U);
                boxes.setText(Notation::Long, 0, QString::number(colour));
                QCOMPARE(boxes.colour, colour);
                break;
            }
            case 3: {
                // A decimal that is too large marks its own box and changes nothing else.
                const QString expected = boxes.state();
                const QString before = boxes.text(Notation::Rgb, channel);
                const QString large = QString::number(random.bounded(256, 1000));
                const int rounds = boxes.rounds;
                boxes.setText(Notation::Rgb, channel, large);
                // The decimal boxes are the parts 3 to 5.
                QStringList parts = expected.split(u' ');
                parts[3 + channel] = large + u'!';
                QCOMPARE(boxes.state(), parts.join(u' '));
                QCOMPARE(boxes.rounds, rounds);
                boxes.setText(Notation::Rgb, channel, before);
                // The hexadecimal box follows, in upper case.
                QCOMPARE(boxes.state().toUpper(), expected.toUpper());
                break;
            }
            default: {
                // Nonsense marks its own box alone, and the value before comes back.
                static const QStringList nonsense{u"GG"_s, u"2 5"_s, u"x"_s, u"999999999999"_s};
                const auto notation = static_cast<Notation>(random.bounded(3));
                const int place = notation == Notation::Long ? 0 : channel;
                const QString before = boxes.text(notation, place);
                const quint32 colour = boxes.colour;
                boxes.setText(notation, place, nonsense[random.bounded(static_cast<int>(nonsense.size()))]);
                QCOMPARE(boxes.marked, (std::set<Box>{{notation, place}}));
                QCOMPARE(boxes.colour, colour);
                boxes.setText(notation, place, before);
            }
            }
            QVERIFY(boxes.marked.empty());
            verifyInStep(boxes);
            if (QTest::currentTestFailed())
                return;
        }
    }
};

ZEPHIRA_TEST(TstColourNotations)
#include "tst_colournotations.moc"
