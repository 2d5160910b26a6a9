// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "support/textgenerator.h"
#include "web/designer/pagescan.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr const char16_t *kindNames[] = {u"text",    u"markup",  u"value",       u"plain",      u"raw",
                                         u"comment", u"doctype", u"server-text", u"server-tag", u"server-plain"};

/// "kind:characters" of each piece, separated by bars.
QString described(const QString &source)
{
    QStringList pieces;
    for (const PagePiece &piece : scanPage(source))
        pieces.append(QString::fromUtf16(kindNames[static_cast<int>(piece.kind)]) + u':' + piece.in(source).toString());
    return pieces.join(u'|');
}

} // namespace

class TstPageScan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pieces_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &source, const QString &expected) {
            QTest::newRow(name) << source << expected;
        };
        row("nothing", u""_s, u""_s);
        row("text alone", u"a < b & c"_s, u"text:a < b & c"_s);
        row("a tag", u"<p>x</p>"_s, u"markup:<p>|text:x|markup:</p>"_s);
        row("values", u"<a href='x' b=y c>"_s, u"markup:<a href='|value:x|markup:' b=|value:y|markup: c>"_s);
        row("an empty value", u"<a b=\"\">"_s, u"markup:<a b=\"|value:|markup:\">"_s);
        row("an angle bracket in a value", u"<a b=\"x>y\">z"_s, u"markup:<a b=\"|value:x>y|markup:\">|text:z"_s);
        row("a comment", u"a<!-- <b> -->c"_s, u"text:a|comment:<!-- <b> -->|text:c"_s);
        row("the shortest comments", u"<!--><!--->x"_s, u"comment:<!-->|comment:<!--->|text:x"_s);
        row("a comment's other end", u"<!-- a --!>x"_s, u"comment:<!-- a --!>|text:x"_s);
        row("comments within each other", u"<!--- a <!--- b ---> c --->d"_s,
            u"comment:<!--- a <!--- b ---> c --->|text:d"_s);
        row("a decorated comment", u"<!------ a ------>b"_s, u"comment:<!------ a ------>|text:b"_s);
        row("a comment with three dashes and an end with two", u"<!--- a -->b"_s, u"comment:<!--- a -->|text:b"_s);
        row("an open comment", u"<!-- a"_s, u"comment:<!-- a"_s);
        row("server code in a comment", u"<!-- <% \"-->\" %> -->x"_s, u"comment:<!-- <% \"-->\" %> -->|text:x"_s);
        row("doctype", u"<!DOCTYPE html>x"_s, u"doctype:<!DOCTYPE html>|text:x"_s);
        row("declarations that browsers take for comments", u"<?xml version='1.0'?><![if IE]></ x>"_s,
            u"comment:<?xml version='1.0'?>|comment:<![if IE]>|comment:</ x>"_s);
        row("a character section", u"<![CDATA[ a>b ]]>c"_s, u"comment:<![CDATA[ a>b ]]>|text:c"_s);
        row("script", u"<script>a<b</script>c"_s, u"markup:<script>|raw:a<b|markup:</script>|text:c"_s);
        row("script with a longer name inside", u"<style></styles></style >x"_s,
            u"markup:<style>|raw:</styles>|markup:</style >|text:x"_s);
        row("an open script", u"<script>a<b"_s, u"markup:<script>|raw:a<b"_s);
        row("title", u"<title>a<b>&amp;</title>"_s, u"markup:<title>|plain:a<b>&amp;|markup:</title>"_s);
        row("a title of a drawing", u"<svg><title/><b>"_s, u"markup:<svg>|markup:<title/>|markup:<b>"_s);
        row("after a drawing", u"<svg></svg><title><b>"_s, u"markup:<svg>|markup:</svg>|markup:<title>|plain:<b>"_s);
        row("a block of ASP", u"a<% if x > 1 then %>b"_s, u"text:a|server-text:<% if x > 1 then %>|text:b"_s);
        row("a comment of ASP.NET", u"<%-- %> --%>b"_s, u"server-text:<%-- %> --%>|text:b"_s);
        row("an open block", u"a<% b"_s, u"text:a|server-text:<% b"_s);
        row("PHP", u"<?php if ($a > 1) ?>b<?= $c ?>"_s,
            u"server-text:<?php if ($a > 1) ?>|text:b|server-text:<?= $c ?>"_s);
        row("PHP to the end", u"<p><?PHP echo 1;"_s, u"markup:<p>|server-text:<?PHP echo 1;"_s);
        row("short PHP", u"<? echo 1 ?>b"_s, u"server-text:<? echo 1 ?>|text:b"_s);
        row("an include", u"<!--#include file=\"a>b\" -->c"_s, u"server-text:<!--#include file=\"a>b\" -->|text:c"_s);
        row("ColdFusion", u"<cfif a gt \"b>c\">x</cfif>"_s,
            u"server-text:<cfif a gt \"b>c\">|text:x|server-text:</cfif>"_s);
        row("ColdFusion code", u"<CFQUERY name=q>a < b</CFQUERY>c"_s,
            u"server-text:<CFQUERY name=q>a < b</CFQUERY>|text:c"_s);
        row("a tag of the server", u"<asp:TextBox id=\"a\" runat=\"server\" />b"_s,
            u"server-text:<asp:TextBox id=\"a\" runat=\"server\" />|text:b"_s);
        row("a name that is none of ColdFusion", u"<cf><c:if>"_s, u"markup:<cf>|server-text:<c:if>"_s);
        row("code in the place of an attribute", u"<td <%= a %> b>"_s, u"markup:<td |server-tag:<%= a %>|markup: b>"_s);
        row("code in an attribute's name", u"<td on<%= a %>=\"b\">"_s,
            u"markup:<td on|server-tag:<%= a %>|markup:=\"|value:b|markup:\">"_s);
        row("code in a value", u"<a href=\"x?<%= \"y\" %>&z\">"_s,
            u"markup:<a href=\"|value:x?|server-plain:<%= \"y\" %>|value:&z|markup:\">"_s);
        row("code without quotes around", u"<a href=<%= \"y z\" %>>b"_s,
            u"markup:<a href=|server-plain:<%= \"y z\" %>|markup:>|text:b"_s);
        row("code in a script", u"<script>a=<%= b %>;</script>"_s,
            u"markup:<script>|raw:a=|server-plain:<%= b %>|raw:;|markup:</script>"_s);
        row("code that holds the script's end", u"<script><% \"</script>\" %></script>"_s,
            u"markup:<script>|server-plain:<% \"</script>\" %>|markup:</script>"_s);
        row("code in a title", u"<title><%= t %></title>"_s, u"markup:<title>|server-plain:<%= t %>|markup:</title>"_s);
        row("a tag whose name is code", u"<h<%= n %> class=a>b</h<%= n %>>"_s,
            u"server-text:<h<%= n %> class=a>|text:b|server-text:</h<%= n %>>"_s);
        row("a tag that is all code", u"<<%= t %>>b"_s, u"server-text:<<%= t %>>|text:b"_s);
        row("an open tag", u"<p class=\"a"_s, u"markup:<p class=\"|value:a"_s);
    }

    void pieces()
    {
        QFETCH(QString, source);
        QTEST(described(source), "expected");
    }

    /// For any text the pieces cover it from the first character to the last.
    void leavesNoGaps()
    {
        const QStringList pieces{u"<"_s,   u">"_s,        u"/"_s,     u"\""_s,   u"'"_s,     u"="_s,     u" "_s,
                                 u"a"_s,   u"<%"_s,       u"%>"_s,    u"<!--"_s, u"-->"_s,   u"<?php"_s, u"?>"_s,
                                 u"<cf"_s, u"script"_s,   u"title"_s, u"<svg"_s, u"<!---"_s, u"--->"_s,  u"<!"_s,
                                 u":"_s,   u"cfscript"_s, u"</"_s,    u"-"_s};
        QRandomGenerator random(1);
        for (int round = 0; round < 20000; ++round) {
            const QString source = generatedText(random, pieces, 30);
            qsizetype end = 0;
            for (const PagePiece &piece : scanPage(source)) {
                QCOMPARE(piece.begin, end);
                QVERIFY2(piece.end > piece.begin || piece.kind == PieceKind::Value, qPrintable(source));
                end = piece.end;
            }
            QCOMPARE(end, source.size());
        }
    }

    /// A text of ten times the size may take twenty times as long, but not a hundred times.
    void takesTimeInProportion_data()
    {
        QTest::addColumn<QString>("unit");
        for (const QString &unit :
             {u"<"_s, u"<a b=\""_s, u"<!--"_s, u"<!---"_s, u"<?"_s, u"<? "_s, u"<%"_s, u"<script>"_s, u"<cfscript>"_s,
              u"<![CDATA["_s, u"<title"_s, u"</"_s, u"<p <% %>"_s, u"<!-- --!"_s, u"<<% %>"_s, u"<svg>"_s, u"&"_s})
            QTest::newRow(qPrintable(unit)) << unit;
    }

    void takesTimeInProportion()
    {
        QFETCH(QString, unit);
        const auto measured = [](const QString &text) {
            qint64 best = std::numeric_limits<qint64>::max();
            for (int i = 0; i < 5; ++i) {
                QElapsedTimer time;
                time.start();
                scanPage(text);
                best = std::min(best, time.nsecsElapsed());
            }
            return best;
        };
        const qint64 few = measured(unit.repeated(20000));
        const qint64 many = measured(unit.repeated(200000));
        QVERIFY2(many < 40 * few + 20'000'000, qPrintable(u"%1 ns, then %2 ns"_s.arg(few).arg(many)));
    }

    void tagNames()
    {
        bool isEnd = true;
        QCOMPARE(tagNameOf(u"<Table border=\"", &isEnd), u"Table"_s);
        QVERIFY(!isEnd);
        QCOMPARE(tagNameOf(u"</p >", &isEnd), u"p"_s);
        QVERIFY(isEnd);
        QCOMPARE(tagNameOf(u"\">"), u""_s);
        QCOMPARE(tagNameOf(u"<"), u""_s);
    }
};

ZEPHIRA_TEST(TstPageScan)
#include "tst_pagescan.moc"
