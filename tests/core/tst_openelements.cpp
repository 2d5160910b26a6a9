// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/openelements.h"
#include "support/pace.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr qsizetype all = std::numeric_limits<qsizetype>::max();

OpenElements::Text inOnePiece(const QByteArray &text)
{
    return {QByteArrayView(text), QByteArrayView()};
}

/// The names of the elements around the "|" of a text.
QByteArray namesAround(QByteArray text, MarkupRules rules = MarkupRules::Html)
{
    const qsizetype caret = text.indexOf('|');
    text.remove(caret, 1);
    OpenElements elements(rules);
    const std::optional<std::vector<ElementTag>> found = elements.around(inOnePiece(text), caret, all);
    QByteArray names;
    for (const ElementTag &element : found.value_or(std::vector<ElementTag>()))
        names += (names.isEmpty() ? "" : " ") + element.name;
    return names;
}

QByteArray namesOf(const std::vector<ElementTag> &elements)
{
    QByteArray names;
    for (const ElementTag &element : elements)
        names += element.name + QByteArray::number(element.begin) + ' ';
    return names;
}

} // namespace

class TstOpenElements final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Who remembers a place may come when the text has become shorter.
    void aPlaceBehindTheTextIsItsEnd()
    {
        const QByteArray text = "<div><p>text";
        for (const qsizetype behind : {0, 1, 2, 100}) {
            OpenElements elements(MarkupRules::Html);
            const auto found = elements.around(inOnePiece(text), text.size() + behind, all);
            QVERIFY(found);
            QCOMPARE(namesOf(*found), "div0 p5 ");
            // Nothing was read that isn't there.
            const QByteArray longer = text + "<b>";
            elements.changedFrom(text.size());
            QCOMPARE(namesOf(elements.around(inOnePiece(longer), longer.size(), all).value()), "div0 p5 b12 ");
        }
    }

    void around_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("names");
        const auto row = [](const char *what, const char *text, const char *names) {
            QTest::newRow(what) << QByteArray(text) << QByteArray(names);
        };
        row("nothing", "|", "");
        row("text alone", "a|b", "");
        row("in a text", "<html><body><p>a|b</p></body></html>", "html body p");
        row("before a tag", "<div>|<p>a</p></div>", "div");
        row("in a start tag", "<div><p cla|ss=a>a</p></div>", "div p");
        row("behind a start tag", "<div><p>|a</p></div>", "div p");
        row("in an end tag", "<div><p>a</|p></div>", "div p");
        row("before an end tag", "<div><p>a|</p></div>", "div p");
        row("behind an end tag", "<div><p>a</p>|</div>", "div");
        row("behind everything", "<div></div>|", "");
        row("in a tag without content", "<p><img src|=a></p>", "p img");
        row("behind it", "<p><img src=a>|</p>", "p");
        row("in any case", "<DIV><P>|</p></div>", "div p");
        row("a paragraph without its end", "<body><p>a<p>b|", "body p");
        row("a list in a paragraph", "<p>a<ul><li>|", "ul li");
        row("items without their ends", "<ul><li>a<li>b<ul><li>c<li>|", "ul li ul li");
        row("an item in a box of an item", "<ul><li><div><li>|", "ul li");
        row("cells without their ends", "<table><tr><td>a<td>b<tr><td>|", "table tr td");
        row("a table in a cell", "<table><tr><td><table><tr><td>|", "table tr td table tr td");
        row("groups of rows", "<table><thead><tr><th>a<tbody><tr><td>|", "table tbody tr td");
        row("terms", "<dl><dt>a<dd>b<dt>|", "dl dt");
        row("options", "<select><optgroup><option>a<option>b<optgroup><option>|", "select optgroup option");
        row("a head without its end", "<html><head><title>a</title><body>|", "html body");
        row("a stray end tag", "<div></b></p>|", "div");
        row("an end tag for an outer one", "<div><b><i>a</div>|", "");
        row("wrongly nested", "<b><i></b>|", "");
        row("a tag in a value", "<a title=\"<b>\">|", "a");
        row("a bracket in a value", "<a title='x>y' href=z>|", "a");
        row("an apostrophe outside of a value", "<a b='>'c'>|", "a");
        row("half typed", "<div><sp|\n<p>a</p></div>", "div sp");
        row("behind the half typed", "<div><sp\n<p>a|</p></div>", "div sp p");
        row("a script", "<script>if (a<b) '<p>'|</script>", "script");
        row("behind a script", "<script>if (a<b) '<p>'</script>|", "");
        row("a script without its end", "<body><script>'<p>'|", "body script");
        row("a title", "<title>a<b>|</title>", "title");
        row("a comment", "<p><!-- <b> -->|</p>", "p");
        row("in a comment", "<p><!-- <b> |--></p>", "p");
        row("a declaration", "<!DOCTYPE html><p>|", "p");
        row("server code", "<p><?php echo '<b>' ?><% \"<i>\" %>|", "p");
        row("server code in a tag", "<p <?= '>' ?> class=\"<% a %>\">|</p>", "p");
        row("in a drawing", "<svg><path d='a'/><g>|", "svg g");
        row("an empty drawing", "<p><svg/>|", "p");
        row("no tag", "<p>a < b <3 </ |", "p");
        row("a bracket at the end", "<p><|", "p");
        row("names of other letters", "<p><caf\xc3\xa9>|", "p caf\xc3\xa9");
        row("a custom element", "<my-box>|</my-box>", "my-box");
    }
    void around()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, names);
        QCOMPARE(namesAround(text), names);
    }

    void byTheRulesOfXml()
    {
        QCOMPARE(namesAround("<a><B/><p><p>|</p></p></a>", MarkupRules::Xml), QByteArray("a p p"));
        QCOMPARE(namesAround("<A><a></A>|", MarkupRules::Xml), QByteArray(""));
        QCOMPARE(namesAround("<a><![CDATA[<b>]]><?c <d>?>|", MarkupRules::Xml), QByteArray("a"));
        QCOMPARE(namesAround("<br>|", MarkupRules::Xml), QByteArray("br"));
    }

    void theEndOfAnElement_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("element");
        const auto row = [](const char *what, const char *text, const char *element) {
            QTest::newRow(what) << QByteArray(text) << QByteArray(element);
        };
        row("with an end tag", "<b>x</b><p>a|</p>y", "<p>a</p>");
        row("with others inside", "<div>|<div></div></div>y", "<div><div></div></div>");
        row("ended by another one", "<ul><li>a|<li>b</ul>", "<li>a");
        row("ended by an outer one", "<ul><li>|a</ul>", "<li>a");
        row("never ended", "<p>|a", "<p>a");
        row("without content", "<p><im|g src=a>b", "<img src=a>");
        row("a script", "<script>|'</p>'</script>b", "<script>'</p>'</script>");
    }
    void theEndOfAnElement()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, element);
        const qsizetype caret = text.indexOf('|');
        text.remove(caret, 1);
        OpenElements elements;
        const ElementTag innermost = elements.around(inOnePiece(text), caret, all).value().back();
        const qsizetype end = elements.endOf(inOnePiece(text), innermost);
        QCOMPARE(text.sliced(innermost.begin, end - innermost.begin), element);
    }

    /// Whatever was read before, the answer is the same.
    void anyOrderAndAnyChange()
    {
        const QByteArrayView pieces[] = {
            "<div>",    "</div>",    "<p>", "</p>", "<ul><li>", "</ul>", "<", "a ", "<!--", "-->",
            "<script>", "</script>", "<?",  "?>",   "\"",       "<br>",  "=", "/",  ">",    "<table><tr><td>"};
        QRandomGenerator random(1);
        QByteArray text;
        const auto piece = [&] { return pieces[random.bounded(static_cast<int>(std::size(pieces)))]; };
        for (int i = 0; i < 40'000; ++i)
            text += piece();
        OpenElements elements;
        for (int i = 0; i < 400; ++i) {
            if (i % 2 == 0) {
                const qsizetype at = random.bounded(text.size());
                const qsizetype length = std::min<qsizetype>(random.bounded(10), text.size() - at);
                text.replace(at, length, piece());
                elements.changedFrom(at);
            }
            const qsizetype caret = random.bounded(text.size());
            const qsizetype gap = random.bounded(text.size());
            const OpenElements::Text inTwo{QByteArrayView(text).first(gap), QByteArrayView(text).sliced(gap)};
            OpenElements fresh;
            QCOMPARE(namesOf(elements.around(inTwo, caret, all).value()),
                     namesOf(fresh.around(inOnePiece(text), caret, all).value()));
        }
    }

    void inPortions()
    {
        const QByteArray text = "<body>" + QByteArray("<p>a</p>\n").repeated(100'000) + "<i>";
        OpenElements elements;
        int portions = 1;
        std::optional<std::vector<ElementTag>> found;
        for (; !(found = elements.around(inOnePiece(text), text.size(), 100'000)); ++portions) {}
        QCOMPARE(portions, 9);
        QCOMPARE(found->size(), 2U);
        QCOMPARE(found->back().name, QByteArray("i"));
    }

    void manyLevels()
    {
        const QByteArray text = QByteArray("<div>").repeated(10'000) + QByteArray("</div>").repeated(10'000);
        OpenElements elements;
        QCOMPARE(elements.around(inOnePiece(text), 50'000, all).value().size(), 10'000U);
        QCOMPARE(elements.endOf(inOnePiece(text), {0, 5, "div"}), text.size());
        QCOMPARE(elements.around(inOnePiece(text), text.size() - 3, all).value().size(), 1U);
    }

    /// A key in ten million bytes costs only what lies behind the last remembered place.
    void aKeyInALargeText()
    {
        QByteArray text = "<body>" + QByteArray("<p class=a>text</p>\n").repeated(500'000);
        OpenElements elements;
        elements.around(inOnePiece(text), text.size(), all);
        // The least of some rounds, because other programs may disturb one.
        qint64 least = std::numeric_limits<qint64>::max();
        for (int round = 0; round < 10; ++round) {
            QElapsedTimer time;
            time.start();
            for (int i = 0; i < 10; ++i) {
                elements.changedFrom(text.size());
                text += 'a';
                QCOMPARE(elements.around(inOnePiece(text), text.size(), all).value().size(), 1U);
            }
            least = std::min(least, time.nsecsElapsed());
        }
        QVERIFY2(least < pace * 50'000'000, qPrintable(QString::number(least)));
    }
};

ZEPHIRA_TEST(TstOpenElements)

#include "tst_openelements.moc"
