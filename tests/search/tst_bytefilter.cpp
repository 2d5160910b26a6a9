// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/textfile.h"
#include "search/bytefilter.h"
#include "search/foundmatch.h"
#include "support/testregistry.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

class TstByteFilter final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void certainParts_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QStringList>("parts");
        // clang-format off: a row a line
        QTest::newRow("plain") << u"img"_s << QStringList{u"img"_s};
        QTest::newRow("escapes") << uR"(a\.b\s+c\d)"_s << QStringList{u"a.b"_s, u"c"_s};
        QTest::newRow("a repeated letter stays") << u"ab+c"_s << QStringList{u"ab"_s, u"c"_s};
        QTest::newRow("an optional letter goes") << u"<?img\\s.*src=?"_s << QStringList{u"img"_s, u"src"_s};
        QTest::newRow("a counted letter goes") << u"abc{0,2}de"_s << QStringList{u"ab"_s, u"de"_s};
        QTest::newRow("a brace that counts nothing") << u"ab{c}d"_s << QStringList{u"ab"_s, u"c}d"_s};
        QTest::newRow("alternatives behind such a brace") << u"ab{?c|z{2,3}"_s << QStringList();
        QTest::newRow("an optional pair of surrogates") << u"a\U0001F600?b"_s << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("classes") << u"a[]b]c[^]d[:alpha:]]e"_s << QStringList{u"a"_s, u"c"_s, u"e"_s};
        QTest::newRow("groups") << u"a(b|[)]c)*d(?:e)f(?<n>g)"_s << QStringList{u"a"_s, u"d"_s, u"f"_s};
        QTest::newRow("looking around") << u"(?<!x)ab(?=c)"_s << QStringList{u"ab"_s};
        QTest::newRow("alternatives") << u"ab|cd"_s << QStringList();
        QTest::newRow("changed options") << u"(?x)a b"_s << QStringList();
        QTest::newRow("verbs") << u"(*ACCEPT)ab"_s << QStringList();
        QTest::newRow("numbers of characters") << uR"(\x41bc)"_s << QStringList();
        QTest::newRow("quoted text") << uR"(\Qa.b\E)"_s << QStringList();
        QTest::newRow("properties") << uR"(\p{Lu}bc)"_s << QStringList();
        QTest::newRow("an open class") << u"a[b"_s << QStringList();
        QTest::newRow("an open group") << u"a(b"_s << QStringList();
        QTest::newRow("a bare bracket") << u"a)b"_s << QStringList();
        QTest::newRow("a bare backslash") << u"ab\\"_s << QStringList();
        QTest::newRow("nothing") << QString() << QStringList();
        // clang-format on
    }

    void certainParts()
    {
        QFETCH(QString, expression);
        QTEST(zephira::certainParts(expression), "parts");
    }

    void mayHold_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<bool>("matchCase");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("may");
        // clang-format off: a row a line
        QTest::newRow("there") << u"class"_s << true << QByteArray("a class=b") << true;
        QTest::newRow("another case") << u"class"_s << true << QByteArray("a CLASS=b") << false;
        QTest::newRow("any case") << u"clAss"_s << false << QByteArray("a CLasS=b") << true;
        QTest::newRow("a long s") << u"class"_s << false << QByteArray("a cla\xC5\xBFs=b") << true;
        QTest::newRow("the kelvin") << u"kg"_s << false << QByteArray("1 \xE2\x84\xAAg") << true;
        QTest::newRow("signs have no case") << u"->"_s << false << QByteArray("a->b") << true;
        QTest::newRow("brackets aren't braces") << u"["_s << false << QByteArray("{") << false;
        QTest::newRow("not there") << u"class"_s << false << QByteArray("clas clas") << false;
        QTest::newRow("UTF-8") << u"\u00FC"_s << true << QByteArray("f\xC3\xBCr") << true;
        QTest::newRow("Windows-1252") << u"\u00FC"_s << true << QByteArray("f\xFCr") << true;
        QTest::newRow("the euro in Windows-1252") << u"\u20AC"_s << true << QByteArray("\x80") << true;
        QTest::newRow("Hebrew") << u"\u05E9\u05DC\u05D5\u05DD"_s << false << u"\u05E9\u05DC\u05D5\u05DD"_s.toUtf8()
                                << true;
        QTest::newRow("no Hebrew") << u"\u05E9\u05DC\u05D5\u05DD"_s << false << u"\u05E9\u05DC"_s.toUtf8() << false;
        QTest::newRow("Greek in any case") << u"\u03B1"_s << false << u"\u0391"_s.toUtf8() << true;
        QTest::newRow("UTF-16") << u"a"_s << true
                                << QByteArray("\xFF\xFE"
                                              "b\0",
                                              4)
                                << true;
        QTest::newRow("big UTF-16") << u"a"_s << true
                                    << QByteArray("\xFE\xFF\0"
                                                  "b",
                                                  4)
                                    << true;
        // clang-format on
    }

    void mayHold()
    {
        QFETCH(QString, pattern);
        QFETCH(bool, matchCase);
        QFETCH(QByteArray, bytes);
        QTEST(ByteFilter({.pattern = pattern, .matchCase = matchCase}).mayHold(bytes), "may");
    }

    /// The blocks in which case is folded have no gaps.
    void findsItAnywhere()
    {
        const ByteFilter filter({.pattern = u"NEEDLE"_s});
        for (const qsizetype at : {0, 16378, 16379, 16380, 16383, 16384, 32766, 40000}) {
            QByteArray text(at, 'n');
            QVERIFY(!filter.mayHold(text));
            text += "eedle";
            QCOMPARE(filter.mayHold(text), at > 0);
            QVERIFY(filter.mayHold(text + "Needle"));
        }
        QCOMPARE(filter.overlap(), 5);
    }

    /// No text with a match is turned away: random expressions and texts of few letters, in every encoding.
    void neverHidesAMatch()
    {
        QRandomGenerator random(7);
        const QStringList pieces{u"a"_s,  u"K"_s,   u"s"_s, u"\u00E4"_s, u"\u05D0"_s, u"."_s, u"a?"_s,   u"[as]"_s,
                                 u"s+"_s, u"(k)"_s, u"|"_s, u"\\s"_s,    u"\\x61"_s,  u"^"_s, u"a{2}"_s, u"-"_s};
        const QString letters = u"aAkKsS\u00E4\u00C4\u05D0\u017F\u212A -\n"_s;
        int matches = 0;
        for (int i = 0; i < 4000; ++i) {
            SearchRequest request{.pattern = {}, .matchCase = random.bounded(2) == 1, .regularExpression = true};
            for (int n = random.bounded(1, 5); n > 0; --n)
                request.pattern += pieces[random.bounded(pieces.size())];
            QString text;
            for (int n = random.bounded(12); n > 0; --n)
                text += letters[random.bounded(letters.size())];
            const Result<PatternSearch> search = PatternSearch::make(request);
            if (!search || !search.value().next(text, 0, text.size(), {}))
                continue;
            ++matches;
            const ByteFilter filter(request);
            for (const Encoding encoding : {Encoding::Utf8, Encoding::Utf16LE, Encoding::Windows1252}) {
                const Result<QByteArray> bytes =
                    encodeText(text.toUtf8(), {encoding, encoding == Encoding::Utf16LE, LineEnds::Lf});
                QVERIFY2(!bytes || filter.mayHold(bytes.value()), qPrintable(request.pattern + u" in "_s + text));
            }
        }
        QVERIFY(matches > 500);
    }
};

ZEPHIRA_TEST(TstByteFilter)

} // namespace zephira

#include "tst_bytefilter.moc"
