// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "web/designer/pagetokens.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstPageTokens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tokens_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const QString &page, const QStringList &expected) {
            QTest::newRow(qPrintable(page)) << page << expected;
        };
        // Each token with a letter for its kind; a text in which references don't count is "r".
        row({}, {});
        row(u"a  b\r\n"_s, {u"ta"_s, u"t  "_s, u"tb"_s, u"t\r\n"_s});
        row(u"<p class=a>x</p>"_s, {u"s<p class=a>"_s, u"tx"_s, u"e</p>"_s});
        row(u"<br><!-- a > b --><!doctype html><?x y><!>"_s,
            {u"v<br>"_s, u"c<!-- a > b -->"_s, u"c<!doctype html>"_s, u"c<?x y>"_s, u"c<!>"_s});
        row(u"a<1 <<b>"_s, {u"ta<1"_s, u"t "_s, u"t<"_s, u"s<b>"_s});
        row(u"a</ b>c</"_s, {u"ta"_s, u"c</ b>"_s, u"tc</"_s});
        row(u"<script>a <b></scripty></SCRIPT >c"_s,
            {u"s<script>"_s, u"ra"_s, u"r "_s, u"r<b></scripty>"_s, u"e</SCRIPT >"_s, u"tc"_s});
        row(u"<title>&amp;<b></title>"_s, {u"s<title>"_s, u"t&amp;<b>"_s, u"e</title>"_s});
        row(u"<style>a"_s, {u"s<style>"_s, u"ra"_s});
        row(u"<plaintext>a<b></plaintext>"_s, {u"s<plaintext>"_s, u"ra<b></plaintext>"_s});
        row(u"<zephira-mark mark=\"zsx0s\" style=\"a\"><b>x</b></zephira-mark>y"_s,
            {u"c<zephira-mark mark=\"zsx0s\" style=\"a\"><b>x</b></zephira-mark>"_s, u"ty"_s});
        row(u"<a b=\">\">c"_s, {u"s<a b=\">\">"_s, u"tc"_s});
        row(u"<!-- a"_s, {u"c<!-- a"_s});
        row(u"<a b"_s, {u"s<a b"_s});
    }

    void tokens()
    {
        QFETCH(QString, page);
        TokenKeys keys;
        QStringList texts;
        qsizetype place = 0;
        for (const PageToken &token : pageTokens(page, keys)) {
            QCOMPARE(token.begin, place);
            place = token.end;
            QChar kind = u"tsec"[static_cast<int>(token.kind)];
            if (token.isVoid)
                kind = u'v';
            else if (token.kind == TokenKind::Text && token.references == References::None)
                kind = u'r';
            texts.append(kind + token.in(page).toString());
        }
        QCOMPARE(place, page.size());
        QTEST(texts, "expected");
    }

    void alike_data()
    {
        QTest::addColumn<QString>("one");
        QTest::addColumn<QString>("other");
        QTest::addColumn<bool>("areAlike");
        const auto row = [](const QString &one, const QString &other, bool areAlike) {
            QTest::newRow(qPrintable(one + u" and "_s + other)) << one << other << areAlike;
        };
        row(u"<P ALIGN=Left>"_s, u"<p align=\"Left\">"_s, true);
        row(u"<p align=left>"_s, u"<p align=\"Left\">"_s, false);
        row(u"<br />"_s, u"<br>"_s, true);
        row(u"<input checked>"_s, u"<input checked=\"\">"_s, true);
        row(u"<p a=1 A=2>"_s, u"<p a=\"1\">"_s, true);
        row(u"<p a=1 b=2>"_s, u"<p b=2 a=1>"_s, false);
        row(u"<p t='&eacute;\r\n'>"_s, u"<p t=\"é\n\">"_s, true);
        row(u"<p a=b>"_s, u"<p a>"_s, false);
        row(u"<p>"_s, u"</p>"_s, false);
        row(u"</P x>"_s, u"</p>"_s, true);
        row(u"&lt;p&gt;"_s, u"<p>"_s, false);
        row(u"caf&eacute;"_s, u"café"_s, true);
        row(u"\r\n "_s, u"\n "_s, true);
        row(u"  "_s, u" "_s, false);
        row(u"<!--zsx0s-->"_s, u"<zephira-mark mark=\"zsx0s\"></zephira-mark>"_s, true);
        row(u"<!--zsx0s-->"_s, u"<zephira-mark mark=\"zsx1s\"></zephira-mark>"_s, false);
    }

    void alike()
    {
        QFETCH(QString, one);
        QFETCH(QString, other);
        TokenKeys keys;
        const std::vector<PageToken> first = pageTokens(one, keys);
        const std::vector<PageToken> second = pageTokens(other, keys);
        QCOMPARE(first.size(), 1U);
        QCOMPARE(second.size(), 1U);
        QTEST(first[0].key == second[0].key, "areAlike");
    }

    void linear_data()
    {
        QTest::addColumn<QString>("unit");
        for (const auto &unit : {u"<p class=\"a\">text &amp; more</p>\r\n"_s, u"<"_s, u"<!"_s, u"</"_s, u"<title>"_s,
                                 u"<a \""_s, u"<zephira-mark>"_s, u"&"_s, u"<!--"_s})
            QTest::newRow(qPrintable(unit)) << unit;
    }

    void linear()
    {
        QFETCH(QString, unit);
        const double times = timesForTenTimes([&](qsizetype count) { return unit.repeated(count); }, 4000,
                                              [](const QString &page) {
                                                  TokenKeys keys;
                                                  pageTokens(page, keys);
                                              });
        QVERIFY2(times <= mostOfLinear, qPrintable(QString::number(times)));
    }
};

ZEPHIRA_TEST(TstPageTokens)
#include "tst_pagetokens.moc"
