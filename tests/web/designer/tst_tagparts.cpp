// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "web/designer/tagparts.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstTagParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("expected");
        const auto row = [](const QString &page, const QString &expected) {
            QTest::newRow(qPrintable(page)) << page << expected;
        };
        // The name, and each attribute as name=value with its quotes' sign; "*" one that a browser ignores.
        row(u"<p>x"_s, u"p|>"_s);
        row(u"</P >x"_s, u"/P|>"_s);
        row(u"<p a=1 b='2' c=\"3\" d>x"_s, u"p|a=1|b='2'|c='3'|d|>"_s);
        row(u"<p a = 1 b\n=\n'2'>x"_s, u"p|a=1|b='2'|>"_s);
        row(u"<p a=1 A=2 b a>x"_s, u"p|a=1|A=2*|b|a*|>"_s);
        row(u"<br/>x"_s, u"br|>"_s);
        row(u"<a name=x />x"_s, u"a|name=x|>"_s);
        row(u"<a name=x/>x"_s, u"a|name=x/|>"_s);
        row(u"<a href=a>b>x"_s, u"a|href=a|>"_s);
        row(u"<a =b c=>x"_s, u"a|=b|c=|>"_s);
        row(u"<a b=\"c>d\">x"_s, u"a|b='c>d'|>"_s);
        row(u"<a b=\"c"_s, u"a|b='c'|"_s);
        row(u"<a b"_s, u"a|b|"_s);
        row(u"<a"_s, u"a|"_s);
    }

    void parts()
    {
        QFETCH(QString, page);
        const TagParts tag = readTag(page, 0);
        QString text = (tag.isEnd ? u"/"_s : QString()) + tag.name(page).toString() + u'|';
        for (const TagAttribute &attribute : tag.attributes) {
            const QString quote = attribute.isQuoted ? u"'"_s : QString();
            text += attribute.name(page);
            if (attribute.hasValue())
                text += u'=' + quote + attribute.value(page).toString() + quote;
            text += (attribute.isRepeated ? u"*|"_s : u"|"_s);
        }
        text += page.first(tag.end).endsWith(u'>') ? u">"_s : QString();
        QTEST(text, "expected");
    }

    void places()
    {
        const TagParts tag = readTag(u"x<p  a=\"b\" c>", 1);
        QCOMPARE(tag.nameBegin, 2);
        QCOMPARE(tag.attributes.size(), 2U);
        QCOMPARE(tag.attributes[0].begin, 3);
        QCOMPARE(tag.attributes[0].nameBegin, 5);
        QCOMPARE(tag.attributes[0].end, 10);
        QCOMPARE(tag.attributes[1].begin, 10);
        QCOMPARE(tag.attributes[1].end, 12);
        QCOMPARE(tag.end, 13);
    }

    void manyNames()
    {
        QString page = u"<p"_s;
        for (int number = 0; number < 40; ++number)
            page += u" a%1=1"_s.arg(number % 30);
        const TagParts tag = readTag(page + u'>', 0);
        QCOMPARE(tag.attributes.size(), 40U);
        for (size_t number = 0; number < 40; ++number)
            QCOMPARE(tag.attributes[number].isRepeated, number >= 30);
    }

    void linear()
    {
        const auto page = [](qsizetype count) {
            QString text = u"<p"_s;
            for (qsizetype number = 0; number < count; ++number)
                text += u" a%1=b"_s.arg(number);
            return text;
        };
        const double times = timesForTenTimes(page, 3000, [](const QString &text) { readTag(text, 0); });
        QVERIFY2(times <= mostOfLinear, qPrintable(QString::number(times)));
    }
};

ZEPHIRA_TEST(TstTagParts)
#include "tst_tagparts.moc"
