// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/installedpages.h"
#include "support/testregistry.h"
#include "web/designer/designerbench.h"

#include <QXmlStreamEntityResolver>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// As many real pages as there have to be, and as many as there may be.
constexpr int leastPages = 29;
constexpr int mostPages = 60;

/// The names of characters that the document types of XHTML declare.
class Entities final : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString &) override { return u"?"_s; }
};

/// What a strict parser has against a page, or nothing.
QString fault(const QString &page)
{
    QXmlStreamReader xml(page);
    Entities entities;
    xml.setEntityResolver(&entities);
    while (!xml.atEnd())
        xml.readNext();
    return xml.hasError() ? u"line %1: "_s.arg(xml.lineNumber()) + xml.errorString() : QString();
}

bool isWellFormedXhtml(const QByteArray &content)
{
    const QString page = QString::fromUtf8(content);
    return page.left(600).contains(u"DTD XHTML"_s) && page.contains(u"<body"_s) && fault(page).isEmpty();
}

} // namespace

/// A page that a strict XML parser accepts is still accepted by it after a letter was typed in the designer.
class TstDesignerXhtml final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_bench = std::make_unique<DesignerBench>(); }
    void cleanupTestCase() { m_bench.reset(); }

    void theParserIsStrict();
    void oneLetter_data();
    void oneLetter();
    void realPagesStayWellFormed();

private:
    /// Puts the caret behind the first letter of the page's text that can be typed at.
    bool placeCaret();

    std::unique_ptr<DesignerBench> m_bench;
};

bool TstDesignerXhtml::placeCaret()
{
    return m_bench
        ->ask(u"(() => {"
              "  const texts = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);"
              "  while (texts.nextNode()) {"
              "    const text = texts.currentNode;"
              "    if (/\\w/.test(text.data) && text.parentElement.getClientRects().length > 0"
              "        && !text.parentElement.closest('zephira-mark, select, textarea, button')) {"
              "      document.body.focus();"
              "      getSelection().collapse(text, text.data.search(/\\w/) + 1);"
              "      return true;"
              "    }"
              "  }"
              "  return false;"
              "})()"_s)
        .toBool();
}

void TstDesignerXhtml::theParserIsStrict()
{
    QVERIFY(fault(u"<p a='b'>x<br/>&auml;</p>"_s).isEmpty());
    for (const auto &broken :
         {u"<p>x<br></p>"_s, u"<p a=b>x</p>"_s, u"<p a>x</p>"_s, u"<p>x &amp</p>"_s, u"<P>x</p>"_s})
        QVERIFY2(!fault(broken).isEmpty(), qPrintable(broken));
}

void TstDesignerXhtml::oneLetter_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, const QString &body, const QString &after) {
        QTest::newRow(name) << body << after;
    };
    row("a table without a body", u"<table><tr><td>a</td></tr></table>"_s, u"<table><tr><td>aZ</td></tr></table>"_s);
    row("a table with one", u"<table><tbody><tr><td>a</td></tr></tbody></table>"_s,
        u"<table><tbody><tr><td>aZ</td></tr></tbody></table>"_s);
    row("two rows of server code",
        u"<table><tr><td>a</td></tr><?php foreach ($a as $b) { ?><tr><td><?= $b ?></td></tr><?php } ?></table>"_s,
        u"<table><tr><td>aZ</td></tr><?php foreach ($a as $b) { ?><tr><td><?= $b ?></td></tr><?php } ?></table>"_s);
    row("between server statements", u"<p>a</p><?php if ($x) { ?><?php echo 1; ?>\r\n<?php } ?><p>b</p>"_s,
        u"<p>aZ</p><?php if ($x) { ?><?php echo 1; ?>\r\n<?php } ?><p>b</p>"_s);
    row("a named character", u"<p>a&auml;b &nbsp;&amp;&lt;&euro;</p>"_s, u"<p>aZ&auml;b &nbsp;&amp;&lt;&euro;</p>"_s);
    row("a number for it", u"<p>a&#228;&#xe4;b</p>"_s, u"<p>aZ&#228;&#xe4;b</p>"_s);
    row("empty elements", u"<p>a<br/><img src='x.png' alt=''/><br /><a id=\"n\"></a></p>"_s,
        u"<p>aZ<br/><img src='x.png' alt=''/><br /><a id=\"n\"></a></p>"_s);
    // Browsers ignore the slash and read a start tag.
    row("an element closed at once", u"<p>a</p><div class=\"c\"/><p>b</p>"_s, u"<p>aZ</p><div class=\"c\"/><p>b</p>"_s);
    row("a switch", u"<p>a<input type=\"checkbox\" checked=\"checked\" disabled=\"disabled\" /></p>"_s,
        u"<p>aZ<input type=\"checkbox\" checked=\"checked\" disabled=\"disabled\" /></p>"_s);
    row("a script", u"<p>a</p><script type=\"text/javascript\">//<![CDATA[\r\nif (a < b && c) d();\r\n//]]></script>"_s,
        u"<p>aZ</p><script type=\"text/javascript\">//<![CDATA[\r\nif (a < b && c) d();\r\n//]]></script>"_s);
}

void TstDesignerXhtml::oneLetter()
{
    QFETCH(QString, body);
    QFETCH(QString, after);
    const QString page =
        u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\" "
        "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-strict.dtd\">\r\n<html xmlns=\"http://www.w3.org/1999/xhtml\">"
        "<head><title>t</title><meta name=\"a\" content=\"b\" /></head>\r\n<body>%1</body></html>\r\n"_s;
    m_bench->load(page.arg(body));
    QVERIFY(placeCaret());
    m_bench->type(u"Z"_s);
    m_bench->awaitChange();
    const QString text = m_bench->designer.documentHtml();
    const QString written = text.mid(text.indexOf(u"<body>"_s) + 6);
    QCOMPARE(written.left(written.indexOf(u"</body>"_s)), after);
    QVERIFY2(!fault(page.arg(body)).isEmpty() || fault(text).isEmpty(), qPrintable(fault(text)));
}

void TstDesignerXhtml::realPagesStayWellFormed()
{
    const QStringList pages = installedPages(mostPages, isWellFormedXhtml);
    QVERIFY2(pages.size() >= leastPages, qPrintable(QString::number(pages.size())));
    QStringList harmed;
    int typed = 0;
    for (const QString &path : pages) {
        m_bench->designer.loadDocument(path);
        const QString source = m_bench->designer.documentHtml();
        m_bench->awaitComplete();
        if (!placeCaret())
            continue;
        m_bench->type(u"Z"_s);
        m_bench->awaitChange();
        const QString page = m_bench->designer.documentHtml();
        ++typed;
        if (const QString what = fault(page); !what.isEmpty())
            harmed.append(path + u": "_s + what);
        else if (page.count(u"<tbody"_s) != source.count(u"<tbody"_s))
            harmed.append(path + u": a body of a table"_s);
    }
    QVERIFY2(harmed.isEmpty(), qPrintable(u"%1 of %2\n"_s.arg(harmed.size()).arg(typed) + harmed.join(u'\n')));
    QVERIFY2(typed >= leastPages, qPrintable(QString::number(typed)));
}

ZEPHIRA_TEST(TstDesignerXhtml)
#include "tst_designerxhtml.moc"
