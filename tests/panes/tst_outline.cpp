// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/errorstyles.h"
#include "panes/outline.h"
#include "panes/plainoutline.h"
#include "support/testregistry.h"
#include "support/textgenerator.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString badArgument = u"Invalid procedure call or argument"_s;
const QString overflow = u"Overflow"_s;

/// A leaf as one line: the key of its group, its caption, and its tag text if that differs from the inner text of the
/// tag at its position.
QString lineOf(const OutlineLeaf &leaf, const QString &text)
{
    QString line = outlineRoots()[static_cast<std::size_t>(leaf.group)].key.toString() + u": "_s + leaf.caption;
    const QString tag = u'<' + leaf.tagText;
    if (text.mid(leaf.position, tag.size()) != tag)
        line += u" [not at its place]"_s;
    return line;
}

struct Found {
    QStringList lines;
    std::vector<OutlineLeaf> leaves;
    /// The description of the error that ended the scan.
    QString error;
};

Found scan(const QString &text)
{
    Found found;
    try {
        scanOutline(text, [&](OutlineLeaf &&leaf) {
            found.lines.append(lineOf(leaf, text));
            found.leaves.push_back(std::move(leaf));
        });
    } catch (const HandlerError &error) {
        found.error = error.description;
    }
    return found;
}

Found plainScan(const QString &text)
{
    Found found;
    PlainOutline outline;
    try {
        outline.parse(text);
    } catch (const HandlerError &error) {
        found.error = error.description;
    }
    for (const OutlineLeaf &leaf : outline.leaves)
        found.lines.append(lineOf(leaf, text));
    found.leaves = std::move(outline.leaves);
    return found;
}

QTestData &row(const char *name, const QString &text, const QStringList &lines, const QString &error = {})
{
    return QTest::newRow(name) << text << lines << error;
}

const QStringList pieces{
    u"<"_s,        u">"_s,         u"<a"_s,         u"<A "_s,          u"<img "_s,    u"<bgsound"_s,   u"<body>"_s,
    u"<Head "_s,   u"<TABLE"_s,    u"<form "_s,     u"<input "_s,      u"<select"_s,  u"<textarea "_s, u"<font "_s,
    u"<div "_s,    u"<script"_s,   u"</Script>"_s,  u"</style"_s,      u"<style>"_s,  u"<layer "_s,    u"<title>"_s,
    u"</title>"_s, u"<h1>"_s,      u"<H6 "_s,       u"<h7>"_s,         u"<ol>"_s,     u"<d>"_s,        u"<dl>"_s,
    u"<dt "_s,     u"<p>"_s,       u"<br>"_s,       u"<blockquote>"_s, u"<center>"_s, u"<meta "_s,     u"<!DOCTYPE "_s,
    u"<!-- "_s,    u" -->"_s,      u"--"_s,         u"<%"_s,           u"%>"_s,       u"/"_s,          u" "_s,
    u"\t"_s,       u"\r\n"_s,      u"="_s,          u"\""_s,           u"'"_s,        u"x"_s,          u"ü"_s,
    u"name="_s,    u"NAME="_s,     u"id="_s,        u"valid=1"_s,      u"Value="_s,   u"type="_s,      u"href="_s,
    u"HREF='"_s,   u"src=\""_s,    u"face="_s,      u"color="_s,       u"size="_s,    u"language="_s,  u"http-equiv="_s,
    u"\u0131d="_s, u"\u017Frc="_s, u"some words"_s,
};

} // namespace

class TstOutline final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fixedNodes()
    {
        QStringList lines;
        for (const OutlineRoot &root : outlineRoots())
            lines.append(
                u"%1|%2|%3|%4"_s.arg(root.caption, root.key, outlineRoots()[static_cast<std::size_t>(root.parent)].key)
                    .arg(static_cast<int>(root.picture)));
        QCOMPARE(lines,
                 (QStringList{
                     u"HTML Outline|Main|Main|1"_s, u"Document|document|Main|4"_s, u"Declaration|declare|Main|4"_s,
                     u"Page Title|title|Main|4"_s, u"Anchors|bookmarks|document|3"_s, u"Comments|comments|document|3"_s,
                     u"Divisions|divisions|document|3"_s, u"Forms|forms|document|3"_s,
                     u"Headings|headings|document|3"_s, u"Images|images|document|3"_s, u"Layers|layers|document|3"_s,
                     u"Links|links|document|3"_s, u"Lists|lists|document|3"_s, u"Scripts|scripts|document|3"_s,
                     u"Styles|styles|document|3"_s, u"Tables|tables|document|3"_s, u"Others|other|document|3"_s}));
    }

    void tags_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("error");
        row("nothing", {}, {});
        row("text alone", u"a > b"_s, {});
        row("body", u"<Body>"_s, {u"document: BODY"_s});
        row("head with an attribute", u"<head id=x>"_s, {u"document: HEAD"_s});
        row("img", u"<img src=a.gif alt=x>"_s, {u"images: a.gif"_s});
        row("img without src", u"<img alt=x>"_s, {u"images: img alt=x"_s});
        row("bgsound", u"<bgsound SRC=\"a.wav\">"_s, {u"images: a.wav"_s});
        row("a alone", u"<a>"_s, {u"bookmarks: a"_s});
        row("a with a target", u"<a href=x>"_s, {u"links: x"_s});
        row("a with both", u"<a name=top href=x>"_s, {u"links: x"_s});
        row("a with a name", u"<a name=top>"_s, {u"bookmarks: top"_s});
        row("a target with a blank", u"<a HREF='x y'>"_s, {u"links: x"_s});
        row("a with an empty target", u"<a href=>"_s, {u"links: "_s});
        row("a line break doesn't end a name", u"<a\nhref=x>"_s, {u"other: a\nhref=x"_s});
        row("a tab doesn't end a name", u"<a\thref=x>"_s, {u"other: a\thref=x"_s});
        row("table", u"<table>"_s, {u"tables: table"_s});
        row("TABLE", u"<TABLE border=1>"_s, {u"tables: TABLE"_s});
        row("form by name", u"<form name=n id=i value=v type=t>"_s, {u"forms: n"_s});
        row("input by id", u"<input type=t value=v id=i>"_s, {u"forms: i"_s});
        row("select by value", u"<select type=t value=v>"_s, {u"forms: v"_s});
        row("textarea by type", u"<textarea type=t>"_s, {u"forms: t"_s});
        row("form with nothing", u"<form action=x>"_s, {u"forms: form action=x"_s});
        row("font by face", u"<font size=2 color=red face=Arial>"_s, {u"styles: Arial"_s});
        row("a face with a blank", u"<font face=\"Times New Roman\">"_s, {u"styles: Times"_s});
        row("font by size", u"<font size=2>"_s, {u"styles: 2"_s});
        row("font", u"<font>"_s, {u"styles: FONT"_s});
        row("div by id", u"<div class=c id=main>"_s, {u"divisions: main"_s});
        row("div", u"<div class=c>"_s, {u"divisions: DIV"_s});
        row("script", u"<script>"_s, {u"scripts: script"_s});
        row("script by source", u"<script type=t id=i language=l src=s.js>"_s, {u"scripts: s.js"_s});
        row("script by language", u"<script type=t id=i language=l>"_s, {u"scripts: l"_s});
        row("layer by id", u"<layer id=i>"_s, {u"layers: i"_s});
        row("layer", u"<layer>"_s, {u"layers: layer"_s});
        row("headings", u"<h1><H2 a><h6><h7>"_s,
            {u"headings: H1"_s, u"headings: H2"_s, u"headings: H6"_s, u"other: h7"_s});
        row("lists", u"<ol><ul type=a><d><dt><dl><dd>"_s,
            {u"lists: OL"_s, u"lists: UL"_s, u"lists: D"_s, u"lists: DT"_s, u"other: dl"_s, u"other: dd"_s});
        row("not shown", u"<p><br><li><html><B><i><u><em><blockquote><><tr><td x><th><Center>"_s, {});
        row("doctype", u"<!DOCTYPE html>"_s, {u"declare: !DOCTYPE"_s});
        row("doctype with a name", u"<!DOCTYPE html name=x>"_s, {u"declare: x"_s});
        row("meta by name", u"<META name=\"author\" content=x>"_s, {u"declare: author"_s});
        row("meta by http-equiv", u"<meta http-equiv=refresh>"_s, {u"declare: refresh"_s});
        row("meta", u"<meta charset=utf-8>"_s, {u"declare: meta charset=utf-8"_s});
        row("style is another", u"<Style type=x>"_s, {u"other: Style"_s});
        row("others as they are written", u"<Span id=x><br/>"_s, {u"other: Span"_s, u"other: br/"_s});
        row("server blocks", u"<% if a>b %><%x%>"_s, {u"other: %"_s, u"other: %x%"_s});
        row("closing tags", u"</body></a></script>"_s, {});
        row("a beginning in running text", u"a < b <i>c<u></u>"_s, {});
        row("an end in a value", u"<img alt=\"a>b\" src=c>"_s, {u"images: img alt=\"a"_s});
        row("a beginning within a tag", u"<div <a href=x>"_s, {u"divisions: DIV"_s});
        row("a beginning without an end", u"<body><a href=x"_s, {u"document: BODY"_s});
        row("what stands behind the last end", u"<body> < a"_s, {u"document: BODY"_s});
    }

    void tags() { check(); }

    void comments_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("error");
        row("long", u"<!-- a long comment here -->"_s, {u"comments: a long co..."_s});
        row("nine characters", u"<!-- 123456789 -->"_s, {u"comments: 123456789"_s});
        row("ten characters", u"<!-- 1234567890 -->"_s, {u"comments: 123456789..."_s});
        row("without blanks", u"<!--text-->"_s, {u"comments: tex"_s});
        row("six characters", u"<!--x-->"_s, {u"comments: "_s});
        row("five characters", u"<body><!---->"_s, {u"document: BODY"_s}, badArgument);
        row("a single dash", u"<!-x>"_s, {}, badArgument);
        row("ends at the first end", u"<!-- a > b -->"_s, {u"comments: "_s});
        row("in a script", u"<script><!-- x --></script>"_s, {u"scripts: script"_s});
        row("in a style sheet", u"<style><!-- x --></style>"_s, {u"other: style"_s});
        row("a short one in a script", u"<script><!--></script>"_s, {u"scripts: script"_s});
        row("other tags in a script", u"<script><div><!-- x -->"_s, {u"scripts: script"_s, u"divisions: DIV"_s});
        row("behind a script", u"<script></SCRIPT><!-- x -->"_s, {u"scripts: script"_s, u"comments: x"_s});
        row("either closing tag ends a block", u"<script></style ><!-- x -->"_s,
            {u"scripts: script"_s, u"comments: x"_s});
        row("a second block", u"<style></style><script><!-- x -->"_s, {u"other: style"_s, u"scripts: script"_s});
    }

    void comments() { check(); }

    void titles_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("error");
        row("before a line end", u"<title>Home</title>\r\n"_s, {u"title: Home"_s});
        row("before a tag", u"<title>Home</title><body>"_s, {u"title: Home"_s, u"document: BODY"_s});
        row("before a blank", u"<title>Home</title> <body>"_s, {u"title: Hom"_s, u"document: BODY"_s});
        row("at the end", u"<title>Home</title>"_s, {u"title: Hom"_s});
        row("before a tab", u"<title>Home</title>\t"_s, {u"title: Home"_s});
        row("blanks within", u"<title> A B </title>\n"_s, {u"title:  A B "_s});
        row("empty before a line end", u"<title></title>\r\n"_s, {u"title: "_s});
        row("empty before a blank", u"<body><title></title> "_s, {u"document: BODY"_s}, badArgument);
        row("empty at the end", u"<title></title>"_s, {}, badArgument);
        row("tags within are seen again", u"<title>a<div></title>\r\n"_s, {u"title: a<div>"_s, u"divisions: DIV"_s});
        row("closed by another tag", u"<title>ab</b>cdefgh"_s, {u"title: ab"_s});
        row("with an attribute", u"<title x=1>Home</title>\r\n"_s, {u"title: x=1>Home"_s});
        row("never closed", u"<body><title>Home"_s, {u"document: BODY"_s}, badArgument);
        row("never closed, at the start", u"<title>Home and so on"_s, {}, badArgument);
        row("two", u"<title>a</title>\n<title>b</title>\n"_s, {u"title: a"_s, u"title: b"_s});
        const auto padded = [](int blanks) { return QString(blanks, u' ') + u"<title>Home</title>\n"_s; };
        row("closed at character 32767", padded(32755), {u"title: Home"_s});
        row("closed at character 32768", padded(32756), {}, overflow);
    }

    void titles() { check(); }

    void theTagTextOfATitleIsCutOutWithIt()
    {
        QCOMPARE(scan(u"<title>Home</title>\r\n"_s).leaves.front().tagText, u"title>Home</title"_s);
        QCOMPARE(scan(u"<title>Home</title>"_s).leaves.front().tagText, u"title>Home</titl"_s);
    }

    void leavesKnowTheirPlaces()
    {
        const Found found = scan(u"ab<body>\r\n<p><a href='x'>"_s);
        QCOMPARE(found.leaves.size(), static_cast<std::size_t>(2));
        QCOMPARE(found.leaves[0].position, static_cast<qsizetype>(2));
        QCOMPARE(found.leaves[0].tagText, u"body"_s);
        QCOMPARE(found.leaves[1].position, static_cast<qsizetype>(13));
        QCOMPARE(found.leaves[1].tagText, u"a href='x'"_s);
    }

    void attributes_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("inner");
        QTest::addColumn<QString>("value");
        const auto attribute = [](const char *row, const QString &name, const QString &inner, const QString &value) {
            QTest::newRow(row) << name << inner << value;
        };
        attribute("plain", u"href"_s, u"a href=x"_s, u"x"_s);
        attribute("any case", u"HRef"_s, u"a hREF=X"_s, u"X"_s);
        attribute("up to a blank", u"href"_s, u"a href=x y"_s, u"x"_s);
        attribute("absent", u"src"_s, u"a href=x"_s, u"a href=x"_s);
        attribute("no text", u"src"_s, {}, {});
        attribute("a blank before the sign", u"href"_s, u"a href =x"_s, u"a href =x"_s);
        attribute("a blank behind the sign", u"href"_s, u"a href= x"_s, {});
        attribute("within another word", u"id"_s, u"a valid=1 id=2"_s, u"1"_s);
        attribute("within another name", u"name"_s, u"a classname=c name=n"_s, u"c"_s);
        attribute("the first wins", u"id"_s, u"a id=1 id=2"_s, u"1"_s);
        attribute("double quotes", u"id"_s, u"a id=\"b\""_s, u"b"_s);
        attribute("apostrophes", u"id"_s, u"a id='b'"_s, u"b"_s);
        attribute("quotes that don't match", u"id"_s, u"a id='b\""_s, u"b"_s);
        attribute("a quote at the end", u"id"_s, u"a id=b'"_s, u"b"_s);
        attribute("one pair of quotes", u"id"_s, u"a id=''b''"_s, u"'b'"_s);
        attribute("a quote alone", u"id"_s, u"a id=\""_s, {});
        attribute("two quotes", u"id"_s, u"a id=\"\""_s, {});
        attribute("cut at a blank", u"face"_s, u"font face=\"Times New Roman\""_s, u"Times"_s);
        attribute("a blank behind the quote", u"id"_s, u"a id=\" b\""_s, {});
        attribute("a slash", u"src"_s, u"img src=a/"_s, u"a/"_s);
        attribute("a line break", u"id"_s, u"a\r\nid=b\r\nc=d"_s, u"b\r\nc=d"_s);
        attribute("at character 32767", u"id"_s, QString(32766, u'x') + u"id=b"_s, u"b"_s);
    }

    void attributes()
    {
        QFETCH(QString, name);
        QFETCH(QString, inner);
        QTEST(GetTagAttribute(name, inner), "value");
    }

    void anAttributeFarBehindIsAnError()
    {
        QVERIFY_EXCEPTION_THROWN(GetTagAttribute(u"id"_s, QString(32767, u'x') + u"id=b"_s), HandlerError);
        QCOMPARE(scan(u"<body><div "_s + QString(40000, u'x') + u" id=1>"_s).error, overflow);
        QCOMPARE(scan(u"<div "_s + QString(40000, u'x') + u">"_s).lines, QStringList{u"divisions: DIV"_s});
    }

    void likeTheScanWrittenPlainly()
    {
        QRandomGenerator random(31);
        for (int round = 0; round < 30000; ++round) {
            const QString text = generatedText(random, pieces, 25);
            const Found found = scan(text);
            const Found expected = plainScan(text);
            QCOMPARE(found.lines, expected.lines);
            QCOMPARE(found.error, expected.error);
            for (std::size_t i = 0; i < found.leaves.size(); ++i) {
                QCOMPARE(found.leaves[i].tagText, expected.leaves[i].tagText);
                QCOMPARE(found.leaves[i].position, expected.leaves[i].position);
            }
        }
    }

    void attributesLikeTheOnesWrittenPlainly()
    {
        QRandomGenerator random(32);
        const QStringList names{u"name"_s, u"id"_s, u"src"_s, u"Http-Equiv"_s, u"x"_s};
        for (int round = 0; round < 20000; ++round) {
            const QString inner = generatedText(random, pieces, 12);
            const QString &name = names[random.bounded(names.size())];
            QCOMPARE(GetTagAttribute(name, inner), plainTagAttribute(name, inner));
        }
    }

private:
    void check()
    {
        QFETCH(QString, text);
        const Found found = scan(text);
        QTEST(found.lines, "lines");
        QTEST(found.error, "error");
    }
};

ZEPHIRA_TEST(TstOutline)

#include "tst_outline.moc"
