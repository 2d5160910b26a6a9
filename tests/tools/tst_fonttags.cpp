// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "support/textgenerator.h"
#include "tools/fonttags.h"
#include "tools/plainfonttags.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QStringList pieces{u"<font>"_s,    u"</font>"_s,   u"<FONT size=2>"_s,
                         u"<center"_s,   u"</CENTER>"_s, u"<fonts>"_s,
                         u"<p "_s,       u">"_s,         u"\""_s,
                         u"'"_s,         u"<!--"_s,      u"-->"_s,
                         u"<% "_s,       u"%>"_s,        u"<?php "_s,
                         u"?>"_s,        u"<?xml "_s,    u"<script>"_s,
                         u"</script"_s,  u"<style "_s,   u"</style>"_s,
                         u"<![CDATA["_s, u"]]>"_s,       u"<#"_s,
                         u"#>"_s,        u"<!x "_s,      u"<"_s,
                         u"ä"_s,         u"\n"_s,        u"/>"_s};

QString without(const QString &markup)
{
    return QString::fromUtf8(withoutFontTags(markup.toUtf8()));
}

} // namespace

class TstFontTags final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tags_data()
    {
        QTest::addColumn<QString>("markup");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &markup, const QString &expected) {
            QTest::newRow(name) << markup << expected;
        };
        const auto same = [&row](const char *name, const QString &markup) { row(name, markup, markup); };
        row("font", u"a<font color=\"red\">b</font>c"_s, u"abc"_s);
        row("center", u"<center>b</center>"_s, u"b"_s);
        row("capitals", u"<FONT SIZE=\"2\">b</FONT><CeNTeR>c</CeNTeR>"_s, u"bc"_s);
        row("within one another", u"<center><font><font><b>x</b></font></font></center>"_s, u"<b>x</b>"_s);
        row("an end within quotes", u"<font face=\"a>b\" title='>'>x</font>"_s, u"x"_s);
        row("an end within server code", u"<font <% if a>b %> size=1>x</font>"_s, u"x"_s);
        row("an end within an instruction", u"<font <?php a>b ?>>x</font>"_s, u"x"_s);
        row("without content", u"<font/>x<center />"_s, u"x"_s);
        row("without an end", u"a<font size"_s, u"a"_s);
        row("over lines", u"<font\nsize=\"1\"\n>x</font\n>"_s, u"x"_s);
        same("nothing", {});
        same("text", u"font < center > x"_s);
        same("names that begin so", u"<fonts>x</fonts><center-x>y</center-x><font:a>"_s);
        same("comment", u"<!-- <font> -- > </center> -->"_s);
        same("CDATA", u"<![CDATA[ <font>> ]]>"_s);
        same("document type", u"<!DOCTYPE HTML PUBLIC \"<font>\">"_s);
        same("server code", u"<% \"<font>\" > %>"_s);
        same("scriptlet", u"<# <font> #>"_s);
        same("PHP", u"<?php echo '<font>' ?><?= '<font>' ?><? '<font>' ?>"_s);
        same("a value in quotes", u"<p title=\"<font>\" id='</center>'>"_s);
        same("script", u"<script type=\"x\">a = '<font></script2'; </SCRIPT>"_s);
        same("style", u"<STYLE><font></style>"_s);
        row("behind a script", u"<script>a<b</script><font>x"_s, u"<script>a<b</script>x"_s);
        row("behind a script without content", u"<script/><font>x"_s, u"<script/>x"_s);
        row("behind an instruction", u"<?xml version=\"1.0\"?><font>x"_s, u"<?xml version=\"1.0\"?>x"_s);
        same("a comment without an end", u"<!-- <font>"_s);
        same("a script without an end", u"<script><font>"_s);
        same("a quote without an end", u"<p title=\"<font>"_s);
        same("characters outside ASCII", u"<p>ä€😀</p>"_s);
    }

    void tags()
    {
        QFETCH(QString, markup);
        QTEST(without(markup), "expected");
        QTEST(plainWithoutFontTags(markup), "expected");
    }

    void likeTheExpression()
    {
        QRandomGenerator random(61);
        int shorter = 0;
        for (int round = 0; round < 30000; ++round) {
            const QString text = generatedText(random, pieces, 14);
            const QString expected = plainWithoutFontTags(text);
            if (const QString found = without(text); found != expected)
                QFAIL(qPrintable(text + u"\n"_s + found + u"\n"_s + expected));
            shorter += expected.size() < text.size();
        }
        QVERIFY(shorter > 5000);
    }

    void tenTimesTheMarkup_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::newRow("font tags") << u"<p><font color=\"red\">text</font></p>\n"_s;
        QTest::newRow("open quotes") << u"<p a=\""_s;
        QTest::newRow("open comments") << u"<!-- "_s;
        QTest::newRow("open scripts") << u"<script>"_s;
        QTest::newRow("server code in tags") << u"<p <% "_s;
        QTest::newRow("brackets") << u"<"_s;
        QTest::newRow("end tags in a script") << u"<script></x"_s;
    }

    void tenTimesTheMarkup()
    {
        QFETCH(QString, unit);
        const double times = timesForTenTimes([&](qsizetype count) { return unit.repeated(count); }, 40000,
                                              [](const QString &text) { withoutFontTags(text.toUtf8()); });
        QVERIFY2(times <= mostOfLinear, qPrintable(QString::number(times)));
    }
};

ZEPHIRA_TEST(TstFontTags)

#include "tst_fonttags.moc"
