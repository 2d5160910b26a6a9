// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/foundmatch.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

FoundMatches find(const SearchRequest &request, const QString &text, const QString &replacement = {},
                  qsizetype atMost = 1000)
{
    const Result<PatternSearch> search = PatternSearch::make(request);
    return search ? findMatches(search.value(), text, replacement, atMost, [] { return true; }) : FoundMatches();
}

} // namespace

class TstFoundMatch final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesAndLines()
    {
        const FoundMatches found = find({.pattern = u"b"_s}, u"ab\n\n  \U0001F600b\tb \nc"_s);
        const std::vector<FoundMatch> expected{{0, 1, 0, 2, u"ab"_s, 1, 1},
                                               {2, 4, 2, 5, u"\U0001F600b b"_s, 2, 1},
                                               {2, 6, 2, 7, u"\U0001F600b b"_s, 4, 1}};
        QCOMPARE(found.matches, expected);
        QVERIFY(!found.isCut && !found.gaveUp);
    }

    void overLineEnds()
    {
        const FoundMatches found = find({.pattern = u"b\\r\\nc"_s, .regularExpression = true}, u"ab\ncd\nab\ncd"_s);
        const std::vector<FoundMatch> expected{{0, 1, 1, 1, u"ab"_s, 1, 1}, {2, 1, 3, 1, u"ab"_s, 1, 1}};
        QCOMPARE(found.matches, expected);
    }

    void emptyMatches()
    {
        const FoundMatches found = find({.pattern = u"^"_s, .regularExpression = true}, u"a\n\nb"_s, u"> "_s);
        QCOMPARE(found.matches.size(), 3U);
        QCOMPARE(found.matches[1], (FoundMatch{1, 0, 1, 0, QString(), 0, 0, u"> "_s}));
        QCOMPARE(replacedLine(found.matches[2]).text, u"> b"_s);
    }

    void longLinesAreCutAround()
    {
        const QString line = QString(500, u'x') + u"needle"_s + QString(500, u'y');
        const FoundMatch match = find({.pattern = u"needle"_s}, line).matches.at(0);
        QCOMPARE(match.column, 500);
        QCOMPARE(match.text, u"\u2026"_s + QString(60, u'x') + u"needle"_s + QString(174, u'y') + u"\u2026"_s);
        QCOMPARE(match.text.mid(match.start, match.length), u"needle"_s);
    }

    void aLongMatchIsCut()
    {
        const FoundMatch match =
            find({.pattern = u"x+"_s, .regularExpression = true}, QString(1000, u'x')).matches.at(0);
        QCOMPARE(match.endColumn, 1000);
        QCOMPARE(match.text, QString(240, u'x') + u"\u2026"_s);
        QCOMPARE(match.length, 240);
    }

    void surrogatesStayTogether()
    {
        const QString line = u"\U0001F600"_s.repeated(100) + u"x"_s + u"\U0001F600"_s.repeated(200);
        for (const QString &before : {QString(), u"a"_s}) {
            const FoundMatch match = find({.pattern = u"x"_s}, before + line).matches.at(0);
            QVERIFY(match.text.isValidUtf16());
            QCOMPARE(match.text.mid(match.start, match.length), u"x"_s);
        }
    }

    void theLimit()
    {
        const FoundMatches found = find({.pattern = u"a"_s}, u"aaa"_s, {}, 2);
        QCOMPARE(found.matches.size(), 2U);
        QVERIFY(found.isCut);
        QVERIFY(!find({.pattern = u"a"_s}, u"aa"_s, {}, 2).isCut);
    }

    void stops()
    {
        const Result<PatternSearch> search = PatternSearch::make({.pattern = u"a"_s});
        QVERIFY(search);
        QCOMPARE(findMatches(search.value(), u"aaa"_s, {}, 9, [] { return false; }).matches.size(), 1U);
    }

    /// An expression that tries everything ends within a bounded time and says so.
    void givesUp()
    {
        const QString text = u"a a\n"_s + QString(40, u'a') + u"b"_s;
        const FoundMatches found = find({.pattern = u"(?:a+a+)+c|a a"_s, .regularExpression = true}, text);
        QVERIFY(found.gaveUp);
        QCOMPARE(found.matches.size(), 1U);
    }

    void replacements()
    {
        const FoundMatch match =
            find({.pattern = u"(\\w+)=(\\w+)"_s, .regularExpression = true}, u"  a b=c d"_s, u"$2\\n\\1"_s)
                .matches.at(0);
        QCOMPARE(match.replacement, u"c\nb"_s);
        const ReplacedLine line = replacedLine(match);
        QCOMPARE(line.text, u"a c\u21B5b d"_s);
        QCOMPARE(line.start, 2);
        QCOMPARE(line.length, 3);
    }

    void lineFeeds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("plain");
        QTest::newRow("none") << u"ab"_s << u"ab"_s;
        QTest::newRow("all kinds") << u"a\r\nb\rc\nd\r\r\n\r"_s << u"a\nb\nc\nd\n\n\n"_s;
        QTest::newRow("empty") << QString() << QString();
    }

    void lineFeeds()
    {
        QFETCH(QString, text);
        QTEST(withLineFeeds(text), "plain");
    }
};

ZEPHIRA_TEST(TstFoundMatch)

} // namespace zephira

#include "tst_foundmatch.moc"
