// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/eventwait.h"
#include "support/testregistry.h"
#include "web/designer/designerbench.h"

using namespace Qt::StringLiterals;
using namespace zephira;

/// Every command on a page, with its status before; each is undone and redone.
class TstDesignerCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_bench = std::make_unique<DesignerBench>(); }
    void cleanupTestCase() { m_bench.reset(); }

    void commands_data();
    void commands();
    void statuses_data();
    void statuses();

private:
    std::unique_ptr<DesignerBench> m_bench;
};

void TstDesignerCommands::commands_data()
{
    using enum DesignerCommand;
    QTest::addColumn<DesignerCommand>("command");
    QTest::addColumn<QVariant>("argument");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, DesignerCommand command, const QVariant &argument, const QString &before,
                        int status, const QString &after) {
        QTest::newRow(name) << command << argument << before << status << after;
    };
    row("bold", Bold, {}, u"<p>a[b]c</p>"_s, 3, u"<p>a<b>[b]</b>c</p>"_s);
    row("bold off", Bold, {}, u"<p>a<b>[b]</b>c</p>"_s, 7, u"<p>a[b]c</p>"_s);
    row("bold at the caret", Bold, {}, u"<p>a|</p>"_s, 3, u"<p>a|</p>"_s);
    row("italic", Italic, {}, u"<p>[a]</p>"_s, 3, u"<p><i>[a]</i></p>"_s);
    row("underline", Underline, {}, u"<p>[a]</p>"_s, 3, u"<p><u>[a]</u></p>"_s);
    row("font name", SetFontName, u"Courier New"_s, u"<p>[a]</p>"_s, 3,
        u"<p><font face=\"Courier New\">[a]</font></p>"_s);
    row("font size", SetFontSize, 5, u"<p>[a]</p>"_s, 3, u"<p><font size=\"5\">[a]</font></p>"_s);
    row("font size as text", SetFontSize, u"7"_s, u"<p>[a]</p>"_s, 3, u"<p><font size=\"7\">[a]</font></p>"_s);
    row("a size that is none", SetFontSize, 8, u"<p>[a]</p>"_s, 3, u"<p>[a]</p>"_s);
    row("colour", SetForeColor, u"#ff0000"_s, u"<p>[a]</p>"_s, 3, u"<p><font color=\"#ff0000\">[a]</font></p>"_s);
    row("back colour", SetBackColor, u"#ff0000"_s, u"<p>[a]</p>"_s, 3,
        u"<p><span style=\"background-color: rgb(255, 0, 0);\">[a]</span></p>"_s);
    row("numbered list", OrderedList, {}, u"<p>a|</p>"_s, 3, u"<ol><li>a|</li></ol>"_s);
    row("bulleted list of two", UnorderedList, {}, u"<p>[a</p><p>b]</p>"_s, 3, u"<ul><li>[a</li><li>b]</li></ul>"_s);
    row("no list", OrderedList, {}, u"<ol><li>a|</li></ol>"_s, 7, u"<p>a|</p>"_s);
    row("indent", Indent, {}, u"<p>a|</p>"_s, 3,
        u"<blockquote style=\"margin: 0 0 0 40px; border: none; padding: 0px;\"><p>a|</p></blockquote>"_s);
    row("list of another kind", OrderedList, {}, u"<ul><li>[a</li><li>b]</li></ul>"_s, 3,
        u"<ol><li>[a</li><li>b]</li></ol>"_s);
    row("list within a list", UnorderedList, {}, u"<ul><li>a<ul><li>b|</li></ul></li></ul>"_s, 7,
        u"<ul><li>a<p>b|</p></li></ul>"_s);
    row("outdent", Outdent, {}, u"<blockquote><p>a|</p></blockquote>"_s, 3, u"<p>a|</p>"_s);
    row("centre a line of a paragraph", JustifyCenter, {}, u"<p>a<br>|b</p>"_s, 3,
        u"<p style=\"text-align: center;\">a<br>|b</p>"_s);
    row("centre the first line of a paragraph", JustifyCenter, {}, u"<p id=\"x\">a|<br>b</p>"_s, 3,
        u"<p id=\"x\" style=\"text-align: center;\">a|<br>b</p>"_s);
    row("centre lines of two paragraphs", JustifyCenter, {}, u"<p>a<br>[b</p><p>c<b>c<br>d]</b><br>e</p><p>f</p>"_s, 3,
        u"<p style=\"text-align: center;\">a<br>[b</p><p style=\"text-align: center;\">c<b>c<br>d]</b><br>e</p><p>f</p>"_s);
    row("right for a line keeps the style", JustifyRight, {}, u"<h1 style=\"COLOR:red; -x-own: 1\">a<br>b|</h1>"_s, 3,
        u"<h1 style=\"COLOR:red; -x-own: 1; text-align: right\">a<br>b|</h1>"_s);
    row("centre a line of a text with line ends", JustifyCenter, {}, u"<pre>a\nb|\nc</pre>"_s, 3,
        u"<pre style=\"text-align: center;\">a\nb|\nc</pre>"_s);
    row("centre lines beside bare text", JustifyCenter, {}, u"[a<p>b<br>c]</p>"_s, 3,
        u"<p style=\"text-align: center;\">[a</p><p style=\"text-align: center;\">b<br>c]</p>"_s);
    row("centre", JustifyCenter, {}, u"<p>a|</p>"_s, 3, u"<p style=\"text-align: center;\">a|</p>"_s);
    row("right keeps the style", JustifyRight, {}, u"<p style=\"COLOR:red; -x-own: 1\">a|</p>"_s, 3,
        u"<p style=\"COLOR:red; -x-own: 1; text-align: right\">a|</p>"_s);
    row("left", JustifyLeft, {}, u"<p style=\"text-align: center\">a|</p>"_s, 3,
        u"<p style=\"text-align: left\">a|</p>"_s);

    row("bold over a whole", Bold, {}, u"<p>[<b>a</b>b]</p>"_s, 11, u"<p><b>[ab]</b></p>"_s);
    row("a name that is none", SetFontName, u"A \"B\" & <C>"_s, u"<p>[a]</p>"_s, 3, u"<p>[a]</p>"_s);
    row("several colours", SetForeColor, u"#00ff00"_s, u"<p>[a<font color=\"red\">b</font>]</p>"_s, 3,
        u"<p><font color=\"#00ff00\">[ab]</font></p>"_s);
    row("bulleted, partly", UnorderedList, {}, u"<p>[a</p><ul><li>b]</li></ul>"_s, 11,
        u"<ul><li>[a</li><li>b]</li></ul>"_s);
    row("a list in a cell", OrderedList, {}, u"<table><tbody><tr><td>a|</td></tr></tbody></table>"_s, 3,
        u"<table><tbody><tr><td><ol><li>a|</li></ol></td></tr></tbody></table>"_s);
    row("a list of a picture", OrderedList, {}, u"<p>{<img src=\"x\"></p>"_s, 3,
        u"<ol><li>{<img src=\"x\"></li></ol>"_s);
    row("centre a picture", JustifyCenter, {}, u"<p>{<img src=\"x\"></p>"_s, 3,
        u"<p style=\"text-align: center;\">{<img src=\"x\"></p>"_s);
    row("an item deeper", Indent, {}, u"<ul><li>a</li><li>b|</li><li>c</li></ul>"_s, 3,
        u"<ul><li>a<ul><li>b|</li></ul></li><li>c</li></ul>"_s);
    row("items deeper", Indent, {}, u"<ol type=\"a\"><li>a</li><li>[b</li><li>c]</li></ol>"_s, 3,
        u"<ol type=\"a\"><li>a<ol type=\"a\"><li>[b</li><li>c]</li></ol></li></ol>"_s);
    row("the first item deeper", Indent, {}, u"<ul><li>a|</li></ul>"_s, 3, u"<ul><ul><li>a|</li></ul></ul>"_s);
    row("the first item back", Outdent, {}, u"<ul><ul><li>a|</li></ul></ul>"_s, 3, u"<ul><li>a|</li></ul>"_s);
    row("an item back", Outdent, {}, u"<ul><li>a<ul><li style=\"color: red\">b|</li><li>c</li></ul></li></ul>"_s, 3,
        u"<ul><li>a</li><li style=\"color: red\">b|<ul><li>c</li></ul></li></ul>"_s);
    row("an item out of the list", Outdent, {}, u"<ul><li>a</li><li align=\"center\">b|</li></ul>"_s, 3,
        u"<ul><li>a</li></ul><p align=\"center\">b|</p>"_s);

    row("heading", SetBlockFormat, u"Heading 2"_s, u"<p id=\"i\" class=\"c\">a|</p>"_s, 3,
        u"<h2 id=\"i\" class=\"c\">a|</h2>"_s);
    row("normal", SetBlockFormat, u"Normal"_s, u"<h1>a|</h1>"_s, 3, u"<p>a|</p>"_s);
    row("paragraph", SetBlockFormat, u"Paragraph"_s, u"<pre>a|</pre>"_s, 3, u"<p>a|</p>"_s);
    row("formatted", SetBlockFormat, u"Formatted"_s, u"a<b>b|</b>"_s, 3, u"<pre>a<b>b|</b></pre>"_s);
    row("address of several", SetBlockFormat, u"Address"_s, u"<p>[a</p><h1>b]</h1><p>c</p>"_s, 3,
        u"<address>[a</address><address>b]</address><p>c</p>"_s);
    row("format of an empty page", SetBlockFormat, u"Heading 1"_s, u""_s, 3, u"<h1>|<br></h1>"_s);
    row("format in a cell", SetBlockFormat, u"Heading 3"_s, u"<table><tbody><tr><td>a|</td></tr></tbody></table>"_s, 3,
        u"<table><tbody><tr><td><h3>a|</h3></td></tr></tbody></table>"_s);
    row("numbered by name", SetBlockFormat, u"Numbered List"_s, u"<p>[a</p><p>b]</p>"_s, 3,
        u"<ol><li>[a</li><li>b]</li></ol>"_s);
    row("bulleted by name", SetBlockFormat, u"Bulleted List"_s, u"<ul><li>a</li></ul><p>b|</p>"_s, 3,
        u"<ul><li>a</li><li>b|</li></ul>"_s);
    row("directory", SetBlockFormat, u"Directory List"_s, u"<p>a|</p>"_s, 3, u"<dir><li>a|</li></dir>"_s);
    row("menu", SetBlockFormat, u"Menu List"_s, u"<ol><li>a|</li></ol>"_s, 3, u"<menu><li>a|</li></menu>"_s);
    row("term", SetBlockFormat, u"Definition Term"_s, u"<p>a|</p>"_s, 3, u"<dl><dt>a|</dt></dl>"_s);
    row("definition", SetBlockFormat, u"Definition"_s, u"<dl><dt>a</dt></dl><p>b|</p>"_s, 3,
        u"<dl><dt>a</dt><dd>b|</dd></dl>"_s);
    row("out of the middle of a list", SetBlockFormat, u"Normal"_s, u"<ol><li>a</li><li>b|</li><li>c</li></ol>"_s, 3,
        u"<ol><li>a</li></ol><p>b|</p><ol><li>c</li></ol>"_s);
    row("a format that is none", SetBlockFormat, u"Nonsense"_s, u"<p>a|</p>"_s, 3, u"<p>a|</p>"_s);

    row("delete", Delete, {}, u"<p>a[b]c</p>"_s, 3, u"<p>a|c</p>"_s);
    row("delete at the caret", Delete, {}, u"<p>a|bc</p>"_s, 3, u"<p>a|c</p>"_s);
    row("delete an element", Delete, {}, u"<p>a{<img src=\"x\">b</p>"_s, 3, u"<p>a|b</p>"_s);
    row("cut", Cut, {}, u"<p>a[b]c</p>"_s, 3, u"<p>a|c</p>"_s);
    row("delete over paragraphs", Delete, {}, u"<p>a[b</p><h1>c]d</h1>"_s, 3, u"<p>a|d</p>"_s);
    row("cut over paragraphs", Cut, {}, u"<p>a[b</p><h1>c]d</h1>"_s, 3, u"<p>a|d</p>"_s);
    row("cut a line", Cut, {}, u"<p>a</p>{<hr>"_s, 3, u"<p>a</p>|"_s);
    row("link of several", Hyperlink, u"y?a&b"_s, u"<p>[a<a href=\"x\">b</a>c]</p>"_s, 3,
        u"<p><a href=\"y?a&amp;b\">[abc]</a></p>"_s);
    row("link of a picture", Hyperlink, u"y\"z"_s, u"<p>{<img src=\"i\"></p>"_s, 3,
        u"<p><a href=\"y&quot;z\">{<img src=\"i\"></a></p>"_s);
    row("link around a picture changed", Hyperlink, u"y"_s, u"<p><a href=\"x\">{<img src=\"i\"></a></p>"_s, 3,
        u"<p><a href=\"y\">{<img src=\"i\"></a></p>"_s);
    row("unlink within a selection", Unlink, {}, u"<p>[a<a href=\"x\">b</a>c]</p>"_s, 3, u"<p>[abc]</p>"_s);
    row("picture over paragraphs", Image, u"x&\"y.gif"_s, u"<p>[a</p><p>b]</p>"_s, 3,
        u"<p>{<img src=\"x&amp;&quot;y.gif\" alt=\"\"></p>"_s);
    row("link", Hyperlink, u"x.html"_s, u"<p>[a]</p>"_s, 3, u"<p><a href=\"x.html\">[a]</a></p>"_s);
    row("link changed", Hyperlink, u"y.html"_s, u"<p><a href=\"x.html\">a|b</a></p>"_s, 3,
        u"<p><a href=\"y.html\">a|b</a></p>"_s);
    row("link taken away", Hyperlink, u""_s, u"<p><a href=\"x.html\">a|b</a></p>"_s, 3, u"<p>a|b</p>"_s);
    row("link without a text", Hyperlink, u"x.html"_s, u"<p>a|</p>"_s, 3, u"<p>a<a href=\"x.html\">x.html</a>|</p>"_s);
    row("unlink", Unlink, {}, u"<p><a href=\"x.html\">a|b</a></p>"_s, 3, u"<p>a|b</p>"_s);
    row("picture", Image, u"x.gif"_s, u"<p>a[b]c</p>"_s, 3, u"<p>a{<img src=\"x.gif\" alt=\"\">c</p>"_s);
    row("table", InsertTable, QVariant::fromValue(InsertTableParam{1, 2, u"border=1"_s, u"align=left"_s, u"C"_s}),
        u"<p>a|b</p>"_s, 3,
        u"<p>a</p><table border=\"1\">\n<caption>C</caption>\n<tbody>\n<tr>\n<td align=\"left\">|<br></td>\n"
        u"<td align=\"left\"><br></td>\n</tr>\n</tbody>\n</table><p>b</p>"_s);
    row("table by a map", InsertTable, QVariantMap{{u"NumRows"_s, 1}, {u"NumCols"_s, 1}, {u"TableAttrs"_s, u""_s}},
        u"|"_s, 3, u"<table>\n<tbody>\n<tr>\n<td>|<br></td>\n</tr>\n</tbody>\n</table>"_s);

    row("table with hostile words", InsertTable,
        QVariant::fromValue(
            InsertTableParam{1, 1, u"title='a>b' onclick=x"_s, u"bgcolor=\"<\" >x<script>y</script"_s, u"<b>&"_s}),
        u"|"_s, 3,
        u"<table title=\"a>b\" onclick=\"x\">\n<caption>&lt;b&gt;&amp;</caption>\n<tbody>\n<tr>\n"
        u"<td bgcolor=\"<\">|x<script>y</script><br></td>\n</tr>\n</tbody>\n</table>"_s);
    row("table in an item", InsertTable, QVariantMap{{u"NumRows"_s, 1}, {u"NumCols"_s, 1}, {u"TableAttrs"_s, u""_s}},
        u"<ul><li>x|</li></ul>"_s, 3,
        u"<ul><li>x<table>\n<tbody>\n<tr>\n<td>|<br></td>\n</tr>\n</tbody>\n</table></li></ul>"_s);
    row("no table without rows", InsertTable, QVariantMap{{u"NumRows"_s, 0}}, u"<p>a|</p>"_s, 3, u"<p>a|</p>"_s);

    const QString square =
        u"<table><tbody><tr><td>%1</td><td>%2</td></tr><tr><td>%3</td><td>%4</td></tr></tbody></table>"_s;
    const auto cells = [&](const QString &a, const QString &b, const QString &c, const QString &d) {
        return square.arg(a, b, c, d);
    };
    const QString start = cells(u"a|"_s, u"b"_s, u"c"_s, u"d"_s);
    const auto body = [](const QString &rows) { return u"<table><tbody>%1</tbody></table>"_s.arg(rows); };
    row("insert row", InsertRow, {}, start, 3,
        body(u"<tr><td>a</td><td>b</td></tr><tr><td>|<br></td><td><br></td></tr><tr><td>c</td><td>d</td></tr>"_s));
    row("insert row through a high cell", InsertRow, {},
        body(u"<tr><td rowspan=\"2\">a</td><td>b|</td></tr><tr><td>c</td></tr>"_s), 3,
        body(u"<tr><td rowspan=\"3\">a</td><td>b</td></tr><tr><td>|<br></td></tr><tr><td>c</td></tr>"_s));
    row("insert column", InsertColumn, {}, start, 3,
        body(u"<tr><td>a</td><td>|<br></td><td>b</td></tr><tr><td>c</td><td><br></td><td>d</td></tr>"_s));
    row("insert column through a wide cell", InsertColumn, {},
        body(u"<tr><td colspan=\"2\">a</td></tr><tr><td>c|</td><td>d</td></tr>"_s), 3,
        body(u"<tr><td colspan=\"3\">a</td></tr><tr><td>c</td><td>|<br></td><td>d</td></tr>"_s));
    row("insert cell", InsertCell, {}, start, 3,
        body(u"<tr><td>a</td><td>|<br></td><td>b</td></tr><tr><td>c</td><td>d</td></tr>"_s));
    row("delete row", DeleteRows, {}, start, 3, body(u"<tr><td>|c</td><td>d</td></tr>"_s));
    row("delete row of a high cell", DeleteRows, {},
        body(u"<tr><td rowspan=\"2\">a</td><td>b|</td></tr><tr><td>c</td></tr>"_s), 3,
        body(u"<tr><td>a</td><td>|c</td></tr>"_s));
    row("delete the last row", DeleteRows, {}, u"<p>x</p>"_s + body(u"<tr><td>a|</td></tr>"_s), 3, u"<p>x</p>|"_s);
    row("delete column", DeleteColumns, {}, start, 3, body(u"<tr><td>|b</td></tr><tr><td>d</td></tr>"_s));
    row("delete column of a wide cell", DeleteColumns, {},
        body(u"<tr><td colspan=\"2\">a</td></tr><tr><td>c|</td><td>d</td></tr>"_s), 3,
        body(u"<tr><td>a</td></tr><tr><td>|d</td></tr>"_s));
    row("delete cell", DeleteCells, {}, start, 3, body(u"<tr><td>|b</td></tr><tr><td>c</td><td>d</td></tr>"_s));
    row("merge", MergeCells, {}, cells(u"[a"_s, u"b]"_s, u"c"_s, u"d"_s), 3,
        body(u"<tr><td colspan=\"2\">|a<br>b</td></tr><tr><td>c</td><td>d</td></tr>"_s));
    row("merge down", MergeCells, {}, body(u"<tr><td>[a</td></tr><tr><td>b]</td></tr>"_s), 3,
        body(u"<tr><td rowspan=\"2\">|a<br>b</td></tr><tr></tr>"_s));
    row("delete the low half's row", DeleteRows, {},
        body(u"<tr><td rowspan=\"2\">a</td><td>b</td></tr><tr><td>c|</td></tr>"_s), 3,
        body(u"<tr><td>a</td><td>|b</td></tr>"_s));
    row("delete all rows of a high cell", DeleteRows, {},
        u"<p>x</p>"_s + body(u"<tr><td rowspan=\"2\">a|</td><td>b</td></tr><tr><td>c</td></tr>"_s), 3, u"<p>x</p>|"_s);
    row("delete the only column", DeleteColumns, {}, u"<p>x</p>"_s + body(u"<tr><td>a|</td></tr><tr><td>b</td></tr>"_s),
        3, u"<p>x</p>|"_s);
    row("delete the only cell", DeleteCells, {}, u"<p>x</p>"_s + body(u"<tr><td>a|</td></tr>"_s), 3, u"<p>x</p>|"_s);
    row("delete the only row of a section", DeleteRows, {},
        u"<table><thead><tr><th>h</th></tr></thead><tbody><tr><td>a|</td></tr></tbody></table>"_s, 3,
        u"<table><thead><tr><th>|h</th></tr></thead></table>"_s);
    row("merge all", MergeCells, {}, cells(u"[a"_s, u"b"_s, u"c"_s, u"d]"_s), 3,
        body(u"<tr><td colspan=\"2\" rowspan=\"2\">|a<br>b<br>c<br>d</td></tr><tr></tr>"_s));
    row("merge with a high one", MergeCells, {},
        body(u"<tr><td>[a</td><td rowspan=\"2\">b]</td></tr><tr><td>c</td></tr>"_s), 3,
        body(u"<tr><td colspan=\"2\" rowspan=\"2\">|a<br>b<br>c</td></tr><tr></tr>"_s));
    row("split a large cell", SplitCell, {},
        body(u"<tr><td colspan=\"2\" rowspan=\"2\" id=\"i\">a|</td><td>b</td></tr><tr><td>c</td></tr>"_s), 3,
        body(u"<tr><td rowspan=\"2\" id=\"i\">a|</td><td rowspan=\"2\"><br></td><td>b</td></tr><tr><td>c</td></tr>"_s));
    row("bold in several cells", Bold, {}, cells(u"[a"_s, u"b]"_s, u"c"_s, u"d"_s), 3,
        cells(u"<b>[a</b>"_s, u"<b>b]</b>"_s, u"c"_s, u"d"_s));
    row("split", SplitCell, {}, start, 3,
        body(u"<tr><td>a|</td><td><br></td><td>b</td></tr><tr><td colspan=\"2\">c</td><td>d</td></tr>"_s));
    row("split a wide cell", SplitCell, {}, body(u"<tr><td colspan=\"3\">a|</td></tr>"_s), 3,
        body(u"<tr><td colspan=\"2\">a|</td><td><br></td></tr>"_s));
    row("split a high cell", SplitCell, {}, body(u"<tr><td rowspan=\"2\">a|</td><td>b</td></tr><tr><td>c</td></tr>"_s),
        3, body(u"<tr><td>a|</td><td>b</td></tr><tr><td><br></td><td>c</td></tr>"_s));

    const QString placed = u"<div style=\"position: absolute; z-index: %1\">%2</div>"_s;
    row("to a place of its own", AbsolutePosition, {},
        u"<body style=\"margin: 8px\">{<img src=\"x\" width=\"10\" height=\"9\">"_s, 3,
        u"{<img src=\"x\" width=\"10\" height=\"9\" style=\"position: absolute; left: 8px; top: 8px; z-index: 100\">"_s);
    row("back into the text", AbsolutePosition, {},
        u"{<img src=\"x\" style=\"border:0;position: absolute; left: 1px; top: 2px; z-index: 3\">"_s, 7,
        u"{<img src=\"x\" style=\"border:0\">"_s);
    const QString three = placed.arg(u"1"_s, u"a|"_s) + placed.arg(u"2"_s, u"b"_s) + placed.arg(u"7"_s, u"c"_s);
    const auto order = [&](int a, int b, int c) {
        return placed.arg(QString::number(a), u"a|"_s) + placed.arg(QString::number(b), u"b"_s)
            + placed.arg(QString::number(c), u"c"_s);
    };
    row("to the front", BringToFront, {}, three, 3, order(7, 1, 2));
    row("forward", BringForward, {}, three, 3, order(2, 1, 7));
    const QString equals = placed.arg(u"1"_s, u"a|"_s) + placed.arg(u"1"_s, u"b"_s) + placed.arg(u"5"_s, u"c"_s);
    row("to the front of equals", BringToFront, {}, equals, 3, order(5, 1, 2));
    row("forward among equals", BringForward, {}, equals, 3, order(2, 1, 5));
    row("to the back where it is", SendToBack, {}, equals, 3, equals);
    row("forward below the text", BringForward, {}, order(-5, -1, 7), 3, order(-1, -5, 7));
    row("to the front below the text", BringToFront, {}, order(-5, -1, 7), 3, order(-1, -5, 7));
    row("to the front at the front", BringToFront, {}, order(9, 1, 2), 3, order(9, 1, 2));
    row("below the text, below others", SendBelowText, {}, order(3, -1, -4), 3, order(-1, -2, -4));
    row("a table to a place", AbsolutePosition, {},
        u"<body style=\"margin: 8px\">{<table border=\"1\"><tbody><tr><td>a</td></tr></tbody></table>"_s, 3,
        u"{<table border=\"1\" style=\"position: absolute; left: 8px; top: 8px; z-index: 100\"><tbody><tr><td>a</td></tr></tbody></table>"_s);
    row("back with its lock", AbsolutePosition, {},
        u"<div design_time_lock=\"true\" style=\"position: absolute; left: 1px\" id=\"i\">a|</div>"_s, 7,
        u"<div id=\"i\">a|</div>"_s);
    row("to the back", SendToBack, {}, placed.arg(u"1"_s, u"a"_s) + placed.arg(u"2"_s, u"b|"_s), 3,
        placed.arg(u"2"_s, u"a"_s) + placed.arg(u"1"_s, u"b|"_s));
    row("backward among equals", SendBackward, {}, placed.arg(u"5"_s, u"a"_s) + placed.arg(u"5"_s, u"b|"_s), 3,
        placed.arg(u"6"_s, u"a"_s) + placed.arg(u"5"_s, u"b|"_s));
    row("below the text", SendBelowText, {}, three, 3, order(-1, 2, 7));
    row("above the text", BringAboveText, {}, order(-3, 2, 7), 3, order(1, 2, 7));
    row("above, where it is", BringAboveText, {}, three, 3, three);
    row("lock", LockElement, {}, u"<div style=\"position: absolute\">a|</div>"_s, 3,
        u"<div style=\"position: absolute\" design_time_lock=\"true\">a|</div>"_s);
    row("unlock", LockElement, {}, u"<div style=\"position: absolute\" design_time_lock=\"true\">a|</div>"_s, 7,
        u"<div style=\"position: absolute\">a|</div>"_s);
}

void TstDesignerCommands::commands()
{
    QFETCH(DesignerCommand, command);
    QFETCH(QVariant, argument);
    QFETCH(QString, before);
    QFETCH(QString, after);
    static const QRegularExpression signs(u"[\\[\\]|{]"_s);
    m_bench->show(before);
    const QString untouched = m_bench->body();
    QTEST(m_bench->status(command), "status");
    m_bench->run(command, argument);
    QCOMPARE(m_bench->text(), after);
    const QString changed = m_bench->body();
    m_bench->run(DesignerCommand::Undo);
    QCOMPARE(m_bench->body(), untouched);
    QVERIFY(!m_bench->designer.isDirty());
    m_bench->run(DesignerCommand::Redo);
    QCOMPARE(m_bench->body(), changed);
    QCOMPARE(m_bench->designer.isDirty(), changed != untouched);
}

void TstDesignerCommands::statuses_data()
{
    using enum DesignerCommand;
    QTest::addColumn<DesignerCommand>("command");
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("status");
    const auto row = [](const char *name, DesignerCommand command, const QString &page, int status) {
        QTest::newRow(name) << command << page << status;
    };
    const QString caret = u"<p>a|</p>"_s;
    const QString picture = u"<p>a{<img src=\"x\">b</p>"_s;
    const QString table = u"<table><tbody><tr><td>a|</td></tr></tbody></table>"_s;
    row("a number that is no command", DesignerCommand{5001}, caret, 0);
    row("mixed bold", Bold, u"<p>[a<b>b]</b></p>"_s, 11);
    row("nothing to undo", Undo, caret, 1);
    row("nothing to redo", Redo, caret, 1);
    row("copy at the caret", Copy, caret, 1);
    row("copy a selection", Copy, u"<p>[a]</p>"_s, 3);
    row("copy an element", Copy, picture, 3);
    row("cut at the caret", Cut, caret, 1);
    row("select all", SelectAll, caret, 3);
    row("find", FindText, caret, 3);
    row("font dialog", Font, caret, 3);
    row("font of an element", Font, picture, 1);
    row("font name", GetFontName, caret, 3);
    row("mixed font names", GetFontName, u"<p>[a<font face=\"Arial\">b</font>]</p>"_s, 11);
    row("font name of an element", GetFontName, picture, 1);
    row("mixed font sizes", GetFontSize, u"<p>[a<font size=\"5\">b</font>]</p>"_s, 11);
    row("block format", GetBlockFormat, caret, 3);
    row("mixed block formats", GetBlockFormat, u"<p>[a</p><h1>b]</h1>"_s, 11);
    row("block format of an element", GetBlockFormat, picture, 1);
    row("row outside a table", InsertRow, caret, 1);
    row("row inside a table", InsertRow, table, 3);
    row("merge of one cell", MergeCells, table, 1);
    row("split of two cells", SplitCell, u"<table><tbody><tr><td>[a</td><td>b]</td></tr></tbody></table>"_s, 1);
    row("position at the caret", AbsolutePosition, caret, 1);
    row("position of an element", AbsolutePosition, picture, 3);
    row("front without a position", BringToFront, picture, 1);
    row("lock without a position", LockElement, picture, 1);
    row("outdent of a paragraph", Outdent, caret, 1);
    row("unlink without a link", Unlink, caret, 1);
    row("bold of an element", Bold, picture, 1);
    row("italic of an element", Italic, picture, 1);
    row("underline of an element", Underline, picture, 1);
    row("colour of an element", SetForeColor, picture, 1);
    row("link of an element", Hyperlink, picture, 3);
    row("mixed centring", JustifyCenter, u"<p align=\"center\">[a</p><p>b]</p>"_s, 11);
    row("mixed underline", Underline, u"<p>[a<u>b]</u></p>"_s, 11);
    row("partly numbered", OrderedList, u"<ol><li>[a</li></ol><p>b]</p>"_s, 11);
    row("font size of cells", GetFontSize, u"<table><tbody><tr><td>[a</td><td>b]</td></tr></tbody></table>"_s, 3);
    row("bold in a cell", Bold, u"<table><tbody><tr><td><b>a|</b></td></tr></tbody></table>"_s, 7);
    row("a whole table", InsertRow, u"{<table><tbody><tr><td>a</td></tr></tbody></table>"_s, 1);
    row("position of a table", AbsolutePosition, u"{<table><tbody><tr><td>a</td></tr></tbody></table>"_s, 3);
    row("merge of two cells", MergeCells, u"<table><tbody><tr><td>[a</td><td>b]</td></tr></tbody></table>"_s, 3);
    row("lock", LockElement, u"<div style=\"position:absolute\">a|</div>"_s, 3);
    row("locked", LockElement, u"<div style=\"position:absolute\" design_time_lock=\"true\">a|</div>"_s, 7);
    row("in a positioned box", AbsolutePosition, u"<div style=\"position:absolute\">a|</div>"_s, 7);
    row("forward of a positioned box", BringForward, u"<div style=\"position:absolute\">a|</div>"_s, 3);
    for (const DesignerCommand command :
         {Bold,           Italic,       Underline,   OrderedList, UnorderedList,  Indent,      JustifyCenter,
          JustifyRight,   SetForeColor, SetFontName, SetFontSize, SetBlockFormat, GetFontName, GetFontSize,
          GetBlockFormat, Font,         SelectAll,   FindText,    Image,          Hyperlink,   InsertTable})
        row(qPrintable(u"empty page %1"_s.arg(static_cast<int>(command))), command, u""_s, 3);
    for (const DesignerCommand command : {Undo, Redo, Cut, Copy, Outdent, InsertRow, DeleteCells, MergeCells, SplitCell,
                                          AbsolutePosition, BringToFront, SendToBack, LockElement, Unlink})
        row(qPrintable(u"empty page %1"_s.arg(static_cast<int>(command))), command, u""_s, 1);
    row("left on an empty page", JustifyLeft, u""_s, 7);
    row("centred", JustifyCenter, u"<p align=\"center\">a|</p>"_s, 7);
    row("bulleted", UnorderedList, u"<ul><li>a|</li></ul>"_s, 7);
}

void TstDesignerCommands::statuses()
{
    QFETCH(DesignerCommand, command);
    QFETCH(QString, page);
    m_bench->show(page);
    QTEST(m_bench->status(command), "status");
    const auto isKnown = [&] { return m_bench->designer.queryStatus(command) == m_bench->status(command); };
    QVERIFY(waitUntil(isKnown, DesignerBench::patience));
}

ZEPHIRA_TEST(TstDesignerCommands)
#include "tst_designercommands.moc"
