// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/told.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// What is wrong in a style sheet.
class TstStyleCheck final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tells_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QByteArray &text, const QStringList &expected = {}) {
            QTest::newRow(name) << text << expected;
        };
        row("empty", "");
        row("fine", "a, b > c:hover { color: red; margin : 0 }\n@media print { d { top: 0 } }");
        row("unknown", "a { colr: red; top: 0 }", {u"?4 colr: The property colr isn't known."_s});
        row("last without a semicolon", "a { colr: red }", {u"?4 colr: The property colr isn't known."_s});
        row("in a group", "@media x { a { colr: red } }", {u"?15 colr: The property colr isn't known."_s});
        row("within a rule", "a { top: 0; &:hover { colr: red } b:hover { top: 1 } }",
            {u"?22 colr: The property colr isn't known."_s});
        row("in capitals", "A { COLOR: red; COLR: red }", {u"?16 COLR: The property COLR isn't known."_s});
        row("of one's own", "a { --x: { y: z }; --colr: 1; -webkit-foo: 2; *zoom: 1; _top: 2; $v: 3 }");
        row("other blocks", "@font-face { foo: bar } @property --x { syntax: 'a'; } @counter-style c { d: e }");
        row("old ones",
            "a { scrollbar-face-color: red; zoom: 1; filter: progid:A.B(c=d); mso-foo: 1; behavior: url(x) }");
        row("keyframes", "@keyframes a { from { colr: red } 50% { top: 0 } }",
            {u"?22 colr: The property colr isn't known."_s});
        row("page", "@page :first { margin: 0; @top-left { content: 'a' } }");
        row("strings", "a { content: \"};b:c\"; top: 0 } d::after { content: '\\'{' }");
        row("comments", "/* } */ a { /* b: c; */ top /* d */: 0; /* } */ }");
        row("addresses", "a { background: url(data:x;y,{z}) ; top: 0 } b { background: url( 'c;d' ) }");
        row("no colon", "a { color red; top: 0 }", {u"4 color: There is no colon behind the property color."_s});
        row("too many", "a { top: 0 } }\nb { top: 0 } }", {u"13 }: This } closes nothing."_s});
        row("not closed", "a { top: 0\n", {u"2 {: This { isn't closed."_s});
        row("bracket not closed", "a { top: calc(1px; colr: 2 } b { colr: 3 }",
            {u"?33 colr: The property colr isn't known."_s});
        row("server code", "a { <?= $x ?>: 1; color: <% y %>; } <% if z %> } <% end if %> b { {{c}}: d }");
        row("any script", "/* \u05e9\u05dc\u05d5\u05dd */ .\u4e2d { colr: '\u05e9'; \u5c5e: 1 }",
            {u"?22 colr: The property colr isn't known."_s});
    }

    void tells()
    {
        QFETCH(QByteArray, text);
        QTEST(told(orderFor(text, PlaceLanguage::StyleSheet)), "expected");
    }

    /// Brackets, strings and comments without an end cost no more than their length.
    void floods()
    {
        for (const QByteArray &piece :
             {QByteArray("url("), QByteArray("a{"), QByteArray("}"), QByteArray("/*"), QByteArray("'"),
              QByteArray("\\"), QByteArray("a{b:c;"), QByteArray("@media{(")}) {
            const CheckOrder order = orderFor(piece.repeated(200'000), PlaceLanguage::StyleSheet);
            TidyWatch watch;
            QVERIFY(checkDocument(order, watch).problems.size() <= CheckReport::mostProblems);
        }
    }
};

ZEPHIRA_TEST(TstStyleCheck)

#include "tst_stylecheck.moc"
