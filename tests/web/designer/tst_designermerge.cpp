// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/installedpages.h"
#include "support/testregistry.h"
#include "web/designer/designerbench.h"
#include "web/designer/mergefigures.h"
#include "web/designer/pageedits.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QSignalSpy>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Only what is touched in the designer changes in the source.
class TstDesignerMerge final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_bench = std::make_unique<DesignerBench>(); }
    void cleanupTestCase() { m_bench.reset(); }

    void edited_data();
    void edited();
    void emptiedParagraphs_data();
    void emptiedParagraphs();
    void emptyParagraphsOfTheAuthor();
    void xmlStaysXml();
    void changesLeadToTheText();
    void severalWritesFromOneLoad();
    void undoneIsUntouched();
    void outOfTime();
    void deeplyNested();
    void veryLarge();
    void afterALoss();
    void randomEdits_data();
    void randomEdits();
    void realPages();

private:
    void act(const QString &script)
    {
        m_bench->ask(script + u"; null"_s);
        m_bench->awaitChange();
    }

    std::unique_ptr<DesignerBench> m_bench;
};

void TstDesignerMerge::edited_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QString &page, const QString &edit, const QString &expected) {
        QTest::newRow(name) << page << edit << expected;
    };
    // In the scripts, $(selector) is an element, and letter() adds a letter to the text with that word.
    const QString letter = u"letter('word')"_s;
    const auto letterIn = [&](const char *name, const QString &page) {
        row(name, page, letter, QString(page).replace(u"word"_s, u"wordX"_s));
    };
    letterIn("open paragraphs", u"<HTML><BODY BGCOLOR=white>\r\n<P ALIGN=left>a word\r\n<P>b</BODY></HTML>"_s);
    letterIn("a fragment", u"<LI>a<LI>word<B>c"_s);
    letterIn("beside references", u"<p>caf&eacute;&nbsp;word&copy 2001 &amp b"_s);
    letterIn("text before a table", u"<table>word<tr><td>b</table>"_s);
    letterIn("text moved out of a table", u"<table><caption>a</caption><tr><td>b</td>a word<td>c</td></tr></table>"_s);
    letterIn("a word that a stray end tag divides", u"<p>a x</i>word b"_s);
    letterIn("crossed tags", u"<b><i>a</b> word</i> c"_s);
    letterIn("repeated attributes", u"<p id=a ID='b' title='\"' / >word"_s);
    letterIn("stray end tags", u"<p>a</i></p></p> word</div> b"_s);
    letterIn("server code all around",
             u"<%@ a %><table><% do %><tr <%= b %>><td title=\"<%= c %>\">word<% loop %></table>"_s);
    letterIn("an unclosed comment", u"<p>word<!-- b"_s);
    letterIn("upper-case SVG and CDATA", u"<SVG><![CDATA[ a ]]></SVG><P>word"_s);
    letterIn("line ends of all kinds", u"<p>a\n<p>word\r\n<p>b\rc"_s);
    letterIn("a first line of text", u"<pre>\r\n\r\nword</pre><textarea>\r\n\r\na</textarea>"_s);
    letterIn("XHTML",
             u"<?xml version='1.0'?><!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\" \"a\"><html "
             "xmlns='http://www.w3.org/1999/xhtml'><head><title>t</title><meta name='a' /></head><body><p>word<br/></p>"
             "</body></html>"_s);
    letterIn("a form in a table", u"<table><form action=a><tr><td>word<input></form></table>"_s);
    letterIn("no script", u"<head><noscript><link href=a></noscript></head><body><noscript><P>x</noscript>word"_s);
    row("a letter in the title", u"<TITLE>a &amp; word</TITLE><P>b"_s, letter, u"<TITLE>a &amp; wordX</TITLE><P>b"_s);
    row("an attribute", u"<P CLASS=a ALIGN=left NoWrap>word<P>b"_s, u"$('p').align = 'right'"_s,
        u"<P CLASS=a ALIGN=\"right\" NoWrap>word<P>b"_s);
    row("a new attribute", u"<P CLASS=a >word<P>b"_s, u"$('p').title = 'x & \"y\"'"_s,
        u"<P CLASS=a title=\"x &amp; &quot;y&quot;\" >word<P>b"_s);
    row("an attribute less", u"<P CLASS=a ID=b>word<P>b"_s, u"$('p').removeAttribute('class')"_s,
        u"<P ID=b>word<P>b"_s);
    row("bold", u"<P>a word b\r\n<P>c"_s, u"select('word'); run('bold')"_s, u"<P>a <b>word</b> b\r\n<P>c"_s);
    row("an element around", u"<P>a word b\r\n<P>c"_s, u"select('word'); run('createLink', 'a.html')"_s,
        u"<P>a <a href=\"a.html\">word</a> b\r\n<P>c"_s);
    row("a paragraph removed", u"<P>a\r\n<P>b\r\n<P>c"_s, u"document.querySelectorAll('p')[1].remove()"_s,
        u"<P>a\r\n<P>c"_s);
    row("a row more", u"<TABLE><TR><TD>a<TD>b\r\n<TR><TD>c<TD>d</TABLE>"_s, u"$('tr').after($('tr').cloneNode(true))"_s,
        u"<TABLE><TR><TD>a<TD>b\r\n<tr><td>a</td><td>b\r\n</td></tr><TR><TD>c<TD>d</TABLE>"_s);
    row("a row of a loop", u"<table><% do %><tr><td><%= a %></td></tr><% loop %></table>"_s,
        u"$('tr').after($('tr').cloneNode(true))"_s,
        u"<table><% do %><tr><td><%= a %></td></tr><tr><td><%= a %></td></tr><% loop %></table>"_s);
    row("a row with server code of its own", u"<table border=1><tr <?= f ?>><td>cell</td></tr>"_s,
        u"$('tr').after($('tr').cloneNode(true))"_s,
        u"<table border=1><tr <?= f ?>><td>cell</td></tr><tr <?= f ?>><td>cell</td></tr>"_s);
    row("a fragment in which more has to be closed", u"<UL><LI>a<LI>b <B>c</UL>word"_s,
        u"const p = document.createElement('p'); $('ul').after(p); p.append('x')"_s,
        u"<UL><LI>a<LI>b <B>c</b></li></ul><p>x</p><b>word</b>"_s);
    row("the end of a page", u"<BODY><UL><LI>a<LI>b <B>c</UL></BODY>"_s,
        u"const p = document.createElement('p'); $('ul').after(p); p.append('x')"_s,
        u"<BODY><UL><LI>a<LI>b <B>c</b></li></ul><p>x</p></BODY>"_s);
    row("a line break in XHTML",
        u"<html xmlns=\"http://www.w3.org/1999/xhtml\"><head><title>t</title></head><body><p>a<br/>word</p></body></html>"_s,
        u"$('p').append(document.createElement('br'))"_s,
        u"<html xmlns=\"http://www.w3.org/1999/xhtml\"><head><title>t</title></head><body><p>a<br/>word<br /></p></body></html>"_s);
    row("markup is spelled", u"<p>word"_s, u"$('p').append(' <% x %> &eacute;')"_s,
        u"<p>word &lt;% x %&gt; &amp;eacute;"_s);
    row("a whole page, where no change is right", u"a<p>word</p>"_s, u"document.body.title = 'x'"_s,
        u"<html>\r\n<head></head>\r\n<body title=\"x\">a<p>word</p>\r\n</body>\r\n</html>\r\n"_s);
}

void TstDesignerMerge::edited()
{
    QFETCH(QString, page);
    QFETCH(QString, edit);
    m_bench->load(page);
    act(editScript(edit));
    QTEST(m_bench->designer.documentHtml(), "expected");
}

void TstDesignerMerge::emptiedParagraphs_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QString &page, const QString &expected) {
        for (const bool byKey : {false, true})
            QTest::addRow("%s, by %s", name, byKey ? "key" : "command") << page << byKey << expected;
    };
    row("between two", u"<p>a</p>\r\n<P>[b]</P>\r\n<p>c</p>"_s, u"<p>a</p>\r\n<p>c</p>"_s);
    row("the last one", u"<p>a</p>\r\n<P>[b]"_s, u"<p>a</p>\r\n"_s);
    row("before a table", u"<h1>[b]</h1><table><tr><td>c</td></tr></table>"_s, u"<table><tr><td>c</td></tr></table>"_s);
    row("alone in a division", u"<div>\r\n<p><b>[b]</b></p></div><p>c</p>"_s, u"<p>c</p>"_s);
    // A page needs a place for the caret.
    row("the only one", u"<p>[b]</p>"_s, u"<p><br></p>"_s);
    row("not the whole text", u"<p>a</p><p>[b]c</p>"_s, u"<p>a</p><p>c</p>"_s);
}

/// A paragraph whose whole text was deleted is gone from the page's text, but the user can still type into it.
void TstDesignerMerge::emptiedParagraphs()
{
    QFETCH(QString, page);
    QFETCH(bool, byKey);
    QFETCH(QString, expected);
    m_bench->show(page);
    if (byKey)
        m_bench->press(Qt::Key_Backspace);
    else
        m_bench->run(DesignerCommand::Delete);
    m_bench->awaitChange();
    const QString shown = m_bench->text();
    QCOMPARE(m_bench->designer.documentHtml(), expected);
    QCOMPARE(m_bench->text(), shown);
    m_bench->type(u"x"_s);
    QTRY_VERIFY_WITH_TIMEOUT(m_bench->body().contains(u'x'), DesignerBench::patience);
    const QString typed = QString(page).replace(u"[b]"_s, u"x"_s);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->designer.documentHtml().remove(u"<b>"_s).remove(u"</b>"_s),
                              QString(typed).remove(u"<b>"_s).remove(u"</b>"_s), DesignerBench::patience);
}

/// The user may look for room between paragraphs that were there before.
void TstDesignerMerge::emptyParagraphsOfTheAuthor()
{
    const QString page = u"<p>word</p><p><br></p><p>a</p>"_s;
    m_bench->load(page);
    act(editScript(u"letter('word')"_s));
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>wordX</p><p><br></p><p>a</p>"_s);
}

/// For the engine, the list ends the paragraph, and the paragraph's end tag makes an empty one.
void TstDesignerMerge::xmlStaysXml()
{
    const auto page = [](const QString &body) {
        return u"<html xmlns=\"http://www.w3.org/1999/xhtml\"><head><title>t</title></head><body>%1</body></html>"_s
            .arg(body);
    };
    m_bench->show(page(u"<p>a</p>\r\n<p>[b]<ul><li>c</li></ul>\r\n</p>\r\n<p>d</p>"_s));
    m_bench->run(DesignerCommand::Delete);
    m_bench->awaitChange();
    QCOMPARE(m_bench->designer.documentHtml(), page(u"<p>a</p>\r\n<ul><li>c</li></ul>\r\n<p></p>\r\n<p>d</p>"_s));
}

void TstDesignerMerge::changesLeadToTheText()
{
    const QString page = u"<P>a word\r\n<P><% x %>b other"_s;
    m_bench->load(page);
    QCOMPARE(m_bench->designer.documentChanges(), TextChanges());
    act(editScript(u"letter('other')"_s));
    QCOMPARE(m_bench->designer.documentHtml(), u"<P>a word\r\n<P><% x %>b otherX"_s);
    QCOMPARE(m_bench->designer.documentChanges(), TextChanges({{page.size(), page.size(), u"X"_s}}));
    m_bench->designer.setMergePatience(0);
    act(editScript(u"letter('word')"_s));
    const QString whole = m_bench->designer.documentHtml();
    m_bench->designer.setMergePatience(DesignerBench::patience);
    QCOMPARE(whole, u"<p>a wordX\r\n</p>\r\n<p><% x %>b otherX</p>"_s);
    QCOMPARE(m_bench->designer.documentChanges().size(), 1U);
    QCOMPARE(withChanges(page, m_bench->designer.documentChanges()), whole);
}

void TstDesignerMerge::severalWritesFromOneLoad()
{
    m_bench->load(u"<P>a word\r\n<P>b other"_s);
    act(editScript(u"letter('word')"_s));
    QCOMPARE(m_bench->designer.documentHtml(), u"<P>a wordX\r\n<P>b other"_s);
    act(editScript(u"letter('other')"_s));
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->designer.documentHtml(), u"<P>a wordX\r\n<P>b otherX"_s,
                              DesignerBench::patience);
    m_bench->load(u"<P>word"_s);
    act(editScript(u"letter('word')"_s));
    QCOMPARE(m_bench->designer.documentHtml(), u"<P>wordX"_s);
}

void TstDesignerMerge::undoneIsUntouched()
{
    const QString page = u"<P>a word\r\n<P>b"_s;
    m_bench->load(page);
    act(editScript(u"$('p').append(document.createElement('img'))"_s));
    QCOMPARE(m_bench->designer.documentHtml(), u"<P>a word\r\n<img><P>b"_s);
    act(u"document.querySelector('img').remove()"_s);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->designer.documentHtml(), page, DesignerBench::patience);
    QVERIFY(m_bench->designer.isDirty());
}

/// When the time is up, the whole page is written.
void TstDesignerMerge::outOfTime()
{
    QString page;
    for (int number = 0; number < 3000; ++number)
        page += u"<P>paragraph %1\r\n"_s.arg(number);
    m_bench->load(page + u"<P>word"_s);
    act(editScript(u"letter('word')"_s));
    m_bench->designer.setMergePatience(1);
    const QString text = m_bench->designer.documentHtml();
    m_bench->designer.setMergePatience(DesignerBench::patience);
    QCOMPARE(m_bench->designer.wholePage(), WholePage::NotFound);
    QVERIFY2(text.startsWith(u"<p>paragraph 0\r\n</p>\r\n<p>paragraph 1"), qPrintable(text.left(100)));
}

/// The engine doesn't nest elements as deep as that.
void TstDesignerMerge::deeplyNested()
{
    constexpr int depth = 10000;
    const QString page = u"<P>word\r\n"_s + u"<DIV>"_s.repeated(depth) + u"deep"_s + u"</DIV>"_s.repeated(depth);
    m_bench->load(page);
    act(editScript(u"letter('word')"_s));
    QCOMPARE(m_bench->designer.documentHtml(), QString(page).replace(u"word"_s, u"wordX"_s));
    act(editScript(u"letter('deep')"_s));
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->designer.documentHtml(),
                              QString(page).replace(u"word"_s, u"wordX"_s).replace(u"deep"_s, u"deepX"_s),
                              DesignerBench::patience);
}

/// A page that is too large for the checks is written as a whole, and nothing of it is lost.
void TstDesignerMerge::veryLarge()
{
    constexpr qsizetype words = 10000;
    constexpr int paragraphs = 85;
    const QString line = u"<P CLASS=a><% x %> &eacute;"_s + u" text"_s.repeated(words);
    m_bench->load(u"<P>word"_s + line.repeated(paragraphs));
    act(editScript(u"letter('word')"_s));
    QElapsedTimer time;
    time.start();
    const QString text = m_bench->designer.documentHtml();
    QVERIFY2(time.elapsed() < 10000, qPrintable(QString::number(time.elapsed())));
    QVERIFY2(text.startsWith(u"<p>wordX</p>\r\n<p class=\"a\"><% x %> &eacute; text"), qPrintable(text.left(100)));
    QCOMPARE(text.count(u"<% x %> &eacute;"_s), paragraphs);
    QCOMPARE(text.count(u" text"_s), paragraphs * words);
    QCOMPARE(m_bench->designer.wholePage(), WholePage::TooLarge);
    // The next page is another one.
    m_bench->load(u"<P>word"_s);
    QCOMPARE(m_bench->designer.wholePage(), WholePage::No);
    act(editScript(u"letter('word')"_s));
    QCOMPARE(m_bench->designer.documentHtml(), u"<P>wordX"_s);
    QCOMPARE(m_bench->designer.wholePage(), WholePage::No);
}

void TstDesignerMerge::afterALoss()
{
    m_bench->load(u"<P>a word"_s);
    act(editScript(u"letter('word')"_s));
    m_bench->designer.page().runJavaScript(u"null"_s);
    // The copy for a loss arrives a moment after the change.
    QTest::qWait(500);
    QSignalSpy complete(&m_bench->designer, &DesignerWidget::DocumentComplete);
    ::kill(static_cast<pid_t>(m_bench->designer.page().renderProcessPid()), SIGKILL);
    QVERIFY(complete.wait(DesignerBench::patience));
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>a wordX</p>"_s);
    act(editScript(u"letter('word')"_s));
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>a wordXX</p>"_s);
}

void TstDesignerMerge::randomEdits_data()
{
    QTest::addColumn<int>("damage");
    QTest::newRow("as written") << 0;
    QTest::newRow("3 % of the tags damaged") << 3;
    QTest::newRow("10 % of the tags damaged") << 10;
}

/// Whatever is done to whatever page: what is written is read as the edited page.
void TstDesignerMerge::randomEdits()
{
    QFETCH(int, damage);
    QRandomGenerator random(static_cast<quint32>(17 + damage));
    int merged = 0;
    const int rounds = 25;
    for (int round = 0; round < rounds; ++round) {
        const QString page = randomPage(random, damage);
        const RandomEdit outcome = editAtRandom(*m_bench, page, random, 1 + round % 3);
        merged += !outcome.isWhole;
        QVERIFY2(outcome.fault.isEmpty(), qPrintable(outcome.fault));
    }
    QVERIFY2(merged >= rounds * 8 / 10, qPrintable(QString::number(merged)));
}

/// A short form of what the program mergefigures measures.
void TstDesignerMerge::realPages()
{
    constexpr int wantedPages = 12;
    const QStringList pages = installedPages(
        wantedPages, [](const QByteArray &page) { return page.contains("<body") && page.size() < 60000; });
    QCOMPARE(pages.size(), wantedPages);
    const MergeFigures figures = measureMerges(*m_bench, pages);
    const QByteArray report = (figures.table() + figures.faults.join(u'\n')).toUtf8();
    QVERIFY2(figures.faults.isEmpty(), report.constData());
    QCOMPARE(figures.lines[u"untouched"_s], QList<int>(wantedPages, 0));
    for (const QString &edit : {u"letter"_s, u"bold"_s, u"Enter"_s, u"link"_s, u"row"_s})
        QVERIFY2(figures.median(edit) <= 2, report.constData());
    QVERIFY2(figures.median(u"paragraph removed"_s) <= 5, report.constData());
}

ZEPHIRA_TEST(TstDesignerMerge)
#include "tst_designermerge.moc"
