// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/patternsearch.h"
#include "core/textparts.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

PatternSearch searchFor(const QString &pattern, bool regularExpression, bool matchCase = false, bool wholeWord = false)
{
    Result<PatternSearch> search = PatternSearch::make({pattern, matchCase, wholeWord, regularExpression});
    return std::move(search).value();
}

} // namespace

class TstPatternSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void caseChanges_data()
    {
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<QString>("expanded");
        // clang-format off: a row a line
        QTest::newRow("capitals") << u"\\U$1 x"_s << u"\u00C4RGER X"_s;
        QTest::newRow("up to the end of the change") << u"\\U$1\\E x"_s << u"\u00C4RGER x"_s;
        QTest::newRow("small letters") << u"\\L\\2 X"_s << u"stra\u00DFe x"_s;
        QTest::newRow("one capital") << u"\\u$1 x"_s << u"\u00C4rger x"_s;
        QTest::newRow("one small letter") << u"\\l$2"_s << u"sTRA\u00DFE"_s;
        QTest::newRow("a capital, then small ones") << u"\\u\\L$2"_s << u"Stra\u00DFe"_s;
        QTest::newRow("the other way round") << u"\\L\\u$2"_s << u"Stra\u00DFe"_s;
        QTest::newRow("an empty group takes no letter") << u"\\u$3$1"_s << u"\u00C4rger"_s;
        QTest::newRow("typed text") << u"\\ux\\Uyz\\Ea"_s << u"XYZa"_s;
        QTest::newRow("a letter of two code units") << u"\\u\U00010428\U00010428"_s << u"\U00010400\U00010428"_s;
        QTest::newRow("an escaped backslash") << u"\\\\U$1"_s << u"\\U\u00E4rger"_s;
        QTest::newRow("nothing behind it") << u"a\\U"_s << u"a"_s;
        QTest::newRow("others are literal") << u"\\q\\U\\q"_s << u"\\q\\Q"_s;
        // clang-format on
    }

    void caseChanges()
    {
        QFETCH(QString, replacement);
        const QString text = u"\u00E4rger-STRA\u00DFE"_s;
        const auto match = searchFor(u"(\\w+)-(\\w+)(x?)"_s, true).next(text, 0, text.size(), replacement);
        QVERIFY(match.has_value());
        QTEST(match->replacement, "expanded");
        // Only regular expressions have escapes.
        QCOMPARE(searchFor(text, false).next(text, 0, text.size(), replacement)->replacement, replacement);
    }

    void aNulStandsForItself()
    {
        const QString text = QString(QChar(u'\0')) + u"x"_s + QChar(u'\0') + u"07"_s;
        const QString pattern = QString(QChar(u'\0')) + u"07"_s;
        const std::optional<TextMatch> match = searchFor(pattern, false).next(text, 0, text.size(), {});
        QVERIFY(match.has_value());
        QCOMPARE(match->start, 2);
        QCOMPARE(match->end, 5);
    }

    void passesMatchesOneByOne()
    {
        const QString text = u"a1 b2 c3"_s;
        const PatternSearch search = searchFor(u"\\w(\\d)"_s, true);
        std::vector<TextMatch> matches;
        const auto twoAtMost = [&](TextMatch match) {
            matches.push_back(std::move(match));
            return matches.size() < 2;
        };
        QVERIFY(search.each(text, 1, text.size(), u"$1"_s, twoAtMost));
        QCOMPARE(matches, (std::vector<TextMatch>{{3, 5, u"2"_s}, {6, 8, u"3"_s}}));
        matches.clear();
        QVERIFY(search.each(text, 0, 4, u"$1"_s, twoAtMost));
        QCOMPARE(matches.size(), 1U);
        const QString hopeless = QString(40, u'a') + u"b"_s;
        QVERIFY(!searchFor(u"(?:a+a+)+[cd]"_s, true).each(hopeless, 0, hopeless.size(), {}, twoAtMost));
    }

    void allMatches_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("flags"); // r regular expression, c match case, w whole word
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<QString>("result"); // the text with all matches replaced
        QTest::newRow("plain") << u"one One"_s << u"one"_s << u""_s << u"2"_s << u"2 2"_s;
        QTest::newRow("case") << u"one One"_s << u"one"_s << u"c"_s << u"2"_s << u"2 One"_s;
        QTest::newRow("word") << u"one onely one_x (one)"_s << u"one"_s << u"w"_s << u"2"_s << u"2 onely one_x (2)"_s;
        QTest::newRow("word of other letters") << u"über überall"_s << u"über"_s << u"w"_s << u"x"_s << u"x überall"_s;
        QTest::newRow("case of other letters") << u"ÄÖ äö"_s << u"äö"_s << u""_s << u"x"_s << u"x x"_s;
        QTest::newRow("signs are signs") << u"a.b a+b"_s << u"a.b"_s << u""_s << u"\\1"_s << u"\\1 a+b"_s;
        QTest::newRow("expression") << u"a1 b22"_s << u"([a-z])(\\d+)"_s << u"r"_s << u"\\2\\1"_s << u"1a 22b"_s;
        QTest::newRow("beginnings of lines") << u"a\nb"_s << u"^"_s << u"r"_s << u"> "_s << u"> a\n> b"_s;
        QTest::newRow("ends of lines") << u"a\nb"_s << u"$"_s << u"r"_s << u";"_s << u"a;\nb;"_s;
        QTest::newRow("empty matches") << u"axb"_s << u"x*"_s << u"r"_s << u"-"_s << u"-a--b-"_s;
        QTest::newRow("over lines") << u"a\nb\nc"_s << u"a\\nb"_s << u"r"_s << u"\\n\\t\\\\"_s << u"\n\t\\\nc"_s;
        QTest::newRow("a line end as Windows writes it")
            << u"a\nb\nc"_s << u"a\\r\\nb"_s << u"r"_s << u"x"_s << u"x\nc"_s;
        QTest::newRow("a line end of either kind") << u"a\nb"_s << u"\\r?\\n"_s << u"r"_s << u"|"_s << u"a|b"_s;
        QTest::newRow("a set of line ends") << u"a\nb"_s << u"[\\r\\n]+"_s << u"r"_s << u"|"_s << u"a|b"_s;
        QTest::newRow("a backslash and an r") << u"a\\r"_s << u"\\\\r"_s << u"r"_s << u"x"_s << u"ax"_s;
        QTest::newRow("a line end put in") << u"a b"_s << u" "_s << u"r"_s << u"\\r\\n"_s << u"a\nb"_s;
        QTest::newRow("groups by dollar signs")
            << u"a1 b22"_s << u"([a-z])(\\d+)"_s << u"r"_s << u"$2$1"_s << u"1a 22b"_s;
        QTest::newRow("dollar signs") << u"ab"_s << u"b"_s << u"r"_s << u"$x\\$1$"_s << u"a$x$1$"_s;
        QTest::newRow("no expression, no groups") << u"ab"_s << u"b"_s << u""_s << u"$1"_s << u"a$1"_s;
        QTest::newRow("alternatives as words")
            << u"cat cats dog"_s << u"cat|dog"_s << u"rw"_s << u"x"_s << u"x cats x"_s;
        QTest::newRow("whole match") << u"ab"_s << u"b"_s << u"r"_s << u"[\\0]"_s << u"a[b]"_s;
        QTest::newRow("surrogates") << u"\U0001f600\U0001f601"_s << u"."_s << u"r"_s << u"x"_s << u"xx"_s;
        QTest::newRow("nothing") << u"abc"_s << u"x"_s << u""_s << u"y"_s << u"abc"_s;
    }
    void allMatches()
    {
        QFETCH(QString, text);
        QFETCH(QString, pattern);
        QFETCH(QString, flags);
        QFETCH(QString, replacement);
        QFETCH(QString, result);
        const PatternSearch search =
            searchFor(pattern, flags.contains(u'r'), flags.contains(u'c'), flags.contains(u'w'));
        const auto matches = search.all(text, 0, text.size(), replacement);
        QString replaced = text;
        for (std::size_t i = matches.size(); i-- > 0;)
            replaced.replace(matches[i].start, matches[i].end - matches[i].start, matches[i].replacement);
        QCOMPARE(replaced, result);
        // Searching forward and backward finds the same matches.
        std::vector<TextMatch> forward;
        for (qsizetype from = 0; from <= text.size();) {
            const auto match = search.next(text, from, text.size(), replacement);
            if (!match)
                break;
            if (forward.empty() || match->start != match->end || match->end != forward.back().end || match->start > from
                || forward.back().start == forward.back().end)
                forward.push_back(*match);
            from = match->end > match->start ? match->end : behindCharacter(text, match->end);
        }
        QVERIFY(forward.size() >= matches.size() || flags.contains(u'r'));
        if (!matches.empty())
            QCOMPARE(search.previous(text, text.size(), 0, replacement), matches.back());
    }

    void previousLooksAsFarAsItMust()
    {
        const QString text = u"needle\n"_s + QString(100'000, u'x') + u"\nhay\n"_s + QString(50'000, u'\n');
        const PatternSearch search = searchFor(u"needle"_s, false);
        QCOMPARE(search.previous(text, text.size(), 0, {}), (TextMatch{0, 6}));
        QCOMPARE(search.previous(text, text.size(), 1, {}), std::nullopt);
        QCOMPARE(search.previous(text, 5, 0, {}), std::nullopt);
    }

    void limits()
    {
        const PatternSearch search = searchFor(u"ab"_s, false);
        const QString text = u"ab ab ab"_s;
        QCOMPARE(search.next(text, 1, 8, {}), (TextMatch{3, 5}));
        QCOMPARE(search.next(text, 1, 4, {}), std::nullopt);
        QCOMPARE(search.all(text, 1, 7, {}), (std::vector<TextMatch>{{3, 5}}));
    }

    void wrongExpressionsSayWhere_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("parenthesis")
            << u"a(b"_s << u"The regular expression is invalid at character 4: missing closing parenthesis."_s;
        QTest::newRow("star")
            << u"*"_s
            << u"The regular expression is invalid at character 1: quantifier does not follow a repeatable item."_s;
    }
    void wrongExpressionsSayWhere()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, sentence);
        for (const bool wholeWord : {false, true}) {
            const auto search = PatternSearch::make({pattern, false, wholeWord, true});
            QVERIFY(!search);
            QCOMPARE(search.error().code, Error::Code::Malformed);
            QCOMPARE(search.error().sentence, sentence);
        }
        QVERIFY(PatternSearch::make({pattern, false, false, false}).ok());
    }
};

ZEPHIRA_TEST(TstPatternSearch)

} // namespace zephira

#include "tst_patternsearch.moc"
