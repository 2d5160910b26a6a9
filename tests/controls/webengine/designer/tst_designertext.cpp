// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/errorstyles.h"
#include "designerbench.h"
#include "support/testregistry.h"

using namespace Qt::StringLiterals;
using namespace zephira;

/// The page's text on its way through the engine and back.
class TstDesignerText : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_bench = std::make_unique<DesignerBench>(); }
    void cleanupTestCase() { m_bench.reset(); }

    void untouched_data();
    void untouched();
    void edited_data();
    void edited();
    void anyMarkupSettles();
    void marksCanBeMoved();
    void serverCodeThatIsPastedIn();
    void namesThatHideTheDocument();
    void fromTheDisk_data();
    void fromTheDisk();
    void fileThatIsNotThere();
    void relativeAddressesLeadFromTheBase();

private:
    /// The page after a change that leaves no trace in it.
    QString roundTrip(const QString &page)
    {
        m_bench->load(page);
        // Not into the last child, which may be a text.
        m_bench->ask(u"document.documentElement.append(new Text('')); null"_s);
        [this] { QTRY_VERIFY_WITH_TIMEOUT(m_bench->designer.isDirty(), DesignerBench::patience); }();
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
        "<table border=\"1\">\r\n<% do while not rs.eof %>\r\n<tbody><tr <% if x > 1 then %>><td><%= rs(\"a\") %></td></tr>\r\n<% loop %>\r\n</tbody></table>\r\n"
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
    row("references as they were", u"&#8217; &quot;a&quot; &euro; <a title=\"&lt;b&gt; &amp; &eacute;\">\u00a0</a> x -> y"_s);
    row("a drawing", u"<svg viewBox=\"0 0 1 1\"><linearGradient id=\"a\"></linearGradient></svg>"_s);
    row("no script", u"<noscript><img src=\"a\"></noscript>"_s);
    row("conditional comments", u"<!--[if IE]><p>a</p><![endif]--><![if !IE]>b<![endif]>"_s);
    row("a word like the designer's own", u"<p>zephira-mark zsx0v</p>"_s);
}

void TstDesignerText::edited()
{
    QFETCH(QString, page);
    QFETCH(QString, expected);
    const QString text = roundTrip(page);
    QCOMPARE(text, expected);
    QCOMPARE(roundTrip(text), text);
}

/// Whatever the page: after one edit and reload the text doesn't change any more.
void TstDesignerText::anyMarkupSettles()
{
    const QStringList pieces{u"<p>"_s,     u"</p>"_s,     u"<div>"_s,  u"</div>"_s, u"<b>"_s,    u"</b>"_s,  u"text"_s,
                             u" "_s,       u"\r\n"_s,     u"&amp;"_s,  u"&eacute;"_s, u"<br>"_s, u"<!-- c -->"_s,
                             u"<% s %>"_s, u"<ul><li>"_s, u"</ul>"_s,  u"<td>"_s,   u"<table>"_s, u"</table>"_s,
                             u"<img a=\"<?= 1 ?>\">"_s,   u"<h1>"_s,   u"</h1>"_s,  u"<pre>"_s,  u"</pre>"_s};
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
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>ab</p>\r\n<p>c</p>"_s);
    m_bench->ask(u"getSelection().collapse(document.body.lastChild.firstChild, 1); null"_s);
    m_bench->run(DesignerCommand::Paste);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>ab</p>\r\n<p>c<% one %></p>"_s);
}

void TstDesignerText::serverCodeThatIsPastedIn()
{
    m_bench->show(u"<p>a|b</p>"_s);
    m_bench->designer.pasteHtml(u"<i title=\"<%= t %>\"><% x %></i><!-- y -->"_s);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>a<i title=\"<%= t %>\"><% x %></i><!-- y -->b</p>"_s);
}

/// Elements whose names are those of the document's own members.
void TstDesignerText::namesThatHideTheDocument()
{
    const QString page = u"<img name=\"body\"><img name=\"documentElement\"><img name=\"createElement\"><img name=\"open\">"
                         "<img name=\"execCommand\"><img name=\"addEventListener\"><form name=\"designMode\"></form><p>a</p>"_s;
    m_bench->load(page);
    m_bench->ask(u"getSelection().selectAllChildren(window.Document.prototype.querySelector.call(document, 'p')); null"_s);
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
    // By value the page is still the one from the disk.
    m_bench->load(page);
    QVERIFY(shows(30));
    m_bench->designer.setBaseFile({});
    m_bench->load(page);
    QVERIFY(shows(0));
}

ZEPHIRA_TEST(TstDesignerText)
#include "tst_designertext.moc"
