// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/colourtext.h"
#include "support/testregistry.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The colors in a line of text.
class TstColourText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void found_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArrayList>("expected");
        const auto row = [](const char *name, const QByteArray &line, const QByteArrayList &expected) {
            QTest::newRow(name) << line << expected;
        };
        row("style", "  color: #fff; background:red", {"#fff", "red"});
        row("all notations",
            "border: #abc #abcd #aabbcc #aabbccdd rgb(1,2,3) rgba(1, 2, 3, .5) hsl(1 2% 3%) HSLA(1,2%,3%,50%)",
            {"#abc", "#abcd", "#aabbcc", "#aabbccdd", "rgb(1,2,3)", "rgba(1, 2, 3, .5)", "hsl(1 2% 3%)",
             "HSLA(1,2%,3%,50%)"});
        row("attributes", "<body bgcolor=\"#FF8800\" text=black link='blue'>red", {"#FF8800", "black", "blue"});
        row("in style", "<p style=\"margin:0;color:red\" class=\"blue\">", {"red"});
        row("in a rule", "p.red { color : navy } #fed { color: #fed }", {"navy", "#fed"});
        row("in one line", "a:hover { color: red } b { background: url(#abc) teal }", {"red", "teal"});
        row("gradient", "background: linear-gradient(to right, red 10%, #00f)", {"red", "#00f"});
        row("variable", "--main: #123456; $accent: tan;", {"#123456", "tan"});
        row("script", "e.style.color = \"#fff\"; x = '#abc'", {"#fff"});
        row("selector", "#abc, .color:hover #fff {", {});
        row("anchor", "<a href=\"#abc\" title=\"color\">red</a>", {});
        row("other properties", "font-family: Tan; content: red; width: #fff", {});
        row("wrong lengths", "color: #ff #fffff #fffffff #ggg #", {});
        row("wrong functions", "color: rgb(1,2) rgb(1,2,3 url(red) blue", {"blue"});
        row("names in names", "color: reddish dark-red red-dark", {});
        row("without color", "color: transparent inherit none", {});
        row("prose", "Note: it is red; the color is blue.", {});
        row("nothing", "", {});
        row("a huge line", "color: #fff;" + QByteArray(5000, ' '), {});
    }

    void found()
    {
        QFETCH(QByteArray, line);
        QByteArrayList found;
        for (const ColourText &each : coloursIn(line))
            found.append(line.sliced(each.start, each.end - each.start));
        QTEST(found, "expected");
    }

    void values_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("short") << QByteArray("#f80") << QColor(255, 136, 0);
        QTest::newRow("short, opacity") << QByteArray("#F808") << QColor(255, 136, 0, 136);
        QTest::newRow("long") << QByteArray("#0a0B0c") << QColor(10, 11, 12);
        QTest::newRow("long, opacity") << QByteArray("#0a0b0c80") << QColor(10, 11, 12, 128);
        QTest::newRow("rgb") << QByteArray("rgb(10, 20, 300)") << QColor(10, 20, 255);
        QTest::newRow("shares") << QByteArray("rgb(100% 0% 20% / 1)") << QColor(255, 0, 51);
        QTest::newRow("name") << QByteArray("DarkOrange") << QColor(255, 140, 0);
    }

    void values()
    {
        QFETCH(QByteArray, text);
        QFETCH(QColor, expected);
        const std::optional<QColor> colour = colourOf(text);
        QVERIFY(colour);
        QCOMPARE(colour->rgba(), expected.rgba());
    }

    void hsl()
    {
        QCOMPARE(colourOf("hsl(120, 100%, 50%)")->rgb(), QColor(0, 255, 0).rgb());
        QCOMPARE(colourOf("hsl(-240deg 100% 50%)")->rgb(), QColor(0, 255, 0).rgb());
        QCOMPARE(colourOf("hsla(0, 0%, 100%, 0.5)")->rgb(), QColor(255, 255, 255).rgb());
        QCOMPARE(colourOf("hsla(0, 0%, 100%, 0.5)")->alpha(), 128);
    }

    void written_data()
    {
        QTest::addColumn<QByteArray>("old");
        QTest::addColumn<QColor>("colour");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char *name, const QByteArray &old, const QColor &colour, const QByteArray &expected) {
            QTest::newRow(name) << old << colour << expected;
        };
        const QColor orange(255, 136, 0);
        const QColor other(1, 35, 171);
        row("short", "#abc", orange, "#f80");
        row("short, upper", "#ABC", orange, "#F80");
        row("short gets long", "#abc", other, "#0123ab");
        row("short, opacity", "#abc8", orange, "#f808");
        row("short, opacity, gets long", "#abc8", other, "#0123ab88");
        row("long", "#000000", orange, "#ff8800");
        row("long, upper", "#AAbbcc", other, "#0123AB");
        row("long, opacity", "#aabbcc80", other, "#0123ab80");
        row("rgb", "rgb( 9,8 , 7 )", other, "rgb( 1,35 , 171 )");
        row("rgba", "RGBA(9, 8, 7, .25)", other, "RGBA(1, 35, 171, .25)");
        row("blanks", "rgb(9 8 7 / 50%)", other, "rgb(1 35 171 / 50%)");
        row("shares", "rgb(10%, 20%, 30%)", QColor(255, 0, 51), "rgb(100%, 0%, 20%)");
        row("hsl", "hsl(10, 20%, 30%)", QColor(0, 255, 0), "hsl(120, 100%, 50%)");
        row("hsla", "hsla(10 20% 30% / 0.4)", QColor(0, 0, 255), "hsla(240 100% 50% / 0.4)");
        row("gray has no hue", "hsl(10, 20%, 30%)", QColor(255, 255, 255), "hsl(0, 0%, 100%)");
        row("name to name", "Red", QColor(0, 0, 128), "navy");
        row("name to digits", "red", other, "#0123ab");
    }

    void written()
    {
        QFETCH(QByteArray, old);
        QFETCH(QColor, colour);
        QTEST(rewritten(old, colour), "expected");
    }

    /// Any line gives places inside of it, and what is found can be written anew and found again.
    void anyLine()
    {
        QRandomGenerator random(5);
        const QByteArrayList pieces{"color:", "#fff", "rgb(", "1,", "2%", ")",    "red",  "{", "}",
                                    ";",      "=",    "\"",   "-",  ".",  "hsl(", "\xd7", " ", "#"};
        for (int round = 0; round < 2000; ++round) {
            QByteArray line;
            for (int i = 0; i < 12; ++i)
                line += pieces[random.bounded(static_cast<int>(pieces.size()))];
            for (const ColourText &each : coloursIn(line)) {
                QVERIFY(each.start >= 0 && each.start < each.end && each.end <= line.size());
                const QByteArray text = rewritten(line.sliced(each.start, each.end - each.start), QColor(1, 35, 171));
                QVERIFY2(colourOf(text), text.constData());
            }
        }
    }
};

ZEPHIRA_TEST(TstColourText)

#include "tst_colourtext.moc"
