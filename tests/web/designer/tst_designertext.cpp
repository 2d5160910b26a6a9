// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/errorstyles.h"
#include "support/testregistry.h"
#include "web/designer/designerbench.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// While it exists, the designer writes whole pages, as it does when the changes can't be told.
class WholePages
{
public:
    explicit WholePages(DesignerWidget &designer) : m_designer(designer) { m_designer.setMergePatience(0); }
    ~WholePages() { m_designer.setMergePatience(DesignerBench::patience); }
    Q_DISABLE_COPY_MOVE(WholePages)

private:
    DesignerWidget &m_designer;
};

} // namespace

/// The page's text on its way through the engine and back.
class TstDesignerText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_bench = std::make_unique<DesignerBench>(); }
    void cleanupTestCase() { m_bench.reset(); }

    void untouched_data();
    void untouched();
    void edited_data();
    void edited();
    void anyMarkupSettles();
    void oneLetterThereAndBack();
    void marksCanBeMoved();
    void serverCodeThatIsPastedIn();
    void namesThatHideTheDocument();
    void fromTheDisk_data();
    void fromTheDisk();
    void fileThatIsNotThere();
    void relativeAddressesLeadFromTheBase();

private:
    /// The page after a change that leaves no trace in its markup.
    QString roundTrip(const QString &page)
    {
        m_bench->load(page);
        // Not into the last child, which may be a text.
        m_bench->ask(u"document.documentElement.append(new Text('')); null"_s);
        m_bench->awaitChange();
        return m_bench->designer.documentHtml();
    }

    std::unique_ptr<DesignerBench> m_bench;
};

void TstDesignerText::untouched_data()
{
    QTest::addColumn<QString>("page");
    const auto row = [](const char *name, const QString &page) { QTest::newRow(name) << page; };
    row("nothing", u""_s);
    row("text", u"a & b\nc"_s);
    row("upper case and sloppy", u"<HTML><BODY BGCOLOR=red><P>a<P>b<BR/></I>"_s);
    row("server code", u"<% x %><td <?php y ?>>&eacute;"_s);
    row("mixed line ends", u"a\r\nb\nc\rd"_s);
    row("frames", u"<frameset rows=*,*><frame src=a.html></frameset>"_s);
}

void TstDesignerText::untouched()
{
    QFETCH(QString, page);
    m_bench->load(page);
    QVERIFY(!m_bench->designer.isDirty());
    QCOMPARE(m_bench->designer.documentHtml(), page);
    m_bench->run(DesignerCommand::SelectAll);
    m_bench->designer.setShowBorders(true);
    m_bench->designer.setShowDetails(true);
    QCOMPARE(m_bench->designer.documentHtml(), page);
    m_bench->designer.setShowBorders(false);
    m_bench->designer.setShowDetails(false);
}

void TstDesignerText::edited_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QString &page, const QString &expected = {}) {
        QTest::newRow(name) << page << (expected.isNull() ? page : expected);
    };
    row("an empty page", u""_s, u"<html>\r\n<head></head>\r\n<body>\r\n</body>\r\n</html>\r\n"_s);
    row("a tidy page",
        u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\" \"http://www.w3.org/TR/html4/strict.dtd\">\r\n"
        "<!-- made by hand -->\r\n<html lang=\"en\">\r\n<head>\r\n<title>A &amp; B</title>\r\n"
        "<meta name=\"a\" content=\"b\">\r\n<script type=\"text/javascript\">\r\nif (a < b && c) d();\r\n</script>\r\n"
        "<style>p > a { color: red }</style>\r\n</head>\r\n<body bgcolor=\"#ffffff\">\r\n<!-- text -->\r\n"
        "<p align=\"center\">caf&eacute; &copy; a &lt; b&nbsp;c</p>\r\n</body>\r\n<!-- end -->\r\n</html>\r\n<!-- after -->\r\n"_s);
    row("line ends become CR LF", u"<html>\n<head></head>\n<body>\na\n</body>\n</html>\n"_s,
        u"<html>\r\n<head></head>\r\n<body>\r\na\r\n</body>\n</html>\n"_s);
    row("upper case and open paragraphs",
        u"<HTML>\r\n<HEAD><TITLE>t</TITLE></HEAD>\r\n<BODY BGCOLOR=red>\r\n<P ALIGN='left' CLASS=a>a\r\n<P>b\r\n</BODY>\r\n</HTML>\r\n"_s,
        u"<html>\r\n<head><title>t</title></head>\r\n<body bgcolor=\"red\">\r\n<p align=\"left\" class=\"a\">a\r\n</p>\r\n<p>b\r\n</p></BODY>\r\n</HTML>\r\n"_s);
    row("a fragment", u"<p>a</p>\r\n<!-- c -->\r\n"_s);
    row("server code everywhere",
        u"<%@ Language=VBScript %>\r\n<!--#include file=\"a.inc\" -->\r\n<html>\r\n<head>\r\n<title><%= title %></title>\r\n"
        "<script>var a = \"<%= a %>\";</script>\r\n<% head %>\r\n</head>\r\n<body <%= attributes %>>\r\n"
        "<table border=\"1\">\r\n<% do while not rs.eof %>\r\n<tr <% if x > 1 then %>><td><%= rs(\"a\") %></td></tr>\r\n<% loop %>\r\n</table>\r\n"
        "<select>\r\n<% for each y %><option value=\"<%= y %>\"><%= y %></option><% next %>\r\n</select>\r\n"
        "<textarea><%= z %></textarea>\r\n<a href=\"a.asp?b=<%= \"c\" %>&amp;d\"><%= e %></a>\r\n"
        "<?php if ($a > 1) { ?>f<?php } ?>\r\n<cfif g gt 1>h<cfelse>i</cfif>\r\n"
        "<asp:TextBox ID=\"T\" runat=\"server\" />\r\n<h<%= n %>>j</h<%= n %>>\r\n</body>\r\n</html>\r\n<% response.end %>\r\n"_s,
        u"<%@ Language=VBScript %>\r\n<!--#include file=\"a.inc\" -->\r\n<html>\r\n<head>\r\n<title><%= title %></title>\r\n"
        "<script>var a = \"<%= a %>\";</script>\r\n<% head %>\r\n</head>\r\n<body <%= attributes %>>\r\n"
        "<table border=\"1\">\r\n<% do while not rs.eof %>\r\n<tr <% if x > 1 then %>><td><%= rs(\"a\") %></td></tr>\r\n<% loop %>\r\n</table>\r\n"
        "<select>\r\n<% for each y %><option value=\"<%= y %>\"><%= y %></option><% next %>\r\n</select>\r\n"
        "<textarea><%= z %></textarea>\r\n<a href=\"a.asp?b=<%= \"c\" %>&amp;d\"><%= e %></a>\r\n"
        "<?php if ($a > 1) { ?>f<?php } ?>\r\n<cfif g gt 1>h<cfelse>i</cfif>\r\n"
        "<asp:TextBox ID=\"T\" runat=\"server\" />\r\n<h<%= n %>>j</h<%= n %>>\r\n</body>\r\n</html>\r\n<% response.end %>\r\n"_s);
    row("server code in a style", u"<p style=\"color: <%= c %>; top: 1px\">a</p>"_s);
    row("frames",
        u"<html>\r\n<head><title>f</title></head>\r\n<frameset cols=\"20%,*\">\r\n<frame src=\"a.html\" name=\"a\">\r\n"
        "<frame src=\"b.html\" noresize>\r\n<noframes><body>no <b>frames</b></body></noframes>\r\n</frameset>\r\n</html>\r\n"_s);
    row("text elements", u"<pre>\r\n\r\na\r\n</pre>\r\n<textarea>\r\n\r\nb</textarea>"_s);
    row("lonely words", u"<input type=\"checkbox\" checked disabled value=\"\"><img src=\"a\" alt=\"\">"_s);
    row("references as they were",
        u"&#8217; &quot;a&quot; &euro; <a title=\"&lt;b&gt; &amp; &eacute;\">\u00a0</a> x -> y"_s);
    row("a drawing", u"<svg viewBox=\"0 0 1 1\"><linearGradient id=\"a\"></linearGradient></svg>"_s);
    row("no script", u"<noscript><img src=\"a\"></noscript>"_s);
    row("conditional comments", u"<!--[if IE]><p>a</p><![endif]--><![if !IE]>b<![endif]>"_s);
    row("a mark of the bytes' order",
        u"\ufeff<!DOCTYPE html>\r\n<html>\r\n<head></head>\r\n<body>\r\n<p>a</p>\r\n</body>\r\n</html>\r\n"_s);
    row("that mark before a fragment", u"\ufeff<p>a</p>"_s);
    row("text before the doctype", u"a<!DOCTYPE html><html><body><p>b</p></body></html>"_s,
        u"<html>\r\n<head></head>\r\n<body>a<!DOCTYPE html><p>b</p></body></html>"_s);
    row("text after the root", u"<html>\r\n<head></head>\r\n<body>\r\na</body></html>b"_s,
        u"<html>\r\n<head></head>\r\n<body>\r\nab\r\n</body>\r\n</html>\r\n"_s);
    row("an include alone", u"<!--#include file=\"a\" -->\r\n"_s);
    row("unclosed server code", u"<p>a</p><% b"_s);
    row("an unclosed comment", u"<html>\r\n<head></head>\r\n<body>a<!-- b"_s);
    row("unclosed server code alone", u"<% a <p>b</p>"_s);
    row("a root without its parts", u"<html>\r\n<p>a</p>\r\n"_s,
        u"<html>\r\n<head></head>\r\n<body><p>a</p>\r\n</body>\r\n</html>\r\n"_s);
    row("a head alone", u"<title>t</title>\r\n<p>a</p>"_s);
    row("text without an end", u"<p>a</p><plaintext>b<i>&amp;"_s);
    row("text without an end in a page", u"<html>\r\n<head></head>\r\n<body><plaintext>b</body></html>"_s);
    row("examples", u"<xmp><b>x</b>&amp;</xmp>"_s);
    row("a template", u"<template><p>a</p><% x %><!-- c --></template>"_s);
    row("names of others", u"<p>a<o:p></o:p> b<o:p>&nbsp;</o:p></p>"_s);
    row("a form in a form", u"<form action=\"a\"><form action=\"b\"><input></form></form>"_s,
        u"<form action=\"a\"><input></form>"_s);
    row("a table in a cell", u"<table><tr><td>a<table><tr><td>b</table></table>"_s,
        u"<table><tr><td>a<table><tr><td>b</td></tr></table></td></tr></table>"_s);
    row("text between rows", u"<table>a<tr><td>b</table>"_s, u"a<table><tr><td>b</td></tr></table>"_s);
    row("groups of rows",
        u"<table><thead><tr><td>a</td></tr></thead><tbody><tr><td>b<table><tr><td>c</td></tr></table></td></tr></tbody><tbody id=\"d\"><tr><td>e</td></tr></tbody></table>"_s);
    row("rows after a head", u"<table><thead><tr><td>a</td></tr></thead><tr><td>b</td></tr></table>"_s);
    row("PHP between rows without a group", u"<table><?php a ?><tr><td>b</td></tr><?php } ?></table>"_s);
    row("statements",
        u"<% if a %><p>b</p><% else %><p>c</p><% end if %><table><% do %><tr><td>d</td></tr><% loop %></table>"_s);
    row("characters now spelled, now not", u"<p title=\"&auml;ä\">&auml; ä &#228; ä &eacute;é</p>"_s);
    row("XHTML",
        u"<?xml version=\"1.0\"?>\r\n<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\" \"http://www.w3.org/TR/xhtml1/DTD/xhtml1-strict.dtd\">\r\n"
        "<html xmlns=\"http://www.w3.org/1999/xhtml\" xml:lang=\"en\">\r\n<head>\r\n<meta name=\"a\" content=\"b &lt; c\" />\r\n<title>t</title>\r\n</head>\r\n"
        "<body>\r\n<p>a<br />b<img src=\"c\" alt=\"\" /></p>\r\n<hr />\r\n<p><input type=\"checkbox\" checked=\"checked\" value=\"\" />&auml;</p>\r\n"
        "<table><tr><td>d</td></tr></table>\r\n</body>\r\n</html>\r\n"_s);
    row("ColdFusion between rows",
        u"<table><tbody><cfoutput query=\"q\"><tr><td>a</td></tr></cfoutput></tbody></table>"_s);
    row("PHP between rows", u"<table><tbody><?php a ?><tr><td>b</td></tr><?php } ?></tbody></table>"_s);
    row("PHP between options", u"<select><?php a ?><option>b</option><?php } ?></select>"_s);
    row("a tag's attribute under a condition", u"<option <?php if ?>selected<?php end ?>>a</option>"_s);
    row("an include in a value", u"<a href=\"<!--#echo var=\"a\" -->\">b</a>"_s);
    row("server code that holds a script's end", u"<script>a = \"<?php \"</script>\" ?>\";</script>"_s);
    row("a script in a comment", u"<script><!-- <script> --></script>"_s);
    row("a large value", u"<p title=\"%1\">a</p>"_s.arg(u"long &amp; "_s.repeated(20000)));
    row("single quotes", u"<p title='a \"b\"'>x</p>"_s, u"<p title=\"a &quot;b&quot;\">x</p>"_s);
    row("crossed tags", u"<b><i>x</b></i>"_s, u"<b><i>x</i></b>"_s);
    row("lone CR", u"<p>a\rb</p>"_s, u"<p>a\r\nb</p>"_s);
    row("comments all around",
        u"<!-- a --><html><!-- b -->\r\n<head><!-- c --></head><!-- d --><body>x</body><!-- e --></html><!-- f -->"_s);
    row("a word like the designer's own", u"<p>zephira-mark zsx0v</p>"_s);
}

void TstDesignerText::edited()
{
    QFETCH(QString, page);
    QFETCH(QString, expected);
    QCOMPARE(roundTrip(page), page);
    const WholePages whole(m_bench->designer);
    const QString text = roundTrip(page);
    QCOMPARE(text, expected);
    QCOMPARE(roundTrip(text), text);
}

/// For any page that is written as a whole: after one edit and a reload the text doesn't change any more.
void TstDesignerText::anyMarkupSettles()
{
    const QStringList pieces{u"<p>"_s,      u"</p>"_s,  u"<div>"_s,      u"</div>"_s,   u"<b>"_s,
                             u"</b>"_s,     u"text"_s,  u" "_s,          u"\r\n"_s,     u"&amp;"_s,
                             u"&eacute;"_s, u"<br>"_s,  u"<!-- c -->"_s, u"<% s %>"_s,  u"<ul><li>"_s,
                             u"</ul>"_s,    u"<td>"_s,  u"<table>"_s,    u"</table>"_s, u"<img a=\"<?= 1 ?>\">"_s,
                             u"<h1>"_s,     u"</h1>"_s, u"<pre>"_s,      u"</pre>"_s};
    const WholePages whole(m_bench->designer);
    QRandomGenerator random(3);
    for (int round = 0; round < 40; ++round) {
        QString page;
        for (int count = random.bounded(1, 20); count > 0; --count)
            page += pieces[random.bounded(pieces.size())];
        const QString once = roundTrip(roundTrip(page));
        QVERIFY2(roundTrip(once) == once, qPrintable(page + u"\n--\n"_s + once + u"\n--\n"_s + roundTrip(once)));
        for (const QString &piece : {u"<% s %>"_s, u"<!-- c -->"_s})
            QVERIFY2(once.count(piece) == page.count(piece), qPrintable(page + u"\n--\n"_s + once));
    }
}

/// One letter is changed, and changed back in the resulting text: everything else is unchanged.
void TstDesignerText::oneLetterThereAndBack()
{
    const QStringList pieces{u"<p class=\"a\">text</p>"_s,
                             u"<% a %>"_s,
                             u"<?php b ?>"_s,
                             u"<!--#include file=\"c\" -->"_s,
                             u"<cfif d gt 1>"_s,
                             u"</cfif>"_s,
                             u"<p title=\"<%= e %>\">"_s,
                             u"<td <?= f ?>>"_s,
                             u"<table><tr><td>"_s,
                             u"</td></tr>"_s,
                             u"</table>"_s,
                             u"<!-- g -->"_s,
                             u"&eacute;"_s,
                             u"é"_s,
                             u"<script>if (h < 1 && i) \"<% j %>\"</script>"_s,
                             u"<style>k{}</style>"_s,
                             u"<title><%= l %></title>"_s,
                             u"<textarea>\n\n<% m %></textarea>"_s,
                             u"<xmp><b></xmp>"_s,
                             u"<noscript><i></noscript>"_s,
                             u"<svg><title>n</title></svg>"_s,
                             u"<o:p></o:p>"_s,
                             u"<![if IE]>"_s,
                             u"<body bgcolor=\"red\">"_s,
                             u"<!DOCTYPE html>"_s,
                             u"<html>"_s,
                             u"</body>"_s,
                             u"</html>"_s,
                             u"\r\n"_s,
                             u"\n"_s,
                             u"</form>"_s,
                             u"<form>"_s,
                             u"<select><option>"_s,
                             u"<b>"_s,
                             u"</b>"_s,
                             u"<li>"_s,
                             u"<h1>"_s,
                             u"</p>"_s};
    const auto changed = [this](const QString &page, const QString &from, const QString &to) {
        m_bench->load(page);
        const QString change = uR"js((() => {
            const walker = document.createTreeWalker(document.body ?? document, NodeFilter.SHOW_TEXT);
            while (walker.nextNode() && !walker.currentNode.data.includes('%1'));
            walker.currentNode.data = walker.currentNode.data.replace('%1', '%2');
        })())js"_s;
        m_bench->ask(change.arg(from, to));
        m_bench->awaitChange();
        return m_bench->designer.documentHtml();
    };
    int exact = 0;
    QRandomGenerator random(7);
    for (int round = 0; round < 40; ++round) {
        QString page;
        for (int count = random.bounded(1, 15); count > 0; --count)
            page += pieces[random.bounded(pieces.size())];
        page += u"<p>letter</p>"_s;
        const QString there = changed(page, u"letter"_s, u"lettre"_s);
        const QString back = changed(there, u"lettre"_s, u"letter"_s);
        const QByteArray report = (page + u"\n--\n"_s + there + u"\n--\n"_s + back).toUtf8();
        QVERIFY2(there.contains(u"lettre") && !there.contains(u"letter"), report.constData());
        exact += there == QString(page).replace(u"letter"_s, u"lettre"_s);
        QVERIFY2(back == QString(there).replace(u"lettre"_s, u"letter"_s), report.constData());
        QVERIFY2(changed(back, u"letter"_s, u"lettre"_s) == there, report.constData());
        for (const QString &piece : {u"<% a %>"_s, u"<?php b ?>"_s, u"<!--#include file=\"c\" -->"_s,
                                     u"<cfif d gt 1>"_s, u"<%= l %>"_s, u"<!-- g -->"_s, u"<!DOCTYPE html>"_s})
            QVERIFY2(back.count(piece) == page.count(piece), report.constData());
    }
    // Where the page ends more than once, the whole page may have to be written.
    QVERIFY2(exact >= 39, qPrintable(QString::number(exact)));
}

void TstDesignerText::marksCanBeMoved()
{
    m_bench->load(u"<p>a<% one %>b</p><p>c</p>"_s);
    m_bench->ask(uR"js(
        const range = new Range();
        range.selectNode(document.querySelector('zephira-mark'));
        getSelection().removeAllRanges();
        getSelection().addRange(range);
        null)js"_s);
    QCOMPARE(m_bench->ask(u"zephiraDesigner.state().state.selection"_s).toString(), u"Control"_s);
    m_bench->run(DesignerCommand::Cut);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>ab</p><p>c</p>"_s);
    m_bench->ask(u"getSelection().collapse(document.body.lastChild.firstChild, 1); null"_s);
    m_bench->run(DesignerCommand::Paste);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>ab</p><p>c<% one %></p>"_s);
}

void TstDesignerText::serverCodeThatIsPastedIn()
{
    m_bench->show(u"<p>a|b</p>"_s);
    m_bench->designer.pasteHtml(u"<i title=\"<%= t %>\"><% x %></i><!-- y -->"_s);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>a<i title=\"<%= t %>\"><% x %></i><!-- y -->b</p>"_s);
}

/// Elements that have the names of the document's own members.
void TstDesignerText::namesThatHideTheDocument()
{
    const QString page =
        u"<img name=\"body\"><img name=\"documentElement\"><img name=\"createElement\"><img name=\"open\">"
        "<img name=\"execCommand\"><img name=\"addEventListener\"><form name=\"designMode\"></form><p>a</p>"_s;
    m_bench->load(page);
    m_bench->ask(
        u"getSelection().selectAllChildren(window.Document.prototype.querySelector.call(document, 'p')); null"_s);
    m_bench->run(DesignerCommand::Bold);
    QCOMPARE(m_bench->designer.documentHtml(), QString(page).replace(u">a<"_s, u"><b>a</b><"_s));
}

void TstDesignerText::fromTheDisk_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("UTF-8") << QByteArray("caf\xc3\xa9\r\n") << u"café\r\n"_s;
    QTest::newRow("Windows-1252") << QByteArray("caf\xe9") << u"café"_s;
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe\x61\x00", 4) << u"a"_s;
    QTest::newRow("LF") << QByteArray("a\nb\n") << u"a\r\nb\r\n"_s;
    QTest::newRow("mixed") << QByteArray("a\nb\r\nc") << u"a\nb\r\nc"_s;
}

void TstDesignerText::fromTheDisk()
{
    QFETCH(QByteArray, bytes);
    const QString path = m_bench->write(u"page.html"_s, bytes);
    m_bench->designer.loadDocument(path);
    m_bench->awaitComplete();
    QTEST(m_bench->designer.documentHtml(), "text");
    QCOMPARE(m_bench->designer.baseFile(), path);
}

void TstDesignerText::fileThatIsNotThere()
{
    m_bench->load(u"a"_s);
    QVERIFY_EXCEPTION_THROWN(m_bench->designer.loadDocument(m_bench->folder.path() + u"/none.html"_s), HandlerError);
    m_bench->designer.LoadDocument(m_bench->folder.path() + u"/none.html"_s);
    QCOMPARE(m_bench->designer.documentHtml(), u"a"_s);
}

void TstDesignerText::relativeAddressesLeadFromTheBase()
{
    m_bench->write(u"dot.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' width='30' height='20'></svg>");
    const QString width = u"document.images[0].complete ? document.images[0].naturalWidth : -1"_s;
    const auto shows = [&](int pixels) {
        return QTest::qWaitFor([&] { return m_bench->ask(width).toInt() == pixels; }, DesignerBench::patience);
    };
    const QString page = u"<img src=\"dot.svg\">"_s;
    m_bench->designer.loadDocument(m_bench->write(u"page.html"_s, page.toUtf8()));
    m_bench->awaitComplete();
    QVERIFY(shows(30));
    // Passed by value, the page still belongs to the file on the disk.
    m_bench->load(page);
    QVERIFY(shows(30));
    m_bench->designer.setBaseFile({});
    m_bench->load(page);
    QVERIFY(shows(0));
}

ZEPHIRA_TEST(TstDesignerText)
#include "tst_designertext.moc"
