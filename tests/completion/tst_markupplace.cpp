// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/markupplace.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;

namespace {

/// A place in short: its kind, and what has been typed of it.
struct Expected {
    PlaceKind kind = PlaceKind::None;
    QByteArray typed = {};
    QByteArray tag = {};
    QByteArray attribute = {};
};

} // namespace

/// What stands at places of HTML and XML, also of broken pages.
class TstMarkupPlace final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void places_data()
    {
        using enum PlaceKind;
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<QByteArray>("tag");
        QTest::addColumn<QByteArray>("attribute");
        const auto add = [](const char *text, const Expected &expected) {
            QTest::newRow(text) << QByteArray(text) << static_cast<int>(expected.kind) << expected.typed << expected.tag
                                << expected.attribute;
        };
        add("<", {Tag});
        add("<p><", {Tag});
        add("<ta", {Tag, "ta"});
        add("<p>x</p> <d", {Tag, "d"});
        add("a < b", {Words, "b"});
        add("a <3", {Words, "3"});
        add("</", {ClosingTag});
        add("<p></p", {ClosingTag, "p"});
        add("<p>x</p ", {None});
        add("<div ", {Attribute, "", "div"});
        add("<DIV\n\t", {Attribute, "", "div"});
        add("<div cl", {Attribute, "cl", "div"});
        add("<img src=a.png al", {Attribute, "al", "img"});
        add("<img src=\"a>b\" ", {Attribute, "", "img"});
        add("<input disabled ", {Attribute, "", "input"});
        add("<a href=\"x\"", {None});
        add("<p title=\"a\"b", {None});
        add("<br/ ", {Attribute, "", "br"});
        add("<p>text ", {Words});
        add("<p>some wo", {Words, "wo"});
        add("<input type=", {Value, "", "input", "type"});
        add("<input type=\"", {Value, "", "input", "type"});
        add("<input type='te", {Value, "te", "input", "type"});
        add("<input type=te", {Value, "te", "input", "type"});
        add("<input TYPE = \"te", {Value, "te", "input", "type"});
        add("<a rel=\"next no", {Value, "no", "a", "rel"});
        add("<p class=\"one tw", {Class, "tw", "p", "class"});
        add("<label for=\"na", {Id, "na", "label", "for"});
        add("<a href=\"#to", {Id, "to", "a", "href"});
        add("<img usemap=\"#ma", {Id, "ma"});
        add("<a href=\"pages/in", {File, "in", "a", "href"});
        add("<img src=\"", {File, "", "img", "src"});
        add("<a onclick=\"go", {None});
        add("<p style=\"", {Property});
        add("<p style=\"col", {Property, "col"});
        add("<p style=\"color:", {PropertyValue, "", "", "color"});
        add("<p style=\"top:0; color: re", {PropertyValue, "re", "", "color"});
        add("a &", {Entity});
        add("a &am", {Entity, "am"});
        add("a &#12", {Entity, "#12"});
        add("a &amp; b", {Words, "b"});
        add("a & b", {Words, "b"});
        add("<p title=\"a &am", {Entity, "am"});
        add("<a href=\"x?a=1&b", {File, "x?a=1&b", "a", "href"});
        add("<!-- <", {None});
        add("<!-- a --><", {Tag});
        add("<!DOCTYPE ht", {None});
        add("<!DOCTYPE html><h", {Tag, "h"});
        add("<script>if (a <", {Words});
        add("<script>fun", {Words, "fun"});
        add("<script>x</script><", {Tag});
        add("<SCRIPT>x</Script ><", {Tag});
        add("<script>x</", {ClosingTag});
        add("<script>x</scr", {ClosingTag, "scr"});
        add("<script>a</b", {Words, "b"});
        add("<style>", {Selector});
        add("<style>p { col", {Property, "col"});
        add("<style>p { color: r", {PropertyValue, "r", "", "color"});
        add("<style>a:", {Pseudo, ":"});
        add("<style>p{}</style><", {Tag});
        add("<textarea><p", {Words, "p"});
        add("<title>a &l", {Entity, "l"});
        add("<?php if ($a <", {None});
        add("<?php $a ?><", {Tag});
        add("<?php $a", {None});
        add("<% a < b", {None});
        add("<% a %><", {Tag});
        add("<p class=\"<?= $a ?> b", {Class, "b", "p", "class"});
        add("<p class=\"<?= $a", {None});
        add("<p <% if %> ", {Attribute, "", "p"});
        add("<p <% if ", {None});
        add("<td><% x %></td", {ClosingTag, "td"});
        // Broken pages.
        add("<div <p ", {Attribute, "", "p"});
        add("<p title=\"x>\n<b class=\"", {Class, "", "b", "class"});
        add("<p title=\"x>\n<b ", {Attribute, "", "b"});
        add("<p \"\" ", {Attribute, "", "p"});
        add("<p = x ", {Attribute, "", "p"});
        add("</div <b", {Tag, "b"});
        add("<<", {Tag});
        add("< p", {Words, "p"});
        add("<\xc3\xa4", {Words, "\xc3\xa4"});
        add("", {Words});
        add("<p a\xc3\xa4", {Attribute, "a\xc3\xa4", "p"});
    }

    void places()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, typed);
        const CompletionPlace place = markupPlace(text, false);
        QTEST(static_cast<int>(place.kind), "kind");
        if (place.kind == PlaceKind::None)
            return;
        QCOMPARE(text.sliced(place.start), typed);
        if (place.kind != PlaceKind::Tag)
            QTEST(place.tag, "tag");
        QTEST(place.attribute, "attribute");
    }

    void placesOfXml_data()
    {
        using enum PlaceKind;
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QByteArray>("tag");
        QTest::newRow("tag") << QByteArray("<?xml version=\"1.0\"?><") << static_cast<int>(Tag) << QByteArray();
        QTest::newRow("instruction") << QByteArray("<?xml ver") << static_cast<int>(None) << QByteArray();
        QTest::newRow("case") << QByteArray("<Item ") << static_cast<int>(Attribute) << QByteArray("Item");
        QTest::newRow("prefix") << QByteArray("<xs:Item ") << static_cast<int>(Attribute) << QByteArray("xs:Item");
        QTest::newRow("script") << QByteArray("<script><") << static_cast<int>(Tag) << QByteArray();
        QTest::newRow("cdata") << QByteArray("<a><![CDATA[ <") << static_cast<int>(None) << QByteArray();
        QTest::newRow("behind cdata") << QByteArray("<a><![CDATA[ < ]]><") << static_cast<int>(Tag) << QByteArray();
        QTest::newRow("value") << QByteArray("<a b=\"") << static_cast<int>(None) << QByteArray();
        QTest::newRow("file") << QByteArray("<a href=\"") << static_cast<int>(File) << QByteArray("a");
    }

    void placesOfXml()
    {
        QFETCH(QByteArray, text);
        const CompletionPlace place = markupPlace(text, true);
        QTEST(static_cast<int>(place.kind), "kind");
        QTEST(place.tag, "tag");
    }

    void openElements_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("isXml");
        QTest::addColumn<QByteArray>("open"); // the innermost first
        QTest::newRow("nested") << QByteArray("<div><ul><li>a</") << false << QByteArray("li ul div");
        QTest::newRow("closed") << QByteArray("<div><p>a</p></") << false << QByteArray("div");
        QTest::newRow("void") << QByteArray("<p>a<br>b<img src=a></") << false << QByteArray("p");
        QTest::newRow("each once") << QByteArray("<p>a<p>b</") << false << QByteArray("p");
        QTest::newRow("closed from outside") << QByteArray("<table><tr><td>x</table></") << false << QByteArray();
        QTest::newRow("without a partner") << QByteArray("<p></b></i></") << false << QByteArray("p");
        QTest::newRow("any case") << QByteArray("<DIV><P></p></") << false << QByteArray("div");
        QTest::newRow("behind a script") << QByteArray("<div><script>'<b>'</script></") << false << QByteArray("div");
        QTest::newRow("in a comment") << QByteArray("<div><!-- <b> --></") << false << QByteArray("div");
        QTest::newRow("xml") << QByteArray("<a><b/><C></") << true << QByteArray("C a");
        QTest::newRow("xml case") << QByteArray("<a><b></B></") << true << QByteArray("b a");
        QTest::newRow("nothing") << QByteArray("x</") << false << QByteArray();
    }

    void openElements()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, isXml);
        QTEST(markupPlace(text, isXml).open.join(' '), "open");
    }

    void whatStandsThereAlready()
    {
        QCOMPARE(markupPlace("<a href=x ID=\"y\" hidden ", false).taken, (QByteArrayList{"href", "id", "hidden"}));
        QCOMPARE(markupPlace("<p class=\"one two th", false).taken, (QByteArrayList{"one", "two"}));
        QCOMPARE(markupPlace("<a href=\"../pic/a b/x", false).folder, QByteArray("../pic/a b/"));
        QVERIFY(markupPlace("<a rel=\"", false).quoted);
        QVERIFY(!markupPlace("<a rel=", false).quoted);
    }

    void longPagesThatNeverClose()
    {
        QElapsedTimer clock;
        clock.start();
        const QByteArray text = QByteArray("<a></b>").repeated(longestLookBack / 7) + "</";
        QCOMPARE(markupPlace(text, false).open, QByteArrayList{"a"});
        QCOMPARE(markupPlace(QByteArray("<").repeated(longestLookBack), false).kind, PlaceKind::Tag);
        QCOMPARE(markupPlace(QByteArray("<p a=\"").repeated(longestLookBack / 6), false).kind, PlaceKind::Value);
        QVERIFY(clock.elapsed() < 3000);
    }
};

ZEPHIRA_TEST(TstMarkupPlace)

#include "tst_markupplace.moc"
