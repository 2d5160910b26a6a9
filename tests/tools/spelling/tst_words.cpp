// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "support/textgenerator.h"
#include "tools/spelling/plainwords.h"
#include "tools/spelling/words.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

QStringList wordsOf(const QString &text)
{
    QStringList words;
    for (TextPlace word = nextWord(text, 0); word.length > 0; word = nextWord(text, word.end()))
        words.append(text.sliced(word.start, word.length));
    return words;
}

/// The sentence around the first "here", with the word in brackets.
QString sentenceIn(const QString &text)
{
    const Excerpt excerpt = sentenceAround(text, {text.indexOf(u"here"_s), 4});
    return QString(excerpt.text).insert(excerpt.word.end(), u']').insert(excerpt.word.start, u'[');
}

} // namespace

class TstWords final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("words");
        const auto row = [](const char *name, const QString &text, const QStringList &words) {
            QTest::newRow(name) << text << words;
        };
        row("nothing", {}, {});
        row("no words", u" 12 + 3.5 <!-- --> "_s, {});
        row("prose", u"One word, two words."_s, {u"One"_s, u"word"_s, u"two"_s, u"words"_s});
        row("markup", u"<td align=\"left\">a&nbsp;b</td>"_s,
            {u"td"_s, u"align"_s, u"left"_s, u"a"_s, u"nbsp"_s, u"b"_s, u"td"_s});
        row("apostrophes", u"don't 'quoted' dogs' it’s ''x''"_s,
            {u"don't"_s, u"quoted"_s, u"dogs"_s, u"it’s"_s, u"x"_s});
        row("two apostrophes divide", u"a''b"_s, {u"a"_s, u"b"_s});
        row("an apostrophe before a digit divides", u"rock'5"_s, {u"rock"_s});
        row("digits behind letters", u"h1 x27 utf8"_s, {u"h1"_s, u"x27"_s, u"utf8"_s});
        row("units", u"10px 1.5em 3D"_s, {u"px"_s, u"em"_s, u"D"_s});
        row("ordinals", u"1st 2nd 3RD 4th 21st"_s, {u"1st"_s, u"2nd"_s, u"3RD"_s, u"4th"_s, u"21st"_s});
        row("no ordinals", u"1stop 2nd1 0th's"_s, {u"stop"_s, u"nd1"_s, u"th's"_s});
        row("underscores and hyphens divide", u"my_name e-mail"_s, {u"my"_s, u"name"_s, u"e"_s, u"mail"_s});
        row("a colour", u"#ff00cc"_s, {u"ff00cc"_s});
        row("other letters", u"größer naïve слово"_s, {u"größer"_s, u"naïve"_s, u"слово"_s});
        row("an accent of its own", u"e\u0301lan"_s, {u"e\u0301lan"_s});
        row("letters outside the first plane", u"\U00010400\U00010428 \U0001F600x"_s,
            {u"\U00010400\U00010428"_s, u"x"_s});
        row("half a pair", QString(QChar(0xD801)) + u"x"_s, {u"x"_s});
        row("at the end", u"an apostrophe'"_s, {u"an"_s, u"apostrophe"_s});
    }

    void words()
    {
        QFETCH(QString, text);
        QTEST(wordsOf(text), "words");
    }

    void fromAnyPlace()
    {
        QCOMPARE(nextWord(u"one two", 0), (TextPlace{0, 3}));
        QCOMPARE(nextWord(u"one two", 3), (TextPlace{4, 3}));
        QCOMPARE(nextWord(u"one two", 7), TextPlace());
        QCOMPARE(nextWord({}, 0), TextPlace());
    }

    void likeThePattern()
    {
        QRandomGenerator random(2024);
        const QStringList pieces{u"a"_s,      u"Word"_s,       u"'"_s,    u"’"_s, u"1"_s,          u"23"_s, u"st"_s,
                                 u"ND"_s,     u"th"_s,         u" "_s,    u"<"_s, u"-"_s,          u"_"_s,  u"é"_s,
                                 u"\u0301"_s, u"\U00010400"_s, u"\r\n"_s, u"&"_s, u"\U0001F600"_s, u"٣"_s,  u"語"_s};
        for (int round = 0; round < 20000; ++round) {
            const QString text = generatedText(random, pieces, 12);
            QCOMPARE(wordsOf(text), plainWords(text));
        }
    }

    void sentences_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const QString &text, const QString &shown) {
            QTest::newRow(name) << text << shown;
        };
        row("all of it", u"here"_s, u"[here]"_s);
        row("between two", u"First. It is here, or not! Last?"_s, u"It is [here], or not!"_s);
        row("markup belongs to it", u"One. <p>It is <b>here</b>.</p>"_s, u"<p>It is <b>[here]</b>.</p>"_s);
        row("a point in a name doesn't end it", u"go to www.here.org now"_s, u"go to www.[here].org now"_s);
        row("white space", u"a\t\tb\r\nhere  \r\n c"_s, u"a b [here] c"_s);
        row("an empty line", u"one\r\n\r\ntwo here\r\nthree\r\n \r\nfour"_s, u"two [here] three "_s);
        row("an empty line of LF", u"one\n\ntwo here\n\nfour"_s, u"two [here] "_s);
        row("an empty line of CR", u"one\r\rtwo here\r\rfour"_s, u"two [here] "_s);
        row("long", QString(400, u'-') + u"here"_s + QString(400, u'-'),
            u"…"_s + QString(160, u'-') + u"[here]"_s + QString(160, u'-') + u"…"_s);
        row("cut between pairs", QString::fromUcs4(U"\U0001F600\U0001F600").repeated(100) + u"x"_s + u"here"_s,
            u"…"_s + QString::fromUcs4(U"\U0001F600").repeated(80) + u"x[here]"_s);
        row("controls", u"a\u0001here"_s, u"a [here]"_s);
    }

    void sentences()
    {
        QFETCH(QString, text);
        QTEST(sentenceIn(text), "shown");
    }

    void aLongWordIsCutInItsMiddle()
    {
        const QString word = QString(500, u'x') + QString(500, u'y');
        const Excerpt excerpt = sentenceAround(u"a "_s + word + u" b."_s, {2, 1000});
        QCOMPARE(excerpt.text, u"a "_s + QString(30, u'x') + u'…' + QString(30, u'y') + u" b."_s);
        QCOMPARE(excerpt.word, (TextPlace{2, 61}));
    }

    void tenTimesTheText()
    {
        const auto text = [](qsizetype count) { return u"<td width=10>It's the 2nd word</td>\r\n"_s.repeated(count); };
        const double times = timesForTenTimes(text, 10'000, [](const QString &page) { wordsOf(page); });
        QVERIFY2(times <= mostOfLinear, qPrintable(QString::number(times)));
    }
};

ZEPHIRA_TEST(TstWords)

#include "tst_words.moc"
