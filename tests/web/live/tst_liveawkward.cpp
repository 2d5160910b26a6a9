// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/eventwait.h"
#include "support/testregistry.h"
#include "web/live/livebench.h"

#include <QTest>

#include <utility>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Pages of all kinds that a live page has to follow.
class TstLiveAwkward final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bench = std::make_unique<LiveBench>();
        // Some of these pages take seconds, and more on a busy machine.
        m_bench->live.setPatience(LiveBench::patience);
    }
    void cleanup() { m_bench.reset(); }

    /// "|" is what is typed; the page is then the one that a new load would show.
    void followsTyping_data();
    void followsTyping();
    void serverCodeIsNotShown();
    void clicksBesideServerCode();
    void scriptsThatNestDeeply();
    void scriptsThatChangeEverything();

private:
    std::unique_ptr<LiveBench> m_bench;
};

void TstLiveAwkward::followsTyping_data()
{
    QTest::addColumn<QString>("marked");
    const auto row = [](const char *kind, const QString &marked) { QTest::newRow(kind) << marked; };
    row("a fragment", u"one|"_s);
    row("unclosed tags", u"<P>a<P>b<UL><LI>c<LI>d|</UL><TABLE><TR><TD>e<TD>f"_s);
    row("misnested tags", u"<b>x<p>y|</b>z</p><i><u>v</i>w</u>"_s);
    row("text of a table", u"<table>a<tr>b<td>c|</td></tr>d</table>"_s);
    row("a form across a table", u"<table><form><tr><td><input name=a>|</td></tr></form></table>"_s);
    row("nested links", u"<a href=a>x<a href=b>y|</a></a>"_s);
    row("nested forms", u"<form><p>a<form><input name=f>b|</form></form>"_s);
    row("stray end tags", u"</p></b>a</table></br>b|</html>c"_s);
    row("duplicated attributes", u"<p class=a class=b title='x' title=\"y\">a|</p>"_s);
    row("a tag in a value", u"<p title='<b>&lt;|'>a</p>"_s);
    row("a value without its end", u"<p>a|</p><p title='x>b</p><p>c</p>"_s);
    row("a tag without its end", u"<p>a|</p><p class=x"_s);
    row("a comment without its end", u"<p>a</p><!-- b <p>c|"_s);
    row("odd comments", u"<!-->a<!--->b<!-- x --!>c<!x>d<?y>e</ z>f|"_s);
    row("plain text without its end", u"<p>a<textarea>b<p>c|"_s);
    row("a title without its end", u"<title>a<p>b|"_s);
    row("a style without its end", u"<p>a<style>p { color: red|"_s);
    row("the rest as plain text", u"<p>a<plaintext>b<p>c|"_s);
    row("old elements", u"<center><font size=7 color=red>a|</font></center><xmp><b></xmp><listing><i></listing>"_s);
    row("frames", u"<html><frameset cols='1,2'><frame name=a|><frame></frameset><noframes><p>b</noframes></html>"_s);
    row("frames behind text", u"<p>a|</p><frameset><frame></frameset>"_s);
    row("selection lists", u"<select><option>a<option>b|<optgroup label=c><option>d</select><p>e</select>"_s);
    row("drawing and formula",
        u"<svg><title>a|</title><foreignObject><p>b</p></foreignObject><p>c</svg><math><mi>d</mi></math>"_s);
    row("XHTML",
        u"<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\" "
        "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-strict.dtd\">\r\n<html xmlns=\"http://www.w3.org/1999/xhtml\">"
        "<head><title>t</title></head><body><p>a|<br /></p><div/><![CDATA[x]]></body></html>"_s);
    row("two pages", u"<html><body class=a><p>a</body></html><html lang=de><body id=b><p>b|"_s);
    row("a head in the body", u"<body><p>a<head><title>t</title></head><p>b|"_s);
    row("references", u"<p>&eacute;&copy;&ampx&#0;&#x110000;&#128;&nosuch;a|</p>"_s);
    row("control characters", u"<p>a\u0001\u000c\u007f\ufffe\ufeffb|</p>"_s);
    row("a zero character", u"<p>a"_s + QChar(0) + u"b|</p>"_s);
    row("kept line ends", u"<pre>\r\n\r\na\rb\nc|</pre><textarea>\r\nd</textarea>"_s);
    row("PHP",
        u"<?php $a = '<p>'; // ?><p <?= $b ?> title='<?= $c ?>'>a|<?php if ($x > 1): ?><b>d</b><?php endif ?>"_s);
    row("PHP to the end", u"<p>a|</p><?php echo '<p>never</p>';"_s);
    row("ASP", u"<%@ language=vbscript %><p class=<%= a %>>a|<% if b > 1 then %><i>c</i><% end if %>"_s);
    row("JSP", u"<%@ page import=\"a.b\" %><jsp:useBean id=\"a\" /><p>${b}<c:if test=\"${x > 1}\">c|</c:if>"_s);
    row("includes", u"<!--#include file=\"a.inc\" --><p>a|<!--#echo var=\"b\" -->"_s);
    row("ColdFusion", u"<cfset a = \"<p>\"><cfoutput query=\"q\"><p>#b#|</p></cfoutput><cfif x gt 1><b>c</b></cfif>"_s);
    row("server code in a table", u"<table><% do %><tr><td><%= a %>b|</td></tr><% loop %></table>"_s);
    row("server code as a name", u"<<%= tag %> class=a>b|</<%= tag %>><p>c</p>"_s);
    row("content without scripts", u"<head><noscript><link href=x></noscript></head><noscript><p>a</noscript><p>b|"_s);
    row("own elements", u"<my-box><slot name=a></slot><zephira-mark mark=b>c|</zephira-mark></my-box>"_s);
    row("10,000 levels", u"<div>"_s.repeated(10'000) + u"a|"_s + u"</div>"_s.repeated(10'000));
    row("10,000 levels of emphasis", u"<p>a|"_s + u"<b><i>"_s.repeated(500) + u"<p>b"_s);
    row("100,000 attributes", u"<p "_s + u"a=1 "_s.repeated(100'000) + u">b|</p>"_s);
    row("a value of 1 MB", u"<p title='"_s + u"x"_s.repeated(1'000'000) + u"'>a|</p>"_s);
}

void TstLiveAwkward::followsTyping()
{
    QFETCH(QString, marked);
    const QString before = QString(marked).remove(u'|');
    QVERIFY(marked.size() == before.size() + 1);
    QVERIFY(m_bench->show(before));
    QVERIFY(m_bench->show(QString(marked).replace(u"|"_s, u"X"_s)));
    QCOMPARE(m_bench->live.loads(), 1);
    const QString changed = m_bench->html();
    QVERIFY(changed.contains(u'X'));
    m_bench->live.reload();
    const int shown = m_bench->shown;
    QVERIFY(waitUntil([&] { return m_bench->shown > shown; }, LiveBench::patience));
    QCOMPARE(changed, m_bench->html());
    QCOMPARE(m_bench->lost, 0);
}

/// The author sees the page, not the program that makes it; and all that stands around the code.
void TstLiveAwkward::serverCodeIsNotShown()
{
    QVERIFY(
        m_bench->show(u"<?php $a = 1; ?><p id=p title='<?= $b ?>x' <?= $c ?> lang=de>a<%= d %>b<!--#echo var=\"e\" -->c"
                      "<textarea id=t><% f %>g</textarea>"_s));
    QCOMPARE(m_bench->ask(u"p.textContent + '|' + p.title + '|' + p.lang + '|' + t.value"_s), u"abcg|x|de|g"_s);
}

void TstLiveAwkward::clicksBesideServerCode()
{
    const QString html = u"<!DOCTYPE html>\r\n<% if a > b then %>\r\n<p <?= c ?> id=p>a</p>\r\n<?php // <b> ?>"
                         "<h1 title='<%= d %>' id=h>b</h1>"_s;
    QVERIFY(m_bench->show(html));
    for (const auto &[selector, tag] : {std::pair(u"#p"_s, u"<p "_s), std::pair(u"#h"_s, u"<h1 "_s)}) {
        m_bench->clicks.clear();
        m_bench->click(selector);
        QTRY_COMPARE(m_bench->clicks.size(), 1U);
        QCOMPARE(m_bench->clicks[0].first, html.indexOf(tag));
    }
}

/// The parser nests no deeper than some hundred elements; a script may.
void TstLiveAwkward::scriptsThatNestDeeply()
{
    const QString script = u"<script>let at = document.body; for (let i = 0; i < 5000; ++i)"
                           "{ const next = document.createElement('i'); at.append(next); at = next; }</script>"_s;
    QVERIFY(m_bench->show(u"<body><p id=p>a</p>"_s + script));
    QVERIFY(m_bench->show(u"<body><p id=p>ab</p>"_s + script));
    QCOMPARE(m_bench->ask(u"p.textContent"_s), u"ab"_s);
    QCOMPARE(m_bench->lost, 0);
}

/// What a script has removed or put elsewhere doesn't stop the rest.
void TstLiveAwkward::scriptsThatChangeEverything()
{
    const QString script = u"<script>addEventListener('DOMContentLoaded', () => {"
                           "q.remove(); document.body.prepend(r); document.documentElement.className = 'ready';"
                           "document.head.remove(); })</script>"_s;
    const auto page = [&](const QString &typed) {
        return u"<title>t</title>%1<p id=p>a%2</p><p id=q>b%2</p><p id=r>c%2</p>"_s.arg(script, typed);
    };
    QVERIFY(m_bench->show(page({})));
    QVERIFY(m_bench->show(page(u"X"_s)));
    QCOMPARE(m_bench->live.loads(), 1);
    QCOMPARE(
        m_bench->ask(u"[r, p].map(e => e.textContent).join() + document.body.firstChild.id + document.documentElement"
                     ".className"_s),
        u"cX,aXrready"_s);
}

ZEPHIRA_TEST(TstLiveAwkward)

#include "tst_liveawkward.moc"
