// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/abbreviations/abbreviationplace.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr int nothing = -1;

int syntaxAtMark(const QByteArray &marked, MarkupRules rules)
{
    const qsizetype at = marked.indexOf('|');
    const QByteArray text = QByteArray(marked).remove(at, 1);
    // Split at the place, as the text of an editor is.
    const QByteArrayView view(text);
    OpenElements reader(rules);
    const auto syntax = abbreviationSyntax(reader, {view.first(at), view.sliced(at)}, at);
    return syntax ? static_cast<int>(*syntax) : nothing;
}

} // namespace

class TstAbbreviationPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void syntax_data()
    {
        using enum AbbreviationSyntax;
        QTest::addColumn<QByteArray>("marked");
        QTest::addColumn<int>("syntax");
        const auto row = [](const char *name, const char *marked, AbbreviationSyntax syntax) {
            QTest::newRow(name) << QByteArray(marked) << static_cast<int>(syntax);
        };
        row("an empty text", "|", Html);
        row("in an element", "<body><p>ul>li|</p>", Html);
        row("behind a style sheet", "<style>a{}</style>ul|", Html);
        row("in a style sheet", "<style>\na { m10| }\n</style>", StyleSheet);
        row("in a style sheet without an end", "<STYLE media=all>m10|", StyleSheet);
        row("in a style", "<p class='x' style=\"m10|\">", StyleAttribute);
        row("in a style with blanks", "<p STYLE = 'm10|'>", StyleAttribute);
        row("in the style of an empty element", "<img alt='' style='m10|'>", StyleAttribute);
        row("a strict type", "<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\" \"x\">\n<p>br|", Xhtml);
        row("a name space", "<html xmlns=\"http://www.w3.org/1999/xhtml\">br|", Xhtml);
        row("behind server code", "<?php if (a > b): ?>ul|", Html);
        QTest::newRow("in a script") << QByteArray("<script>a|</script>") << nothing;
        QTest::newRow("in a tag") << QByteArray("<p ul|>") << nothing;
        QTest::newRow("in another value") << QByteArray("<p title=\"ul|\">") << nothing;
        QTest::newRow("behind a style") << QByteArray("<p style=\"a\" title=\"ul|\">") << nothing;
    }

    void syntax()
    {
        QFETCH(QByteArray, marked);
        QTEST(syntaxAtMark(marked, MarkupRules::Html), "syntax");
    }

    void syntaxOfXml()
    {
        QCOMPARE(syntaxAtMark("<a><script>x|</script></a>", MarkupRules::Xml),
                 static_cast<int>(AbbreviationSyntax::Xml));
        QCOMPARE(syntaxAtMark("<a x|/>", MarkupRules::Xml), nothing);
    }

    void sharedIndent()
    {
        QCOMPARE(withoutSharedIndent({u"  a"_s, u"    b"_s, u""_s, u"  c"_s}),
                 QStringList({u"a"_s, u"  b"_s, u""_s, u"c"_s}));
        QCOMPARE(withoutSharedIndent({u"\ta"_s, u" "_s, u"\t\tb"_s}), QStringList({u"a"_s, u""_s, u"\tb"_s}));
        QCOMPARE(withoutSharedIndent({u"a"_s, u"  b"_s}), QStringList({u"a"_s, u"  b"_s}));
        QCOMPARE(withoutSharedIndent({u" "_s}), QStringList({u""_s}));
    }
};

ZEPHIRA_TEST(TstAbbreviationPlace)

#include "tst_abbreviationplace.moc"
