// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/documentsymbols.h"
#include "core/languages.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The symbols, as "kind name", divided by bars.
QString symbolsOf(const QByteArray &text, int row, const QString &path = {})
{
    QStringList found;
    const DocumentSymbols symbols = documentSymbols(text, row, path);
    for (const DocumentSymbol &symbol : symbols)
        found.append(symbolKind(symbol) + u' ' + symbol.name);
    return found.join(u" | "_s);
}

} // namespace

/// The headings, ids, rules and functions of a document.
class TstSymbols final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void markup_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QByteArray &text, const QString &expected) {
            QTest::newRow(name) << text << expected;
        };
        row("headings", "<h1>One</h1>\r\n<H2 class=x>Two\r\n  lines</H2>", u"Heading 1 One | Heading 2 Two lines"_s);
        row("tags in a heading", "<h3>a <b>bold</b> word<br></h3>", u"Heading 3 a bold word"_s);
        row("entities", "<h1>a &lt;b&gt; &amp;lt; c&nbsp;d</h1>", u"Heading 1 a <b> &lt; c d"_s);
        row("a heading without an end", "<h1>One<h2>Two", u"Heading 1 One | Heading 2 Two"_s);
        row("an empty heading", "<h1></h1>", u"Heading 1 "_s);
        row("no heading", "<hr><head><h7>x</h7><h>", {});
        row("ids", R"(<p id="a"><p ID='b'><p id=c><p id = "d e"><p id=""><p id>)", u"Id a | Id b | Id c | Id d e"_s);
        row("an id in a heading", R"(<h2 id="top">Top</h2>)", u"Heading 2 Top | Id top"_s);
        row("other attributes", R"(<p data-id="a" class="id" title="id=b">id=c</p>)", {});
        row("in a value", R"(<p title="<h1>no</h1>" id="yes">)", u"Id yes"_s);
        row("comment", "<!-- <h1>no</h1> --><h1>yes</h1><!-- <h1>", u"Heading 1 yes"_s);
        row("CDATA", "<![CDATA[<h1>no</h1>]]><h1>yes</h1>", u"Heading 1 yes"_s);
        row("text area", "<textarea><h1>no</h1></textarea><h1>yes</h1>", u"Heading 1 yes"_s);
        row("style", "<style><!-- p { color: red } --></style><h1>x</h1>", u"Rule p | Heading 1 x"_s);
        row("script", "<script>function a() { '<h1>' }</SCRIPT><h1>x</h1>", u"Function a | Heading 1 x"_s);
        row("VBScript", "<script language=\"VBScript\">Sub a\nEnd Sub</script>", u"Function a"_s);
        row("data in a script", "<script type=\"application/json\">{\"a\": function b() {}}</script>", {});
        row("PHP", "<?php function a() {} // ?><h1>x</h1><?= b() ?>", u"Function a | Heading 1 x"_s);
        row("ASP", "<% Function a(b) %><h1>x</h1><% End Function %>", u"Function a | Heading 1 x"_s);
        row("XML", "<?xml version=\"1.0\"?><a id=\"b\"/>", u"Id b"_s);
        row("server code in a tag", R"(<p <?php if (1) echo "<h1>"; ?> id="a" class=<%= "x>" %>>)", u"Id a"_s);
        row("an open quote", "<p id=\"a><h1>x</h1>", u"Id a | Heading 1 x"_s);
        row("an open tag", "<p id=a <h1>x</h1>", u"Id a | Heading 1 x"_s);
        row("signs", "a < b <3 </ <", {});
        row("other scripts", "<h1>\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d</h1><p id=\"\xc3\xbc\">",
            u"Heading 1 \u05e9\u05dc\u05d5\u05dd | Id \u00fc"_s);
        row("nothing", "", {});
    }

    void markup()
    {
        QFETCH(QByteArray, text);
        QTEST(symbolsOf(text, language::Html), "expected");
    }

    void styles_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QByteArray &text, const QString &expected) {
            QTest::newRow(name) << text << expected;
        };
        row("rules", "p { color: red }\n.a, #b > c{}", u"Rule p | Rule .a, #b > c"_s);
        row("over lines", "a,\n  b\n{ }", u"Rule a, b"_s);
        row("at-rules", "@import 'x{';\n@media print { p { } q { } }\nr { }",
            u"Rule @media print | Rule p | Rule q | Rule r"_s);
        row("animation", "@-webkit-keyframes k { from { } 50% { } }\np { }", u"Rule @-webkit-keyframes k | Rule p"_s);
        row("nested", "a { color: red; &:hover { color: blue } top: 0 }", u"Rule a | Rule &:hover"_s);
        row("comments", "/* a { } */ b /* { */ { }", u"Rule b"_s);
        row("strings", "a[b=\"{\"] { content: '}' } c { }", u"Rule a[b=\"{\"] | Rule c"_s);
        row("escape", "a\\{b { }", u"Rule a\\{b"_s);
        row("an open string", "a { b: \"x\n } c { }", u"Rule a | Rule c"_s);
        row("an open comment", "a { } /* b { }", u"Rule a"_s);
        row("without selector", "{ } { a { } }", u"Rule a"_s);
        row("too many ends", "} } a { }", u"Rule a"_s);
    }

    void styles()
    {
        QFETCH(QByteArray, text);
        QTEST(symbolsOf(text, language::StyleSheets), "expected");
    }

    void programs_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("expected");
        const auto js = [](const char *name, const QByteArray &text, const QString &expected) {
            QTest::newRow(name) << static_cast<int>(language::JavaScript) << text << expected;
        };
        js("function", "function a(b) { }\nfunction* c() { }\nasync function d() { }",
           u"Function a | Function c | Function d"_s);
        js("assigned", "a = function () { }; const b = function (x) { }; c.d = function () { }",
           u"Function a | Function b | Function d"_s);
        js("arrows", "const a = () => 1; let b = (x, y = f(2)) => { }; c = x => x; const d = async (x) => 1",
           u"Function a | Function b | Function c | Function d"_s);
        js("members", "x = { a() { }, b: function () { }, c: (y) => 1, d: 5 }",
           u"Function a | Function b | Function c"_s);
        js("class", "class A extends B { constructor(x) { if (x) { } } get b() { } static c() { } }",
           u"Class A | Function constructor | Function b | Function c"_s);
        js("statements", "if (a) { } for (;;) { } while (b) { } switch (c) { } catch (d) { } a == b > c; x = y > z",
           {});
        js("calls", "a(b); c(function () { }); d.then(() => { }); $(e).f(x => 1)", {});
        js("comments", "// function a() { }\n/* function b() { } */ function c() { }", u"Function c"_s);
        js("strings", "'function a() { }'; \"it's function b() { }\"; function c() { }", u"Function c"_s);
        js("template", "`function a() { } ${ `}` + { x: `function b() {}` } } function c() {}`; function d() { }",
           u"Function d"_s);
        js("pattern", "x = /[/'\"]function a() { }/g; y = 4 / 2; function b() { } z = c / d", u"Function b"_s);
        js("Java", "public class A { private int b(String c) throws D, E { } }", u"Class A | Function b"_s);
        js("dollar", "function $a_1() { } function \xc3\xbc() { }", u"Function $a_1 | Function \u00fc"_s);
        const auto other = [](const char *name, language::Row row, const QByteArray &text, const QString &expected) {
            QTest::newRow(name) << static_cast<int>(row) << text << expected;
        };
        other("C", language::CCpp, "int a(int);\nstatic void b(struct c *d)\n{ if (x) { } e(f); }", u"Function b"_s);
        other("C++", language::CCpp,
              "class A : public B { int c() const { } };\nA::A(int x) : y(x), z{1} { }\nvoid A::d() noexcept { }",
              u"Class A | Function c | Function A | Function d"_s);
        other("Perl", language::Perl, "package A;\n# sub b { }\nsub c { 'sub d' }\nmy $e = sub { };",
              u"Class A | Function c"_s);
        other(
            "Basic", language::Basic,
            "Public Sub a()\n' Sub b\nRem Sub c\nEnd Sub\nFunction d(x) \"Sub e\"\nExit Function\nProperty Get f()\nClass G",
            u"Function a | Function d | Function f | Class G"_s);
        other(
            "Pascal", language::Pascal,
            "procedure a; { function b; } (* function c; *) // function d\nfunction e(x: string): integer;\nconstructor T.f;",
            u"Function a | Function e | Function T"_s);
        other(
            "SQL", language::Sql,
            "create table a (b int);\n-- create view c\nCREATE OR REPLACE FUNCTION d() 'create table e';\ncreate table if not exists f; drop table g",
            u"Function a | Function d | Function f"_s);
        QTest::newRow("VBScript file") << static_cast<int>(language::Html) << QByteArray("Sub a\nEnd Sub")
                                       << u"Function a"_s;
    }

    void programs()
    {
        QFETCH(int, row);
        QFETCH(QByteArray, text);
        const bool isFile = qstrcmp(QTest::currentDataTag(), "VBScript file") == 0;
        QTEST(symbolsOf(text, row, isFile ? u"/x/y.VBS"_s : QString()), "expected");
    }

    void positions()
    {
        const QByteArray text =
            "\xc3\xbc<h1>a</h1><p id='b'><style>c { }</style><script>function d() {}</script><?php function e() {} ?>";
        const DocumentSymbols symbols = documentSymbols(text, language::Html, {});
        QCOMPARE(symbols.size(), 5U);
        QCOMPARE(symbols[0].position, text.indexOf("<h1"));
        QCOMPARE(symbols[1].position, text.indexOf("b'"));
        QCOMPARE(symbols[2].position, text.indexOf("c {"));
        QCOMPARE(symbols[3].position, text.indexOf("d()"));
        QCOMPARE(symbols[4].position, text.indexOf("e()"));
    }

    void longNames()
    {
        const DocumentSymbols symbols = documentSymbols("<h1>" + QByteArray(5000, 'x') + "</h1>", language::Html, {});
        QCOMPARE(symbols.front().name, QString(200, u'x'));
    }

    /// A text cut anywhere, and one of random signs, gives no positions outside of it.
    void brokenInput()
    {
        const QByteArray whole =
            "<h1 id='a'>b</h1><!-- c --><style>d { e: 'f' } @media g { h { } }</style><script>function i(j) { return `k${l}` + "
            "/m[/]/ }</script><% Sub n %><?php function o() { ?><p title=\"q\" r=<%= s %>>&lt;\xd7\xa9</p>";
        const auto check = [](const QByteArray &text) {
            for (int row = 0; row < languageCount; ++row) {
                const DocumentSymbols symbols = documentSymbols(text, row, {});
                for (const DocumentSymbol &symbol : symbols)
                    QVERIFY2(symbol.position >= 0 && symbol.position < text.size(), text.constData());
            }
        };
        for (qsizetype length = 0; length <= whole.size(); ++length)
            check(whole.first(length));
        QRandomGenerator random(7);
        const QByteArray signs = "<>/!-%?='\"`\\{}()[];:*#h1 id=style\n\xd7";
        for (int round = 0; round < 300; ++round) {
            QByteArray text;
            for (int i = 0; i < 200; ++i)
                text.append(signs[random.bounded(static_cast<int>(signs.size()))]);
            check(text);
        }
    }

    /// A megabyte of whatever would be slow if it were read more than once.
    void isLinear_data()
    {
        QTest::addColumn<QByteArray>("piece");
        for (const char *piece : {"<h1 id='a'>x</h1>\n", "<p a=\"", "<!--", "<?", "<%", "<h1>", "a{", "(", "`${", "/[",
                                  "\"", "/*", "<script>", "' ", "x"})
            QTest::newRow(piece) << QByteArray(piece);
    }

    void isLinear()
    {
        QFETCH(QByteArray, piece);
        constexpr qsizetype size = 1'000'000;
        const QByteArray text = piece.repeated(size / piece.size());
        QElapsedTimer timer;
        timer.start();
        for (const int row : {language::Html, language::JavaScript, language::StyleSheets, language::Pascal})
            QVERIFY(documentSymbols(text, row, {}).size() <= 50'000U);
        // Four times in all; once over the rest of the text for each byte would take a quarter of an hour.
        QVERIFY2(timer.elapsed() < 20'000, qPrintable(QString::number(timer.elapsed())));
    }
};

ZEPHIRA_TEST(TstSymbols)

#include "tst_symbols.moc"
