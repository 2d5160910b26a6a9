// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/pairs/autoclosed.h"
#include "assist/pairs/pairtext.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

bool anywhere(qsizetype)
{
    return true;
}

} // namespace

/// The rules of quotes, brackets and tags that belong together.
class TstPairText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void partners()
    {
        const QByteArray openers = "([{<\"'";
        const QByteArray closers = ")]}>\"'";
        for (int i = 0; i < openers.size(); ++i)
            QCOMPARE(partnerOf(static_cast<unsigned char>(openers[i])), closers[i]);
        for (const char32_t other : {U')', U'a', U'`', U'\0', U'«', U'😀'})
            QCOMPARE(partnerOf(other), '\0');
    }

    void whatIsClosed()
    {
        for (const char next : QByteArray(") ]}>,;:.<\t\r\n") + '\0')
            QVERIFY(closesBefore(next));
        for (const char next : QByteArray("a0_(\"'$\xc3"))
            QVERIFY(!closesBefore(next));
        QVERIFY(closesQuote('=', '>'));
        QVERIFY(closesQuote('\0', '\0'));
        for (const char before : QByteArray("t9_\"'\\\xa4"))
            QVERIFY(!closesQuote(before, ' '));
        QVERIFY(!closesQuote('=', 'a'));
    }

    void startTags_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("isXml");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<qsizetype>("begin");
        // clang-format off: a row a line
        QTest::newRow("tag") << QByteArray("a<Div>") << false << QByteArray("Div") << qsizetype{1};
        QTest::newRow("attributes") << QByteArray("<a b=\"c\" d='e>' f=g>") << false << QByteArray("a") << qsizetype{0};
        QTest::newRow("bracket in a value") << QByteArray("x<a b=\"<i>\">") << false << QByteArray("a") << qsizetype{1};
        QTest::newRow("server code") << QByteArray("<a <% x>y %>>") << false << QByteArray("a") << qsizetype{0};
        QTest::newRow("lines") << QByteArray("<a\r\nb>") << false << QByteArray("a") << qsizetype{0};
        QTest::newRow("void") << QByteArray("<br>") << false << QByteArray() << qsizetype{0};
        QTest::newRow("void in XML") << QByteArray("<br>") << true << QByteArray("br") << qsizetype{0};
        QTest::newRow("closed") << QByteArray("<a />") << false << QByteArray() << qsizetype{0};
        QTest::newRow("end tag") << QByteArray("<a></a>") << false << QByteArray() << qsizetype{0};
        QTest::newRow("comment") << QByteArray("<!-- x -->") << false << QByteArray() << qsizetype{0};
        QTest::newRow("instruction") << QByteArray("<?xml ?>") << true << QByteArray() << qsizetype{0};
        QTest::newRow("number") << QByteArray("1<2>") << false << QByteArray() << qsizetype{0};
        QTest::newRow("text behind") << QByteArray("<a>b>") << false << QByteArray() << qsizetype{0};
        QTest::newRow("not at the end") << QByteArray("<a>b") << false << QByteArray() << qsizetype{0};
        QTest::newRow("nothing") << QByteArray() << false << QByteArray() << qsizetype{0};
        QTest::newRow("sign alone") << QByteArray(">") << false << QByteArray() << qsizetype{0};
        QTest::newRow("letters") << QByteArray("<\xc3\xa4:b>") << true << QByteArray("\xc3\xa4:b") << qsizetype{0};
        QTest::newRow("script") << QByteArray("<script src=a>") << false << QByteArray("script") << qsizetype{0};
        // clang-format on
    }

    void startTags()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, isXml);
        QFETCH(QByteArray, name);
        const MarkupRules rules = isXml ? MarkupRules::Xml : MarkupRules::Html;
        const auto tag = startTagBefore(text, rules, anywhere);
        QCOMPARE(tag.has_value(), !name.isEmpty());
        if (tag) {
            QCOMPARE(tag->name, name);
            QTEST(tag->begin, "begin");
        }
        QVERIFY(!startTagBefore(text, rules, [](qsizetype) { return false; }));
    }

    /// A key waits for no more than the reach.
    void manyBrackets()
    {
        QVERIFY(!startTagBefore(QByteArray(pairReach, '<') + '>', MarkupRules::Html, anywhere));
        QVERIFY(!startTagBefore(QByteArray("<a ").repeated(pairReach / 3) + "b>>", MarkupRules::Html, anywhere));
    }

    void endTags()
    {
        QCOMPARE(endTagBefore("x</b>"), QByteArray("b"));
        QCOMPARE(endTagBefore("</a:b-1 >"), QByteArray("a:b-1"));
        for (const QByteArray &text : {QByteArray("</b> "), QByteArray("<b>"), QByteArray("</b c>"), QByteArray("</>"),
                                       QByteArray(">"), QByteArray(), QByteArray("</1>")})
            QCOMPARE(endTagBefore(text), QByteArray());
        QVERIFY(beginsWithEndTag("</B>x", "b", MarkupRules::Html));
        QVERIFY(!beginsWithEndTag("</B>x", "b", MarkupRules::Xml));
        QVERIFY(!beginsWithEndTag("</bc>", "b", MarkupRules::Html));
        QVERIFY(!beginsWithEndTag("<b>", "b", MarkupRules::Html));
        QVERIFY(!beginsWithEndTag(QByteArrayView(), "b", MarkupRules::Html));
    }

    void braces()
    {
        QCOMPARE(openBraceBefore("a { b { c } d", anywhere), qsizetype{2});
        QCOMPARE(openBraceBefore("a { b } d", anywhere), qsizetype{-1});
        QCOMPARE(openBraceBefore({}, anywhere), qsizetype{-1});
        QCOMPARE(openBraceBefore("{ '{'", [](qsizetype at) { return at < 2; }), qsizetype{0});
        QCOMPARE(indentationOf(" \t x "), QByteArrayView(" \t "));
        QCOMPARE(indentationOf({}), QByteArrayView());
        QVERIFY(keepsBlanks("PRE") && keepsBlanks("textarea"));
        QVERIFY(!keepsBlanks("p") && !keepsBlanks("prefix"));
    }

    void closersMoveWithTheText()
    {
        AutoClosed closers;
        closers.add(5, 1);
        closers.add(10, 4);
        closers.inserted(5, 2);
        QCOMPARE(closers.places(), (std::vector<AutoClosed::Place>{{7, 1}, {12, 4}}));
        closers.inserted(8, 1);
        closers.erased(0, 3);
        QCOMPARE(closers.places(), (std::vector<AutoClosed::Place>{{4, 1}, {10, 4}}));
        QCOMPARE(closers.sizeAt(10), qsizetype{4});
        QCOMPARE(closers.sizeAt(11), qsizetype{0});
        closers.inserted(12, 1);
        QCOMPARE(closers.places(), (std::vector<AutoClosed::Place>{{4, 1}}));
        closers.erased(3, 1);
        closers.erased(4, 5);
        QCOMPARE(closers.sizeAt(3), qsizetype{1});
        closers.erased(2, 2);
        QVERIFY(closers.places().empty());
        closers.add(1, 1);
        closers.forget(2);
        closers.forget(1);
        QVERIFY(closers.places().empty());
    }
};

ZEPHIRA_TEST(TstPairText)

#include "tst_pairtext.moc"
