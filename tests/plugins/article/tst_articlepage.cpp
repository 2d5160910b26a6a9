// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/article/articlepage.h"
#include "support/testregistry.h"
#include "support/tidycomplaints.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstArticlePage final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePage()
    {
        QCOMPARE(articlePage({u"Bees & I"_s, u"en"_s, u"What a year\nwith \"bees\" is like"_s}),
                 u"<!DOCTYPE html>\r\n"
                 "<html lang=\"en\">\r\n"
                 "<head>\r\n"
                 "  <meta charset=\"utf-8\">\r\n"
                 "  <meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\r\n"
                 "  <title>Bees &amp; I</title>\r\n"
                 "  <meta name=\"description\" content=\"What a year with &quot;bees&quot; is like\">\r\n"
                 "</head>\r\n"
                 "<body>\r\n"
                 "  <article>\r\n"
                 "    <header>\r\n"
                 "      <h1>Bees &amp; I</h1>\r\n"
                 "      <p>What a year with &quot;bees&quot; is like</p>\r\n"
                 "    </header>\r\n"
                 "    <p>The article begins here.</p>\r\n"
                 "  </article>\r\n"
                 "</body>\r\n"
                 "</html>\r\n"_s);
    }

    void withoutADescription()
    {
        const QString page = articlePage({u"<b>"_s, u" pt-BR "_s, u" \n"_s});
        QVERIFY(page.contains(u"<html lang=\"pt-BR\">"_s));
        QVERIFY(page.contains(u"<title>&lt;b&gt;</title>"_s));
        QVERIFY(!page.contains(u"description"_s));
        QVERIFY(page.contains(u"    <header>\r\n      <h1>&lt;b&gt;</h1>\r\n    </header>\r\n"_s));
    }

    void thePageIsValid_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("description");
        QTest::newRow("plain") << u"Bees"_s << u"A year with bees"_s;
        QTest::newRow("no description") << u"Bees"_s << QString();
        QTest::newRow("markup") << u"</title><script>\"'&amp;"_s << u"\"><b>&copy"_s;
        QTest::newRow("another script") << u"養蜂"_s << u"نحل"_s;
    }

    void thePageIsValid()
    {
        QFETCH(QString, title);
        QFETCH(QString, description);
        QCOMPARE(complaintsOfTidy(articlePage({title, u"en"_s, description}).toUtf8()), QByteArray());
    }

    /// The check finds what is wrong.
    void aWrongPageIsFound()
    {
        QByteArray page = articlePage({u"Bees"_s, u"en"_s, {}}).toUtf8();
        QVERIFY(complaintsOfTidy(page.replace("</h1>", "</h2>")).contains("h1"));
    }

    void directions_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("element");
        QTest::newRow("Arabic") << u"ar"_s << u"<html lang=\"ar\" dir=\"rtl\">"_s;
        QTest::newRow("Hebrew of a country") << u"he-IL"_s << u"<html lang=\"he-IL\" dir=\"rtl\">"_s;
        QTest::newRow("Greek") << u"el"_s << u"<html lang=\"el\">"_s;
        QTest::newRow("no language of this world") << u"qqq"_s << u"<html lang=\"qqq\">"_s;
    }

    void directions()
    {
        QFETCH(QString, language);
        QTEST(articlePage({u"t"_s, language, {}}).section(u"\r\n"_s, 1, 1), "element");
    }

    void tags_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isTag");
        QTest::newRow("language") << u"en"_s << true;
        QTest::newRow("country") << u"pt-BR"_s << true;
        QTest::newRow("script and country") << u"zh-Hant-TW"_s << true;
        QTest::newRow("region by number") << u"es-419"_s << true;
        QTest::newRow("empty") << u""_s << false;
        QTest::newRow("one letter") << u"e"_s << false;
        QTest::newRow("nine letters") << u"abcdefghi"_s << false;
        QTest::newRow("open end") << u"en-"_s << false;
        QTest::newRow("underscore") << u"en_US"_s << false;
        QTest::newRow("quote") << u"en\""_s << false;
        QTest::newRow("line end") << u"en\n"_s << false;
        QTest::newRow("two words") << u"en us"_s << false;
        QTest::newRow("umlaut") << u"dé"_s << false;
    }

    void tags()
    {
        QFETCH(QString, text);
        QTEST(isLanguageTag(text), "isTag");
    }

    void whatIsNeeded()
    {
        QVERIFY(isComplete({u"Title"_s, u"en"_s, {}}));
        QVERIFY(isComplete({u"Title"_s, u" de "_s, {}}));
        QVERIFY(!isComplete({u"  "_s, u"en"_s, u"text"_s}));
        QVERIFY(!isComplete({u"Title"_s, u"english language"_s, {}}));
    }
};

ZEPHIRA_TEST(TstArticlePage)
#include "tst_articlepage.moc"
