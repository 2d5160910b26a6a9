// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/told.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// What is wrong in a page by the program's own rules.
class TstPageCheck final : public QObject
{
    Q_OBJECT

private:
    static CheckOrder order(const QByteArray &text)
    {
        CheckOrder made = orderFor(text);
        made.tidy = nullptr;
        return made;
    }

private Q_SLOTS:
    void tells_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QByteArray &text, const QStringList &expected = {}) {
            QTest::newRow(name) << text << expected;
        };
        row("empty", "");
        row("text", "a < b && c > d");
        row("unknown tag", "<p><blok>x</blok></p>", {u"3 <blok: The tag <blok> isn't known."_s});
        row("names in capitals", "<P ALIGN=left><FONT COLOR=red>x</FONT></P>");
        row("old tags", "<center><font size=1>x</font></center><marquee>y</marquee>");
        row("own elements", "<my-box foo=1><x:y z=2></x:y></my-box>");
        row("young tags", "<search><dialog open><slot name=a></slot></dialog></search>");
        row("unknown attribute", "<p clas=\"x\">y</p>", {u"?3 clas: <p> has no attribute clas."_s});
        row("attribute of another tag", "<p href=x>y</p>", {u"?3 href: <p> has no attribute href."_s});
        row("free attributes",
            "<p data-a=1 aria-label=b onfoo=c @click=d :e=f #g [h]=i (j)=k v-if=l x.y *ngIf=m $n>o</p>");
        row("drawings", "<svg viewBox='0 0 1 1'><foo bar=1 id=a /><path d='M0'/></svg><p><a href=#a>x</a></p>");
        row("formulas", "<math><mi foo=1>x</mi></math>");
        row("attribute twice", "<p id=a class=b ID=c>d</p>", {u"16 ID: The attribute ID stands here twice."_s});
        row("id twice", "<p id=a></p><p id='b'></p><p id=\"a\"></p>",
            {u"33 a: The id a stands in this page before."_s});
        row("ids differ in case", "<p id=a></p><p id=A></p>");
        row("id in a template", "<template><p id=a></p></template><p id=a></p>");
        row("no alternative", "<img src=a>", {u"?0 <img: <img> has no alt: a text in place of the picture."_s});
        row("alternatives",
            "<img alt=''><img alt><img :alt=x><img role=presentation><img aria-label=a>"
            "<input type=image alt=b><area><area href=x alt=y>");
        row("picture button", "<input type='IMAGE'>",
            {u"?0 <input: <input> has no alt: a text in place of the picture."_s});
        row("no label", "<input><select></select><textarea></textarea>",
            {u"?0 <input: <input> has no label."_s, u"?7 <select: <select> has no label."_s,
             u"?24 <textarea: <textarea> has no label."_s});
        row("labels",
            "<label>a <input></label><label for=b>c</label><input id=b><input title=d><select aria-label=e></select>"
            "<input type=hidden><input type=submit><input type=Button>");
        row("label of another", "<label for=b>c</label><input id=a>", {u"?22 <input: <input> has no label."_s});
        row("no language", "<html><head><title>a</title></head></html>",
            {u"?0 <html: <html> has no lang: the language of the page."_s});
        row("no title", "<html lang=en><head></head><body></body></html>", {u"?14 <head: The page has no title."_s});
        row("empty title", "<html lang=en><head><title> </title></head></html>",
            {u"?14 <head: The page has no title."_s});
        row("whole page",
            "<!DOCTYPE html><html lang=en><head><meta charset=utf-8><title>a</title></head><body></body></html>");
        row("anchor", "<a href='#b'>x</a><a href='#c'>y</a><p id=c></p>",
            {u"9 #b: Nothing in this page has the id b."_s});
        row("anchors", "<a href=#>a</a><a href=#top>b</a><a href='#!/x'>c</a><a href=#n>d</a><a name=n></a>");
        row("anchor in any script",
            "<a href='#\u05d0'>a</a><a href='#%D7%90'>b</a><a href='#\u4e2d'>c</a><p id=\u05d0></p>",
            {u"51 #\u4e2d: Nothing in this page has the id \u4e2d."_s});
        row("base", "<base href='http://x/'><a href=#b>c</a>");
        row("unknown property", "<p style=\"colr: red; color: red\">a</p><style>b { colour: red }</style>",
            {u"?10 colr: The property colr isn't known."_s, u"?49 colour: The property colour isn't known."_s});
        row("style of another kind", "<style type='text/less'>b { colour: red }</style>");
        row("script", "<script>if (a<b) c = '<p foo=1><q'</script>");
        row("comment", "<!-- <blok foo> --><![CDATA[<blok>]]>");
        row("comment without an end", "<p>a</p><!-- b", {u"8 <!--: The comment has no --> at its end."_s});
        row("tag without an end", "<p>a</p><p <b>c</b>", {u"8 <p: The tag has no > at its end."_s});
        row("quote without an end", "<p class=\"a>b</p>", {u"9 \": This quotation mark has no partner."_s});
        row("quote missing", "<p class=\"a>b</p><p id=\"c\">d</p>",
            {u"9 \": A quotation mark seems to be missing behind this one."_s});
        row("quote at the end", "<p class=a id=b\" c'>d</p>", {u"17 c': This quotation mark doesn't belong here."_s});
        row("not closed", "<p><b>a</p>", {u"3 <b: <b> isn't closed before </p>."_s});
        row("not closed at all", "<div>\r\n<p>a", {u"0 <div: <div> isn't closed."_s});
        row("closes nothing", "<p>a</i></p>", {u"4 </i: </i> closes nothing."_s});
        row("crossed", "<b><i>a</b></i>",
            {u"3 <i: <i> isn't closed before </b>."_s, u"11 </i: </i> closes nothing."_s});
        row("may stay open", "<ul><li>a<li>b</ul><table><tr><td>c<tr><td>d</table><p>e<p>f");
        row("no content", "<br><hr/><p>a<wbr>b</p></br>");
        row("names in other scripts", "<p title='\u05e9\u05dc\u05d5\u05dd' \u5c5e=1>\u05e9</p>",
            {u"?20 \u5c5e: <p> has no attribute \u5c5e."_s});
        row("control characters", QByteArray("<p\x01 \x02=1>\x7f</p>"),
            {u"0 <p\x01: The tag <p\x01> isn't known."_s, u"0 <p\x01: <p\x01> isn't closed."_s});
    }

    void tells()
    {
        QFETCH(QByteArray, text);
        QTEST(told(order(text)), "expected");
    }

    void serverCode_data()
    {
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char *name, const QByteArray &text) { QTest::newRow(name) << text; };
        row("in text", "<p><?php if ($a < $b): ?>a<?php endif ?></p>");
        row("alternatives", "<?php if ($a): ?><div id=a class=b><?php else: ?><div id=a><?php endif ?>x</div>");
        row("asp alternatives", "<% If a Then %><div id=\"b\"><% Else %><div id=\"b\"><% End If %></div>");
        row("open here, close there", "<% if a then %><b><% end if %>c<% if a then %></b><% end if %>");
        row("opened elsewhere", "<?php include 'head.php' ?><p>a</p></div></body></html>");
        row("closed elsewhere", "<html lang=en><body><div><p>a</p><?php include 'foot.php' ?>");
        row("in a tag", "<p <?php echo 'x' ?> class=a <% if b %>class=c<% end if %>>d</p>");
        row("in a value", "<img alt=\"\" src=\"<?= $a ?>.png\"><a href='#<%= b %>'>c</a>");
        row("in a name", "<h<?= $n ?>>a</h<?= $n ?>><p data-<%= b %>=c d<%= e %>=f>g</p>");
        row("quotes in code", "<a href=\"<?php echo \"x\"; ?>\" title=\"<%= f(\"y\") %>\">z</a>");
        row("angles in code", "<p class=\"<?= $a > 1 ? 'b' : 'c' ?>\">d</p>");
        row("ids", "<p id=\"<?= $a ?>\"></p><p id=\"<?= $a ?>\"></p><a href=#x>y</a>");
        row("label", "<?= label('a') ?><input id=a>");
        row("label for", "<label for=\"<?= $a ?>\">b</label><input id=c>");
        row("attributes", "<img <?= $attributes ?>><input <% attributes %>>");
        row("head", "<html <?php language_attributes() ?>><head><?php head() ?></head><body></body></html>");
        row("title", "<html lang=en><head><title><?= $t ?></title></head><body></body></html>");
        row("anchor", "<a href=#menu>a</a><?php menu() ?>");
        row("style", "<style>a { <?= $p ?>: b; color: <%= c %> } <% if x %>} <% end if %></style>");
        row("style attribute", "<p style=\"<?= $p ?>: b; color: <%= c %>\">d</p>");
        row("script", "<script>var a = <?= json_encode('</b>') ?>;</script>");
        row("template values", "<p class=\"{{ a }}\" {{b}} id={{c}}>{{ d < e }}<a href=\"{% url 'x' %}\">f</a></p>");
        row("template blocks", "{% if a %}<div id=b>{% else %}<div id=b>{% endif %}</div>");
        row("handlebars", "{{#each a}}<li id=b>{{/each}}{{#if c}}<b>{{else}}<i>{{/if}}");
        row("server tags",
            "<asp:Panel ID=a><c:if test=\"${x > 1}\"><b></c:if></asp:Panel><form runat=server foo=bar></form>");
        row("cold fusion", "<cfif a gt b><div><cfelse><div class=c></cfif></div>");
        row("includes", "<!--#include virtual=\"/head.inc\" --></div>");
        row("not finished", "<p>a</p><?php if (");
        row("declaration",
            "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE html><html xmlns=\"http://www.w3.org/1999/xhtml\" "
            "xml:lang=\"en\"><head><title>a</title></head><body></body></html>");
    }

    /// Server code raises no false alarm, with and without a structure check.
    void serverCode()
    {
        QFETCH(QByteArray, text);
        QCOMPARE(told(order(text)), QStringList());
        QCOMPARE(told(orderFor(text)), QStringList());
        QCOMPARE(told(orderFor(text.replace('\n', "\r\n"))), QStringList());
    }

    /// What is between two pieces of server code is checked all the same.
    void besideServerCode()
    {
        QCOMPARE(told(orderFor("<?php a() ?><p><b>x</p><blok><?php b() ?>")),
                 (QStringList{u"15 <b: <b> isn't closed before </p>."_s, u"23 <blok: The tag <blok> isn't known."_s}));
        QCOMPARE(told(orderFor("<p id=a></p><p id=a></p><?php b() ?><p id=a></p>")),
                 QStringList{u"18 a: The id a stands in this page before."_s});
    }

    /// Without the data nothing is unknown.
    void withoutData()
    {
        CheckOrder bare = order("<blok foo=1 style='a: b'></blok><style>c { d: e }</style>");
        bare.names = std::make_shared<const KnownNames>(std::make_shared<const CompletionData>(QByteArray()));
        QCOMPARE(told(bare), QStringList());
    }
};

ZEPHIRA_TEST(TstPageCheck)

#include "tst_pagecheck.moc"
