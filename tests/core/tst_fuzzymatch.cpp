// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/fuzzymatch.h"
#include "support/pace.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

std::optional<FuzzyMatch> match(const QString &typed, const QString &text)
{
    return FuzzyPattern(typed).match(FuzzyText(text));
}

/// The text with brackets around each character that matched; a null string if it doesn't match.
QString marked(const QString &typed, const QString &text)
{
    const std::optional<FuzzyMatch> found = match(typed, text);
    if (!found)
        return {};
    QString result;
    for (qsizetype at = 0; at < text.size(); ++at)
        result += found->places.contains(at) ? u'[' + text.sliced(at, 1) + u']' : text.sliced(at, 1);
    return result.replace(u"]["_s, QString());
}

/// The texts that match, the best first; equally good ones in their order.
QStringList ranked(const QString &typed, const QStringList &texts)
{
    std::vector<std::pair<int, QString>> found;
    for (const QString &text : texts) {
        if (const std::optional<FuzzyMatch> each = match(typed, text))
            found.emplace_back(each->score, text);
    }
    std::ranges::stable_sort(found, std::ranges::greater(), [](const auto &each) { return each.first; });
    QStringList result;
    for (const auto &each : found)
        result.append(each.second);
    return result;
}

} // namespace

/// Searching for what was typed only in part.
class TstFuzzyMatch final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void places_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &typed, const QString &text, const QString &expected) {
            QTest::newRow(name) << typed << text << expected;
        };
        row("whole", u"Print"_s, u"Print"_s, u"[Print]"_s);
        row("case", u"PRINT"_s, u"print"_s, u"[print]"_s);
        row("start", u"pr"_s, u"Print"_s, u"[Pr]int"_s);
        row("starts of words", u"tw"_s, u"Table Wizard"_s, u"[T]able [W]izard"_s);
        row("words before letters", u"sa"_s, u"Classes Save As"_s, u"Classes [Sa]ve As"_s);
        row("one run before two", u"le"_s, u"Last file left"_s, u"Last file [le]ft"_s);
        row("with gaps", u"dcmt"_s, u"Document"_s, u"[D]o[c]u[m]en[t]"_s);
        row("part of a word", u"gdb"_s, u"getDataBase"_s, u"[g]et[D]ata[B]ase"_s);
        row("behind a sign", u"nb"_s, u"#nav-bar"_s, u"#[n]av-[b]ar"_s);
        row("sign", u"<h2"_s, u"Insert <h2></h2>"_s, u"Insert [<h2]></h2>"_s);
        row("two words", u"wiz tab"_s, u"Table Wizard"_s, u"[Tab]le [Wiz]ard"_s);
        row("blanks around", u"  tab  "_s, u"Table"_s, u"[Tab]le"_s);
        row("accents", u"uber"_s, u"\u00dcber uns"_s, u"[\u00dcber] uns"_s);
        row("typed accents", u"\u00fcber"_s, u"Uber"_s, u"[Uber]"_s);
        row("Hebrew", u"\u05e9\u05dc"_s, u"\u05e9\u05dc\u05d5\u05dd"_s, u"[\u05e9\u05dc]\u05d5\u05dd"_s);
        row("nothing typed", QString(), u"Table"_s, u"Table"_s);
        row("only blanks", u"  "_s, u"Table"_s, u"Table"_s);
        row("other order", u"wt"_s, u"Table Wizard"_s, QString());
        row("one letter too many", u"tables"_s, u"Table"_s, QString());
        row("one word of two", u"table x"_s, u"Table"_s, QString());
        row("in nothing", u"a"_s, u""_s, QString());
    }

    void places()
    {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        QFETCH(QString, expected);
        const QString result = marked(typed, text);
        QCOMPARE(result, expected);
        QCOMPARE(result.isNull(), expected.isNull());
    }

    void rank_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("starts of words") << u"tw"_s << QStringList{u"Table Wizard"_s, u"Tower"_s, u"Network"_s};
        QTest::newRow("start of the text")
            << u"save"_s << QStringList{u"Save Document"_s, u"Document, Save"_s, u"Unsaved"_s, u"Stable vendor"_s};
        QTest::newRow("run") << u"link"_s
                             << QStringList{u"Link Wizard"_s, u"Insert Link"_s, u"Blinking"_s, u"Lines in folks"_s};
        QTest::newRow("shorter") << u"font"_s << QStringList{u"Font"_s, u"Font Size of the Selected Text"_s};
        QTest::newRow("part") << u"bar"_s << QStringList{u"navBarn"_s, u"#nav-bar"_s, u"#navcrabar"_s};
        QTest::newRow("closer") << u"ad"_s << QStringList{u"xxa-d"_s, u"xxaxxxd"_s, u"xxaxxxxxxd"_s};
    }

    void rank()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, expected);
        QStringList texts = expected;
        std::ranges::reverse(texts);
        QCOMPARE(ranked(typed, texts), expected);
    }

    /// The best match is found, not the first: against all ways to choose the characters, on small texts.
    void noChoiceIsBetter()
    {
        const QString text = u"ab ba aBab-ab b"_s;
        const FuzzyText whole(text);
        for (const QString &word : {u"ab"_s, u"ba"_s, u"abb"_s, u"bab"_s, u"aab"_s, u"bb"_s}) {
            const std::optional<FuzzyMatch> best = matchWord(word, whole);
            QVERIFY(best);
            QCOMPARE(best->places.size(), word.size());
            QVERIFY(std::ranges::is_sorted(best->places));
            for (qsizetype i = 0; i < word.size(); ++i)
                QCOMPARE(text[best->places[i]].toLower(), word[i]);
            // Whatever is cut off the text, no part of it has a better match than the whole, but for the bonus of a start.
            for (qsizetype from = 1; from < text.size(); ++from) {
                const FuzzyText part(QString(from, u'x') + text.sliced(from));
                if (const std::optional<FuzzyMatch> less = matchWord(word, part))
                    QVERIFY2(less->score <= best->score + 40, qPrintable(word));
            }
        }
    }

    void longTextsAreCut()
    {
        const QString text = QString(300, u'x') + u'y';
        QVERIFY(!match(u"y"_s, text));
        QVERIFY(match(QString(40, u'x'), text));
        QVERIFY(!match(QString(65, u'x'), text));
    }

    /// Halves of characters and other oddities harm nothing.
    void anyText()
    {
        const QString lone(QChar(0xd83d));
        QVERIFY(match(lone, u"a"_s + lone + u"b"_s));
        QVERIFY(!match(lone, u"ab"_s));
        QCOMPARE(marked(u"\U0001F600"_s, u"a \U0001F600 b"_s), u"a [\U0001F600] b"_s);
        QVERIFY(match(QString(QChar(0)), u"a"_s + QChar(0)));
    }

    /// A list of 1,500 entries is searched within a key press.
    void keepsUp()
    {
        std::vector<FuzzyText> texts;
        for (int i = 0; i < 1500; ++i)
            texts.emplace_back(u"Format the Selected Text as a Heading of Size %1 or Smaller"_s.arg(i));
        qint64 least = std::numeric_limits<qint64>::max();
        for (int round = 0; round < 20; ++round) {
            QElapsedTimer timer;
            timer.start();
            qsizetype found = 0;
            for (const FuzzyText &text : texts)
                found += FuzzyPattern(u"fseles"_s).match(text).has_value();
            QCOMPARE(found, 1500);
            least = std::min(least, timer.nsecsElapsed());
        }
        qInfo("1,500 entries: %.2f ms", static_cast<double>(least) / 1e6);
        // Generous, since the machine may be busy and the build slow.
        QVERIFY(least < pace * 100'000'000);
    }
};

ZEPHIRA_TEST(TstFuzzyMatch)

#include "tst_fuzzymatch.moc"
