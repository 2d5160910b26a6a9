// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/palettetable.h"
#include "commands/routerbench.h"
#include "commands/tagsmenu.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct PaletteCase {
    int toolbar;
    const char16_t *key;
    int position;
    /// What the selection "sel" becomes.
    const char16_t *expected;
};

// Written out by hand: the text in the document after a click.
const PaletteCase paletteCases[] = {
    {1, u"paragraph", 1, u"<p>sel</p>"},
    {1, u"comment", 2, u"<!-- sel -->"},
    {1, u"break", 3, u"sel<br>"},
    {1, u"anchor", 6, u"<a>sel</a>"},
    {1, u"head", 9, u"<head>\r\nsel</head>"},
    {1, u"body", 12, u"\r\n<body>\r\n\r\n\r\n\r\n</body>"},
    {1, u"base", 13, u"<base href=\"\">"},

    {2, u"paragraph", 1, u"<p>sel</p>"},
    {2, u"div", 2, u"<div>sel</div>"},
    {2, u"span", 3, u"<span>sel</span>"},
    {2, u"big", 4, u"<big>sel</big>"},
    {2, u"small", 5, u"<small>sel</small>"},
    {2, u"insert", 8, u"<ins>sel</ins>"},
    {2, u"pre", 9, u"<pre>sel</pre>"},
    {2, u"tt", 10, u"<tt>sel</tt>"},
    {2, u"strike", 11, u"<s>sel</s>"},
    {2, u"address", 12, u"<address>sel</address>"},
    {2, u"block", 13, u"<blockquote>sel</blockquote>"},
    {2, u"define", 14, u"<dfn>sel</dfn>"},
    {2, u"code", 15, u"<code>sel</code>"},
    {2, u"cite", 16, u"<cite>sel</cite>"},

    {3, u"td", 3, u"<td>sel</td>"},
    {3, u"tr", 4, u"<tr>sel</tr>"},
    {3, u"th", 5, u"<th>sel</th>"},
    {3, u"tabletags", 6, u"<table>\r\nsel\r\n</table>"},

    {4, u"styleblock", 1, u"sel<style type=\"text/css\">\r\n<!-- \r\n\r\n-->\r\n</style>"},

    {5, u"frameset", 2, u"<frameset>sel</frameset>"},
    {5, u"frame", 3, u"<frame>sel</frame>"},
    {5, u"base", 4, u"<base href=\"sel\" target=\"\">"},
    {5, u"noframe", 6, u"<noframe>sel</noframe>"},

    {6, u"", 1, u"<ul>sel</ul>"},
    {6, u"", 2, u"<dd>sel</dd>"},
    {6, u"", 3, u"<li>sel</li>"},
    {6, u"", 4, u"<menu>sel</menu>"},
    {6, u"", 5, u"sel<dl>\r\n<dt><dd>\r\n</dl>"},
    {6, u"", 6, u"<ol>sel</ol>"},
    {6, u"", 7, u"<dt>sel</dt>"},

    {7, u"", 2, u"<form action=\"\">sel</form>"},
    {7, u"", 4, u"<input type=\"Button\" value=\"sel\">"},
    {7, u"", 5, u"<input type=\"checkbox\" name=\"\" value=\"sel\">"},
    {7, u"", 6, u"<input type=\"radio\" name=\"\" value=\"sel\">"},
    {7, u"", 7, u"<select name=\"\">\r\n    <option>\r\n    <option>\r\n</select>"},
    {7, u"", 8, u"sel<select name=\"\" size=\"\">\r\n    <option>\r\n    <option>\r\n</select>"},
    {7, u"", 9, u"sel<input name=\"\" type=\"image\" src=\"\" border=\"0\">"},
    {7, u"", 11, u"<input type=\"file\" value=\"sel\">"},
    {7, u"", 12, u"<input name=\"\" type=\"password\"value=\"sel\">"},
    {7, u"", 13, u"<input name=\"\" type=\"text\"value=\"\">"},
    {7, u"", 14, u"<input name=\"\" type=\"hidden\"value=\"sel\">"},
    {7, u"", 15, u"sel<textarea name=\"\" rows=7 cols=10></textarea>"},
    {7, u"", 17, u"sel<input type=\"submit\">"},
    {7, u"", 18, u"sel<input type=\"reset\">"},

    {8, u"", 1,
     u"sel<applet code=\"code name\" codebase=\"code base\" name=\"name\" alt=\"alt text\" width=\"\" height=\"\">"},
    {8, u"", 2,
     u"sel<script language=\"VBScript / LiveScript / Javascript / PHP / tcl\" src=\"source\" "
     u"type=\"text/(language)\">\r\n<!--\r\n\r\n//-->\r\n</script>"},
    {8, u"", 3, u"<noscript>sel</noscript>"},
    {8, u"", 4, u"sel<script language=\"javascript\">\r\n    alert(\"warning\");\r\n</script>"},
    {8, u"", 5, u"sel<script language=\"javascript\">\r\n    confirm(\"are you sure?\");\r\n</script>"},
    {8, u"", 6, u"seldocument.write(\"\")"},
    {8, u"", 8, u"sel<object id=\"\" classid=\"\" width= height= data=\"\"></object>"},
    {8, u"", 9, u"sel<embed src=\"\"></embed>"},
    {8, u"", 10,
     u"sel<object classid=\"clsid:d27cdb6e-ae6d-11cf-96b8-444553540000\" "
     u"codebase=\"https://download.macromedia.com/pub/shockwave/cabs/flash/swflash.cab\" width=\"32\" height=\"32\">\r\n"
     u"    <param name=\"src\" value=\"flash-file.swf\">\r\n"
     u"    <embed src=\"flash-file.swf\" pluginspage=\"https://www.macromedia.com/go/getflashplayer\""
     u"type=\"application/x-shockwave-flash\"width=\"32\"height=\"32\">\r\n"
     u"    </embed>\r\n"
     u"</object>"},
    {8, u"", 11,
     u"sel<object classid=\"clsid:166b1bca-3f9c-11cf-8075-444553540000\" "
     u"codebase=\"https://download.macromedia.com/pub/shockwave/cabs/director/sw.cab\" width=\"32\" height=\"32\">\r\n"
     u"    <param name=\"src\" value=\"shockwave-file.swf\">\r\n"
     u"    <embed src=\"sockwave-file.swf\" pluginspage=\"https://www.macromedia.com/shockwave/download/\""
     u"type=\"application/x-director\"width=\"32\"height=\"32\">\r\n"
     u"    </embed>\r\n"
     u"</object>"},
    {8, u"", 12,
     u"sel<div id=\"layer1\" style=\"position:absolute; left:?px; top:?px; width:?px; height:?px; z-index:1\"></div>"},

    {9, u"", 2, u"sel<cfif ></cfif>"},
    {9, u"", 3, u"sel<cfelse>"},
    {9, u"", 4, u"sel<cfelseif>"},
    {9, u"", 5, u"sel<cfset >"},
    {9, u"", 6, u"sel<cfcookie name=\"name\" value=\"value\" expires=\"now/never\" domain=\"domain\" path=\"path\">"},
    {9, u"", 7,
     u"sel<cfquery name=\"name\" datasource=\"source\" maxrows=rows dbtype=\"ODBC\" blockfactor=\"block factor\" "
     u"timeout=\"timeout\" username=\"username\" password=\"password\" dbserver=\"server\" dbname=\"DBname\">"
     u"sql statement</cfquery>"},
    {9, u"", 8, u"sel<cfmail to=\"to\" from=\"from\" subject=\"subject\" cc=\"cc\" bcc=\"bcc\">body</cfmail>"},
    {9, u"", 9,
     u"sel<cffile action=\"UPLOAD\" filefield=\"field\" destination=\"path\" nameconflict=\"ERROR\" "
     u"accept=\"accept\" attributes=\"atts\" mode=\"mode\">"},
    {9, u"", 10,
     u"sel<cfdirectory action=\"LIST\" directory=\"dir\" name=\"query name\" filter=\"filter\" sort=\"sort\">"},
    {9, u"", 11,
     u"sel<cftable query=\"query\" maxrows=\"max\" startrow=\"start row\" colspacing=\"column spacing\"></cftable>"},
    {9, u"", 12, u"sel<cfcol text=\"content\" header=\"caption\" width=\"width\" align=\"CENTER\">"},
    {9, u"", 13, u"sel<cfloop index=\"index\" from=\"from\" to=\"to\" step=\"step\"></cfloop>"},
    {9, u"", 14, u"sel<cfinclude template=\"temp\">"},
    {9, u"", 15, u"sel<cflocation url=\"url\" addtoken=\"No\">"},
    {9, u"", 16, u"sel<cfoutput></cfoutput>"},
    {9, u"", 17, u"sel##"},
    {9, u"", 18, u"sel<!---  --->"},
    {9, u"", 19, u"sel<cfswitch expression=\"expression\"></cfswitch>"},
    {9, u"", 20, u"sel<cfcase value=\"value\" delimiters=\"\"></cfcase>"},
    {9, u"", 21, u"sel<cfdefaultcase></cfdefaultcase>"},
    {9, u"", 22, u"sel<cfabort showerror=\"show error\">"},
    {9, u"", 23, u"sel<cfbreak>"},

    {10, u"", 1, u"sel<!--#include file=\"\"-->"},
    {10, u"", 2, u"sel<%  %>"},
    {10, u"", 3, u"sel<%=  %>"},
    {10, u"", 4, u"sel<% If  %>"},
    {10, u"", 5, u"sel<% End If %>"},

    {11, u"", 1, u"sel<!--#include file=\"\" -->"},
    {11, u"", 2, u"sel<!--#exec cgi=\"\" -->"},
    {11, u"", 3, u"sel<!--#label=\"\" -->"},
    {11, u"", 4, u"sel<!--#goto=\"\" -->"},
    {11, u"", 5, u"sel<!--#break -->"},
};

struct TagsCase {
    const char16_t *name;
    const char16_t *caption;
    const char16_t *expected;
};

const TagsCase tagsCases[] = {
    {u"StartTag", u"&Start Tag <>", u"sel<>"},
    {u"EndTag", u"&End Tag </>", u"sel</>"},
    {u"Anchor", u"&Anchor", u"sel<a href=http://urlhere>Text Here</a>"},
    {u"Image", u"&Image", nullptr},
    {u"Bold", u"&Bold", u"<b>sel</b>"},
    {u"Italic", u"&Italic", u"sel<i></i>"},
    {u"FoSizeoneplus", u"Font Size +1", u"sel<font size=\"+1\"></font>"},
    {u"FoSize1Minus", u"&Font Size -1", u"sel<font size=\"-1\"></font>"},
    {u"Block", u"&Blockquote", u"<blockquote>sel</blockquote>"},
    {u"Break", u"&Break", u"sel<br>"},
    {u"Center", u"&Center", u"<center>sel</center>"},
    {u"Comment", u"&Comment", u"<!---sel--->"},
    {u"HorRule", u"&Horizontal Rule", u"sel<hr></hr>"},
    {u"nobreak", u"&Non Breaking Break (Space)", u"sel&nbsp;"},
    {u"Paragraph", u"&Paragraph", u"sel<p></p>"},
    {u"Head1", u"&Heading 1", u"sel<h1></h1>"},
    {u"head2", u"&Heading 2", u"sel<h2></h2>"},
    {u"head3", u"&Heading 3", u"sel<h3></h3>"},
    {u"tagwiz", u"&Advanced Tag Wizard", nullptr},
};

QString string(const char16_t *text)
{
    return text ? QStringView(text).toString() : QString();
}

} // namespace

class TstQuickTags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paletteInCodeView_data();
    void paletteInCodeView();
    void paletteInVisualMode_data() { paletteInCodeView_data(); }
    void paletteInVisualMode();
    void everyTextOfThePaletteIsTested();
    void headings_data();
    void headings();
    void tagsMenuWritesTheSelection_data();
    void tagsMenuWritesTheSelection();
    void tagsMenuIsComplete();
    void titledText_data();
    void titledText();
};

void TstQuickTags::paletteInCodeView_data()
{
    QTest::addColumn<int>("toolbar");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("expected");
    for (const PaletteCase &row : paletteCases) {
        QTest::addRow("%d/%s%d", row.toolbar, qPrintable(string(row.key)), row.position)
            << row.toolbar << string(row.key) << row.position << string(row.expected);
    }
}

void TstQuickTags::paletteInCodeView()
{
    QFETCH(int, toolbar);
    QFETCH(QString, key);
    QFETCH(int, position);
    QFETCH(QString, expected);
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.palette(toolbar, key, position);
    QCOMPARE(bench.result(), expected);
    QCOMPARE(bench.world.editor.caretOffset(), 1 + static_cast<int>(expected.size()));
    QCOMPARE(bench.world.editor.selLength(), 0);
    QVERIFY(bench.world.designer.pasted.isEmpty());
}

void TstQuickTags::paletteInVisualMode()
{
    QFETCH(int, toolbar);
    QFETCH(QString, key);
    QFETCH(int, position);
    QFETCH(QString, expected);
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.world.designer.showing = true;
    bench.palette(toolbar, key, position);
    // The text is built from the code view's selection and goes only to the designer.
    QCOMPARE(bench.world.designer.pasted, QStringList{expected});
    QCOMPARE(bench.world.editor.text(), u"[sel]"_s);
}

void TstQuickTags::everyTextOfThePaletteIsTested()
{
    std::set<std::pair<int, int>> tested;
    for (const PaletteCase &row : paletteCases)
        tested.emplace(row.toolbar, row.position);
    int toolbar = 0;
    for (const PaletteToolbar &bar : paletteToolbars()) {
        int position = 0;
        for (const QuickTag &tag : bar.buttons) {
            ++position;
            const bool isText = !quickTagText(tag, u"sel"_s).isNull();
            QVERIFY2(isText == tested.contains({toolbar, position}),
                     qPrintable(u"toolbar %1, position %2"_s.arg(toolbar).arg(position)));
            // A key is unique in its toolbar; either all buttons of a toolbar have a key, or none has.
            const auto same = std::ranges::count(bar.buttons, tag.key, &QuickTag::key);
            QVERIFY(bar.buttons.front().key.isEmpty() ? same == std::ssize(bar.buttons) : same == 1);
        }
        ++toolbar;
    }
    QCOMPARE(toolbar, 12);
}

void TstQuickTags::headings_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("expected");
    QTest::newRow("H1") << 1 << u"<h1>sel</h1>"_s;
    QTest::newRow("H2") << 2 << u"<h2>sel</h2>"_s;
    QTest::newRow("H3") << 3 << u"<h3>sel</h3>"_s;
    QTest::newRow("H4") << 4 << u"<h4>sel</h4>"_s;
    QTest::newRow("H5") << 5 << u"<h5>sel</h5>"_s;
    QTest::newRow("H6") << 6 << u"<h6>sel</h6>"_s;
}

void TstQuickTags::headings()
{
    QFETCH(int, size);
    QFETCH(QString, expected);
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.router.heading(size);
    QCOMPARE(bench.result(), expected);
    bench.select(u"sel"_s);
    bench.world.designer.showing = true;
    bench.router.heading(size);
    QCOMPARE(bench.world.designer.pasted, QStringList{expected});
}

void TstQuickTags::tagsMenuWritesTheSelection_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    for (const TagsCase &row : tagsCases) {
        if (row.expected)
            QTest::addRow("%s", qPrintable(string(row.name))) << string(row.name) << string(row.expected);
    }
}

void TstQuickTags::tagsMenuWritesTheSelection()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    RouterBench bench;
    bench.select(u"sel"_s);
    bench.menu(name);
    QCOMPARE(bench.result(), expected);
    QVERIFY(bench.window.calls.isEmpty());
}

void TstQuickTags::tagsMenuIsComplete()
{
    QStringList actual;
    for (const QuickTag &tag : tagsMenu())
        actual.append(tag.key.toString() + u' ' + tag.label.toString());
    QStringList expected;
    for (const TagsCase &row : tagsCases)
        expected.append(string(row.name) + u' ' + string(row.caption));
    QCOMPARE(actual, expected);

    RouterBench bench;
    bench.menu(u"Image"_s);
    bench.menu(u"tagwiz"_s);
    QCOMPARE(bench.world.forms.modal, (QStringList{u"frmTagEdit"_s, u"frmTagEdit"_s}));
    // The second opens on the page that was shown last.
    QCOMPARE(bench.world.forms.pages, QList<int>{6});
}

void TstQuickTags::titledText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one head") << u"<html><head></head>"_s << u"<html><head>\r\n<title>T</title>\r\n</head>"_s;
    QTest::newRow("two heads") << u"<head><head>"_s
                               << u"<head>\r\n<title>T</title>\r\n<head>\r\n<title>T</title>\r\n"_s;
    QTest::newRow("capitals come out small") << u"<HeAd>"_s << u"<head>\r\n<title>T</title>\r\n"_s;
    QTest::newRow("none") << u"<body></body>"_s << u"<body></body>"_s;
    QTest::newRow("with attributes: none") << u"<head lang=en>"_s << u"<head lang=en>"_s;
    QTest::newRow("empty") << QString(u""_s) << QString(u""_s);
}

void TstQuickTags::titledText()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(zephira::titledText(text, u"T"_s), expected);
}

ZEPHIRA_TEST(TstQuickTags)
#include "tst_quicktags.moc"
