// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "web/designer/pageplace.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// A source in which "|" shows a position.
struct Marked {
    QString source;
    qsizetype position = 0;

    explicit Marked(QString text) : source(std::move(text)), position(source.indexOf(u'|'))
    {
        source.remove(position, 1);
    }
};

} // namespace

class TstPagePlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPlaceIsCountedFromATag_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("anchor");
        QTest::addColumn<int>("number");
        QTest::addColumn<int>("characters");
        QTest::addColumn<bool>("isBehindTags");
        QTest::addColumn<QString>("following");

        QTest::newRow("nothing") << u"|"_s << u""_s << 0 << 0 << false << u""_s;
        QTest::newRow("text alone") << u"ab|c"_s << u""_s << 0 << 2 << false << u""_s;
        QTest::newRow("in a text") << u"<p>a</p><p>b c|d</p>"_s << u"p"_s << 1 << 3 << false << u"bcd"_s;
        QTest::newRow("at its end") << u"<p>ab|</p>"_s << u"p"_s << 0 << 2 << false << u"ab"_s;
        QTest::newRow("behind it") << u"<p>ab</p>|c"_s << u"p"_s << 0 << 2 << true << u"abc"_s;
        QTest::newRow("in an end tag") << u"<p>ab</|p>c"_s << u"p"_s << 0 << 2 << false << u"abc"_s;
        QTest::newRow("in a start tag") << u"<p>a</p><P cl|ass='x'>b"_s << u"p"_s << 1 << 0 << false << u"b"_s;
        QTest::newRow("before a start tag") << u"<p>a</p>|<p>b"_s << u"p"_s << 0 << 1 << true << u"ab"_s;
        QTest::newRow("in bold") << u"<p>a<b>b|c</b>"_s << u"p"_s << 0 << 2 << false << u"abc"_s;
        QTest::newRow("at bold") << u"<p>a<b>|bc</b>"_s << u"p"_s << 0 << 1 << true << u"abc"_s;
        QTest::newRow("in the tag of bold") << u"<p>a<b cl|ass=x>bc</b>"_s << u"p"_s << 0 << 1 << true << u"abc"_s;
        QTest::newRow("behind a break") << u"<p>a<br />|b"_s << u"br"_s << 0 << 0 << false << u"b"_s;
        QTest::newRow("reference") << u"<p>&eacute;&amp|;x"_s << u"p"_s << 0 << 1 << false << u"\u00e9&x"_s;
        QTest::newRow("pair") << u"<p>\U0001F600|x"_s << u"p"_s << 0 << 2 << false << u"\U0001F600x"_s;
        QTest::newRow("line end") << u"<p>a\r\nb|"_s << u"p"_s << 0 << 3 << false << u"ab"_s;
        QTest::newRow("kept lines") << u"<pre>\r\n\r\na|b</pre>"_s << u"pre"_s << 0 << 2 << false << u"ab"_s;
        QTest::newRow("in a comment") << u"<p>a<!-- <p> | --></p>"_s << u"p"_s << 0 << 1 << false << u"a"_s;
        QTest::newRow("behind a comment") << u"<p>a<!-- x -->|</p>"_s << u"p"_s << 0 << 1 << true << u"a"_s;
        QTest::newRow("in server code") << u"<p>a<?php if ('<p>') | ?>b"_s << u"p"_s << 0 << 1 << false << u"ab"_s;
        QTest::newRow("server code in a tag") << u"<p <?= 1 > | 0 ?>>a"_s << u"p"_s << 0 << 0 << false << u"a"_s;
        QTest::newRow("in a script") << u"<p>a<script>'<p>'|</script>b"_s << u"p"_s << 0 << 1 << true << u"ab"_s;
        QTest::newRow("in noscript") << u"<p>a<noscript><p>x|</noscript>b"_s << u"p"_s << 0 << 1 << true << u"ab"_s;
        QTest::newRow("behind noscript") << u"<noscript><p>x</noscript><p>a|"_s << u"p"_s << 0 << 1 << false << u"a"_s;
        QTest::newRow("in a list of choices")
            << u"<p>a<select><option>x|</select>b"_s << u"select"_s << 0 << 0 << true << u"b"_s;
        QTest::newRow("in the head") << u"<html><head><title>T|</title></head><body><p>x"_s << u""_s << 0 << 0 << true
                                     << u""_s;
        QTest::newRow("in the body's tag") << u"<head>\n</head>\n<body |x><p>y"_s << u""_s << 0 << 0 << false << u""_s;
        QTest::newRow("in the body") << u"<head>\n</head>\n<body>\nab|c"_s << u""_s << 0 << 3 << false << u""_s;
    }

    void aPlaceIsCountedFromATag()
    {
        QFETCH(QString, text);
        const Marked marked(text);
        const PagePlace place = pagePlace(marked.source, marked.position);
        QTEST(place.anchor, "anchor");
        QTEST(static_cast<int>(place.number), "number");
        QTEST(static_cast<int>(place.characters), "characters");
        QTEST(place.isBehindTags, "isBehindTags");
        QTEST(place.following, "following");
    }

    /// From each position that belongs to a place of its own the way leads back to it.
    void theWayBack_data()
    {
        QTest::addColumn<QString>("text");

        const char *const texts[] = {
            "ab|c",
            "<p>|a",
            "<p>a</p><p>b c|d</p>",
            "<p>ab|</p>",
            "<p>ab</p>|c",
            "<p>a<b>b|c</b>",
            "<p>a<b>|bc</b>",
            "<p>a|<b>bc</b>",
            "<p>a</p>\r\n|<p>b",
            "<p>a<br />|b",
            "<p>&eacute;|&amp;x",
            "<pre>\r\n\r\na|b</pre>",
            "<pre>\r\n|\r\nab</pre>",
            "<p>a<?php x ?>|b",
            "<p>a|<?php x ?>b",
            "<p>a|<!-- x -->b",
            "<table><tr><td>a<td>|b<tr><td>c</table>",
            "<head>\n</head>\n<body>\nab|c",
            "<head>\n</head>\n<body>|\nabc",
            "<ul><li>a<li>b<li>c|</ul>",
        };
        for (const char *const text : texts)
            QTest::newRow(text) << QString::fromLatin1(text);
    }

    void theWayBack()
    {
        QFETCH(QString, text);
        const Marked marked(text);
        QCOMPARE(positionOf(marked.source, pagePlace(marked.source, marked.position)), marked.position);
    }

    /// No position of a page leads elsewhere than near it, whatever is wrong with the page.
    void noPositionIsFarAway()
    {
        const QString page =
            u"<!DOCTYPE html>\r\n<html><head><title>t</title><style>p{}</style></head>\r\n<body bgcolor=x>"
            "<p>one<p>two &copy; <b>x<p>y</b>z<% = 1 %></p></p><table>in<tr><td>a<tr><td>b</table>"
            "<script>var p='<p>';</script><a name=x />tail<select><option>o</select> <img src=a> end\r\n"
            "</body></html>\r\n"_s;
        for (qsizetype position = 0; position <= page.size(); ++position) {
            const auto back = positionOf(page, pagePlace(page, position));
            QVERIFY(back.has_value());
            // Within the same pieces, or from the head to the beginning of the body.
            const qsizetype body = page.indexOf(u"<body"_s);
            const qsizetype nearest = std::max(position, page.indexOf(u'>', body) + 1);
            QVERIFY2(qAbs(*back - nearest) <= 45, qPrintable(u"%1 -> %2"_s.arg(position).arg(*back)));
        }
    }

    void textTellsWhichElementIsMeant()
    {
        const QString page = u"<p>one</p><p>two</p><p>three</p>"_s;
        PagePlace place{u"p"_s, 0, 2, false, {}, u"three"_s};
        QCOMPARE(positionOf(page, place), page.indexOf(u"three"_s) + 2);
        place.number = 17;
        QCOMPARE(positionOf(page, place), page.indexOf(u"three"_s) + 2);
        place.following = u"four"_s;
        place.number = 1;
        QCOMPARE(positionOf(page, place), page.indexOf(u"two"_s) + 2);
        place.anchor = u"div"_s;
        QCOMPARE(positionOf(page, place), std::nullopt);
    }

    void tagsOfTheParentAreNotPassed()
    {
        const QString page = u"<p>a<b>c</b></p> d"_s;
        const PagePlace inside{u"p"_s, 0, 2, true, u"p"_s, u"acd"_s};
        QCOMPARE(positionOf(page, inside), page.indexOf(u"</p>"_s));
        const PagePlace outside{u"p"_s, 0, 2, true, u"body"_s, u"acd"_s};
        QCOMPARE(positionOf(page, outside), page.indexOf(u" d"_s));
    }

    void largePagesTakeLinearTime()
    {
        const auto run = [](const QString &page) { QVERIFY(positionOf(page, pagePlace(page, page.size()))); };
        for (const char *const unit : {"<p>some text</p>\r\n", "<div>", "<b>x", "<!-- x -->", "a &amp; b ", "</p>"}) {
            const auto make = [unit](qsizetype count) { return QString::fromLatin1(unit).repeated(count); };
            const double times = timesForTenTimes(make, 3000, run);
            QVERIFY2(times <= mostOfLinear, qPrintable(u"%1: %2"_s.arg(QString::fromLatin1(unit)).arg(times)));
        }
    }
};

ZEPHIRA_TEST(TstPagePlace)
#include "tst_pageplace.moc"
