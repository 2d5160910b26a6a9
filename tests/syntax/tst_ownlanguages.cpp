// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "syntax/styled.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A test row: the fields of a definition, a text, and the letters of its styles.
void row(const char *name, const CodeMaxLanguage &language, const char *text, const char *styles)
{
    QTest::newRow(name) << language << QByteArray(text) << QByteArray(styles);
}

} // namespace

/// Each field of a registered definition has its effect, alone and together with others.
class TstOwnLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void procedural_data();
    void procedural();
    void tagAware_data();
    void tagAware();
    void anEmptyDefinitionKnowsNumbersOnly();
    void endsWithoutBeginningsAreLeftOut();
};

void TstOwnLanguages::procedural_data()
{
    QTest::addColumn<CodeMaxLanguage>("language");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("styles");

    row("case counts", {.CaseSensitive = true, .Keywords = u"If"_s}, "If if IF", "22000000");
    row("case doesn't count", {.Keywords = u"If"_s}, "If if xIF", "220220000");
    row("case of mixed entries", {.Keywords = u"End If\n@Media"_s}, "END if @MEDIA endif", "2222220222222000000");
    row("a repeat has no effect", {.Keywords = u"a\nb\na"_s}, "a b c", "20200");
    row("a blank at the end is asked for", {.Keywords = u"die "_s}, "die x die;", "2220000000");
    row("a mixed entry isn't found in a word", {.Keywords = u"#if\nEnd Sub"_s}, "#ifx #if End Subs",
        "00000222000000000");
    row("the longest entry wins", {.Operators = u"=\n=="_s, .SingleLineComments = u"==="_s}, "a=b==c===d",
        "0303305555");
    row("operator words", {.Operators = u"and\n+"_s}, "a and b+band", "003330030000");
    row("a word as a line comment", {.SingleLineComments = u"rem"_s}, "a rem b\nremark", "0055555\n000000");
    row("two pairs of comment signs", {.MultiLineComments1 = u"{\n(*"_s, .MultiLineComments2 = u"}\n*)"_s},
        "{a*)\n}b(*c}\nd*)e", "5555\n505555\n5550");
    row("words as comment signs", {.MultiLineComments1 = u"comment"_s, .MultiLineComments2 = u"endcomment"_s},
        "a comment b endcomment c comments", "005555555555555555555500000000000");
    row("scope words before keywords",
        {.Keywords = u"begin"_s, .ScopeKeywords1 = u"begin"_s, .ScopeKeywords2 = u"end"_s}, "begin x end",
        "44444000444");
    row("string without an escape sign", {.StringDelims = u"\""_s}, "\"a\\\" b", "666600");
    row("escape sign", {.StringDelims = u"'"_s, .EscapeChar = u"^"_s}, "'a^'b' c^'d'", "666666000666");
    row("escape sign that is the delimiter", {.StringDelims = u"'"_s, .EscapeChar = u"'"_s}, "'a''b' c", "66666600");
    row("escaped line end", {.StringDelims = u"'"_s, .EscapeChar = u"^"_s}, "'a^\nb'c\n'd\ne", "666\n660\n66\n0");
    row("long delimiters", {.StringDelims = u"<<\n\""_s}, "a<<b<c<<d<e", "06666666000");
    row("delimiters beyond ASCII", {.StringDelims = u"\u201c\n\u00a7"_s}, "a \u201cb\u201c c \u00a7d\u00a7",
        "00666000666");
    row("keywords beyond ASCII", {.Keywords = u"\u00fcber\n\u65e5"_s}, "\u00fcber \u65e5 \u65e5\u672c", "222202000");
    row("operators beyond ASCII", {.Operators = u"\u2260"_s}, "a \u2260 b", "00300");
    row("the dollar sign alone", {.Keywords = u"$\nif"_s}, "$if if $ if", "20002202022");
}

void TstOwnLanguages::procedural()
{
    QFETCH(CodeMaxLanguage, language);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, styles);
    QCOMPARE(styleLetters(SyntaxEngine({language}), text), styles);
}

void TstOwnLanguages::tagAware_data()
{
    QTest::addColumn<CodeMaxLanguage>("language");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("styles");

    row("names of the lists", {.TagElementNames = u"a\nx-*"_s, .TagAttributeNames = u"b\nc-*"_s, .Style = 1},
        "<A B><x-y c-d><x- C-><q b>", "397a339997aaa33777773377a3");
    row("every name where the lists are empty", {.Style = 1}, "<a b='c'>d</e>", "397a3666303393");
    row("entities with and without their signs", {.TagEntities = u"x\n&y;"_s, .Style = 1}, "&x;&y;&z;&X;",
        "888888000000");
    row("comments of its own", {.MultiLineComments1 = u"{{!\n<!--"_s, .MultiLineComments2 = u"}}\n-->"_s, .Style = 1},
        "a{{!b\n<c>}}d<!--e-->{f", "05555\n5555505555555500");
    row("delimiters of its own", {.StringDelims = u"|"_s, .Style = 1}, "<a b=|c \">|>", "397a36666663");
    row("nothing of HTML", {.Style = 1}, "<script>a<% b %>", "3999999300000000");
}

void TstOwnLanguages::tagAware()
{
    procedural();
}

void TstOwnLanguages::anEmptyDefinitionKnowsNumbersOnly()
{
    QCOMPARE(styleLetters(SyntaxEngine({CodeMaxLanguage{}}), "if (a < 12) \"x\" // {"), "00000000110000000000");
}

void TstOwnLanguages::endsWithoutBeginningsAreLeftOut()
{
    const CodeMaxLanguage language{.MultiLineComments1 = u"/*\n(*"_s, .MultiLineComments2 = u"*/"_s};
    QCOMPARE(styleLetters(SyntaxEngine({language}), "/*a*/ (*b*)"), "55555000000");
}

ZEPHIRA_TEST(TstOwnLanguages)

} // namespace zephira

#include "tst_ownlanguages.moc"
