// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/designer/pageroundtrip.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Texts of the kind that the engine is known to write stand in for it; the designer's own tests have the engine
/// itself.
class TstPageRoundTrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void forEngine_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &source, const QString &expected) {
            QTest::newRow(name) << source << expected;
        };
        row("nothing", u""_s, u""_s);
        row("a fragment", u"a<!-- c -->"_s, u"a<!--zsx0c-->"_s);
        row("a whole page", u"<!-- 1 --><!DOCTYPE html>\r\n<html><body>x</body><!-- 2 -->\r\n</html>\r\n<!-- 3 -->"_s,
            u"<!DOCTYPE html><html><body>x"_s);
        row("without a body's end", u"<html><p>x\r\n<!-- 2 -->"_s, u"<html><p>x\r\n<!--zsx0c-->"_s);
        row("text after the body", u"<body>x</body>y"_s, u"<body>x</body>y"_s);
        row("a mark of the bytes' order", u"\ufeff<!DOCTYPE html><p>x"_s, u"<!DOCTYPE html><p>x"_s);
        row("a doctype that comes too late", u"x<!DOCTYPE html><p>y"_s, u"x<!--zsx0c--><p>y"_s);
        row("server code at both ends", u"<%@ a %><html>x</html><% b %>"_s, u"<html>x"_s);
    }

    void forEngine()
    {
        QFETCH(QString, source);
        QTEST(PageRoundTrip(source, u"zs"_s).forEngine(), "expected");
    }

    void fromEngine_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("serialised");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &source, const QString &serialised,
                            const QString &expected) { QTest::newRow(name) << source << serialised << expected; };
        row("nothing", u""_s, u"<html><head></head><body></body></html>"_s,
            u"<html>\r\n<head></head>\r\n<body>\r\n</body>\r\n</html>\r\n"_s);
        row("ends to the letter",
            u"<!-- 1 -->\n<!doctype HTML>\r\n<HTML><BODY>x</BODY>\n<!-- 2 -->\r\n</HTML>\r\n<% 3 %>"_s,
            u"<html><head></head><body>y</body></html>"_s,
            u"<!-- 1 -->\n<!doctype HTML>\r\n<html>\r\n<head></head>\r\n<body>y</BODY>\n<!-- 2 -->\r\n</HTML>\r\n<% 3 %>"_s);
        row("an unclosed body", u"<html><body>x</html>"_s, u"<html><head></head><body>x</body></html>"_s,
            u"<html>\r\n<head></head>\r\n<body>x</body></html>"_s);
        row("an unclosed root", u"<html><body>x</body>\r\n"_s, u"<html><head></head><body>x</body></html>"_s,
            u"<html>\r\n<head></head>\r\n<body>x</body>\r\n</html>\r\n"_s);
        row("a fragment", u"x"_s, u"<html><head></head><body>x<b>y</b></body></html>"_s, u"x<b>y</b>"_s);
        row("a fragment with a style sheet", u"<style>a</style>\r\nx"_s,
            u"<html><head><style>a</style>\n</head><body>x</body></html>"_s, u"<style>a</style>\r\nx"_s);
        row("a fragment whose body means something", u"x"_s,
            u"<html><head></head><body style=\"margin: 0\">x</body></html>"_s,
            u"<html>\r\n<head></head>\r\n<body style=\"margin: 0\">x\r\n</body>\r\n</html>\r\n"_s);
        row("frames", u"<html><frameset cols=\"*,*\"><frame></frameset></html>\r\n"_s,
            u"<html><head></head><frameset cols=\"*,*\"><frame noresize=\"\"></frameset></html>"_s,
            u"<html>\r\n<head></head>\r\n<frameset cols=\"*,*\"><frame noresize></frameset></html>\r\n"_s);
        row("text without an end", u"<p>x<plaintext>y"_s,
            u"<html><head></head><body><p>x</p><plaintext>y</b></plaintext></body></html>"_s,
            u"<p>x</p><plaintext>y</b>"_s);
        row("more after an unterminated text", u"<plaintext>y"_s,
            u"<html><head></head><body><plaintext>y</plaintext>z</body></html>"_s,
            u"<plaintext>y</plaintext>z</body></html>"_s);
        row("unclosed server code at the end", u"<html><body>x<% y"_s,
            u"<html><head></head><body>x<!--zsx0s--></body></html>"_s, u"<html>\r\n<head></head>\r\n<body>x<% y"_s);
        row("unclosed server code at the end that moved", u"<html><body>x<% y"_s,
            u"<html><head></head><body><!--zsx0s-->x</body></html>"_s,
            u"<html>\r\n<head></head>\r\n<body><% yx\r\n</body>\r\n</html>\r\n"_s);
        row("an include alone", u"<!--#include file=\"a\" -->"_s, u"<html><head></head><body>x</body></html>"_s,
            u"<!--#include file=\"a\" -->x"_s);
        row("lonely words", u"x"_s,
            u"<html><head></head><body><input checked=\"\" value=\"\" disabled=\"\"></body></html>"_s,
            u"<input checked value=\"\" disabled>"_s);
        row("closed tags", u"<br/><IMG src='a' />"_s,
            u"<html><head></head><body><br><img src=\"a\"><hr></body></html>"_s, u"<br /><img src=\"a\" /><hr />"_s);
        row("tags closed now and then", u"<br/><img src='a'>"_s,
            u"<html><head></head><body><br><img src=\"a\"><hr></body></html>"_s, u"<br><img src=\"a\"><hr>"_s);
        row("lines for blocks", u"x"_s,
            u"<html><head></head><body><p>a</p><p>b</p><hr><ul><li>c</li></ul><i>d</i></body></html>"_s,
            u"<p>a</p>\r\n<p>b</p>\r\n<hr>\r\n<ul><li>c</li></ul><i>d</i>"_s);
        row("a first line end that would be lost", u"x"_s,
            u"<html><head></head><body><pre>\na</pre><pre>b</pre></body></html>"_s,
            u"<pre>\r\n\r\na</pre>\r\n<pre>b</pre>"_s);
        row("references", u"&eacute; <a title=\"&uuml;\">"_s,
            u"<html><head></head><body>é ü <a title=\"é ü\"></a></body></html>"_s,
            u"&eacute; ü <a title=\"é &uuml;\"></a>"_s);
        row("scripts aren't spelled", u"&eacute;"_s,
            u"<html><head></head><body><script>é && \"<\"</script></body></html>"_s, u"<script>é && \"<\"</script>"_s);
        row("marks", u"<td <% a %>><% b %><!-- c -->"_s,
            u"<html><head></head><body><zephira-mark mark=\"zsx1s\"></zephira-mark><p zsx0a=\"\"><!--zsx2c--></p></body></html>"_s,
            u"<% b %><p <% a %>><!-- c --></p>"_s);
        row("a mark into which something got", u"x<% b %>"_s,
            u"<html><head></head><body>x<zephira-mark mark=\"zsx0s\" style=\"top: 0\">y<b>z</b></zephira-mark></body></html>"_s,
            u"x<% b %>"_s);
    }

    void fromEngine()
    {
        QFETCH(QString, source);
        QFETCH(QString, serialised);
        QTEST(PageRoundTrip(source, u"zs"_s).fromEngine(serialised), "expected");
    }

    void fragments()
    {
        PageRoundTrip page(u"x<% a %>"_s, u"zs"_s);
        QCOMPARE(page.fragmentForEngine(u"<b><%= c %></b>"_s), u"<b><!--zsx1s--></b>"_s);
        QCOMPARE(page.fragmentFromEngine(u"<zephira-mark mark=\"zsx1s\"></zephira-mark> &amp; é"_s),
                 u"<%= c %> &amp; é"_s);
    }

    /// Markup from elsewhere isn't as regular as the engine's.
    void emptyValuesWithoutQuotes()
    {
        const PageRoundTrip page(u"x"_s, u"zs"_s);
        QCOMPARE(page.fragmentFromEngine(u"<p a= >b</p>"_s), u"<p a= >b</p>"_s);
        QCOMPARE(page.fragmentFromEngine(u"<input checked=>"_s), u"<input checked=>"_s);
    }
};

ZEPHIRA_TEST(TstPageRoundTrip)
#include "tst_pageroundtrip.moc"
