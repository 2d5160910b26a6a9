// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/errorstyles.h"
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "support/textgenerator.h"
#include "tools/imagelinks.h"
#include "tools/plainimagelinks.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QStringList pieces{u"<img"_s, u"<IMG "_s, u"<İmg"_s, u"<"_s,  u">"_s,     u"src"_s, u"SRC="_s,  u"lowsrc"_s,
                         u"="_s,    u" "_s,     u"\""_s,   u"'"_s,  u"s"_s,     u"r"_s,   u"a"_s,     u"b.gif"_s,
                         u"\r\n"_s, u"ä"_s,     u"img"_s,  u"/>"_s, u"src=>"_s, u"c"_s,   u"src=\""_s};

/// The addresses of a page, or the error's description.
QStringList linksOf(const QString &html)
{
    QStringList urls;
    QString failure;
    if (!endingWith([&failure](const QString &description) { failure = description; },
                    [&] { LinksFromHTML(urls, html); }))
        return {u"error"_s, failure};
    return urls.sliced(1);
}

QStringList plainLinksOf(const QString &html)
{
    QStringList urls;
    QString failure;
    if (!endingWith([&failure](const QString &description) { failure = description; },
                    [&] { urls = plainLinksFromHTML(html); }))
        return {u"error"_s, failure};
    return urls;
}

} // namespace

class TstImageLinks final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void urlFromTag_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("url");
        QTest::newRow("quoted") << u"<img src=\"a b.gif\" alt=x"_s << u"a"_s;
        QTest::newRow("up to the quote") << u"<img src=\"a.gif\" alt=x"_s << u"a.gif"_s;
        QTest::newRow("bare") << u"<img src=a.gif alt=x"_s << u"a.gif"_s;
        QTest::newRow("bare at the end") << u"<img src=a.gif"_s << u"a.gif"_s;
        QTest::newRow("capitals keep the value's case") << u"<IMG SRC=\"A.gif\""_s << u"A.gif"_s;
        QTest::newRow("an apostrophe belongs to it") << u"<img src='a.gif'"_s << u"'a.gif'"_s;
        QTest::newRow("a blank before the sign") << u"<img src = x"_s << u"="_s;
        QTest::newRow("a blank behind the sign") << u"<img src= x"_s << QString();
        QTest::newRow("lowsrc") << u"<img lowsrc=a src=b"_s << u"a"_s;
        QTest::newRow("dynsrc") << u"<img dynsrc=\"a\" src=b"_s << u"a"_s;
        QTest::newRow("in a value") << u"<img alt=src-b src=c"_s << u"b"_s;
        QTest::newRow("two quotes") << u"<img src=\"\" alt=x"_s << QString();
        QTest::newRow("an end within") << u"<img src=a>b"_s << u"a"_s;
        QTest::newRow("an end for the sign") << u"<img src>b"_s << u"b"_s;
        QTest::newRow("nothing behind it") << u"<img src"_s << QString();
        QTest::newRow("the sign alone") << u"<img src="_s << QString();
        QTest::newRow("a quote alone") << u"<img src=\""_s << QString();
        QTest::newRow("none") << u"<img alt=x"_s << QString();
        QTest::newRow("no tag") << QString() << QString();
    }

    void urlFromTag()
    {
        QFETCH(QString, tag);
        QTEST(URLFromTag(tag), "url");
        QTEST(plainURLFromTag(tag), "url");
    }

    void linksFromHTML_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QStringList>("urls");
        const QStringList error{u"error"_s, u"Invalid procedure call or argument"_s};
        QTest::newRow("none") << u"<p>x</p>"_s << QStringList{};
        QTest::newRow("nothing") << QString() << QStringList{};
        QTest::newRow("two") << u"<img src=a><p><img src=b>"_s << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("the same twice") << u"<img src=a><img src=a>"_s << QStringList{u"a"_s, u"a"_s};
        QTest::newRow("capitals") << u"<IMG SRC=\"A.gif\">"_s << QStringList{u"A.gif"_s};
        QTest::newRow("without an address") << u"<img alt=x><img src=b>"_s << QStringList{u"b"_s};
        QTest::newRow("the address of another tag") << u"<img><input src=b>"_s << QStringList{};
        QTest::newRow("only img") << u"<body background=a><script src=b></script><frame src=c>"_s << QStringList{};
        QTest::newRow("names that begin so") << u"<imgx src=a>"_s << QStringList{u"a"_s};
        QTest::newRow("one within another") << u"<img <img src=a>"_s << QStringList{u"a"_s, u"a"_s};
        QTest::newRow("values within one another") << u"<imgsrc=<imgsrc=a>"_s << QStringList{u"<imgsrc=a"_s, u"a"_s};
        QTest::newRow("a tag that ends at the sign") << u"<img src>\"b\">"_s << QStringList{};
        QTest::newRow("a tag that ends behind the sign") << u"<img src=>\"b\">"_s << QStringList{};
        QTest::newRow("the last without an end") << u"<img src=a><img src=b"_s << error;
        QTest::newRow("an end ahead of it only") << u"a > b <img src=b"_s << error;
    }

    void linksFromHTML()
    {
        QFETCH(QString, html);
        QTEST(linksOf(html), "urls");
        QTEST(plainLinksOf(html), "urls");
    }

    void theFirstSlotIsUnused()
    {
        QStringList urls{u"old"_s, u"older"_s};
        QCOMPARE(LinksFromHTML(urls, u"<img src=a><img src=b>"_s), 3);
        QCOMPARE(urls, (QStringList{QString(), u"a"_s, u"b"_s}));
        QCOMPARE(LinksFromHTML(urls, u"x"_s), 1);
        QCOMPARE(urls, QStringList{QString()});
    }

    void likeThePlainWalk()
    {
        QRandomGenerator random(53);
        int found = 0;
        for (int round = 0; round < 30000; ++round) {
            QString text = generatedText(random, pieces, 25);
            if (round % 2 == 0)
                text += u'>';
            const QStringList expected = plainLinksOf(text);
            if (const QStringList links = linksOf(text); links != expected)
                QFAIL(qPrintable(text + u"\n"_s + links.join(u'|') + u"\n"_s + expected.join(u'|')));
            QCOMPARE(URLFromTag(text), plainURLFromTag(text));
            found += static_cast<int>(expected.size());
        }
        QVERIFY(found > 10000);
    }

    void tenTimesThePage_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("end");
        QTest::newRow("images") << u"<p><img src=\"a.gif\" alt=x>text</p>\r\n"_s << QString();
        QTest::newRow("no end but the last") << u"<img "_s << u">"_s;
        QTest::newRow("one address for all") << u"<img "_s << u"src=a>"_s;
        QTest::newRow("no address") << u"<img><p>"_s << QString();
        QTest::newRow("no image") << u"<im src=a>"_s << QString();
    }

    void tenTimesThePage()
    {
        QFETCH(QString, unit);
        QFETCH(QString, end);
        const double times = timesForTenTimes([&](qsizetype count) { return unit.repeated(count) + end; }, 40000,
                                              [](const QString &text) {
                                                  QStringList urls;
                                                  LinksFromHTML(urls, text);
                                              });
        QVERIFY2(times <= mostOfLinear, qPrintable(QString::number(times)));
    }

    void addressesThatGrowWithoutEndAreRefused()
    {
        QCOMPARE(linksOf(u"<imgsrc="_s.repeated(20000) + u'>'), (QStringList{u"error"_s, u"Out of string space"_s}));
        QCOMPARE(linksOf(u"<imgsrc="_s.repeated(1000) + u'>').size(), 999);
    }
};

ZEPHIRA_TEST(TstImageLinks)

#include "tst_imagelinks.moc"
