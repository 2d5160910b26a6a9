// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "syntax/corpus.h"
#include "syntax/styled.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Folds a text and writes each line as its depth, "+" for a header and "." for a blank line.
QString foldsOf(const SyntaxEngine &engine, const QByteArray &text)
{
    const std::vector<unsigned char> styles = stylesOf(engine, text);
    std::vector<qsizetype> starts = lineStartsOf(text);
    starts.push_back(text.size());
    QString result;
    FoldState state;
    for (std::size_t line = 0; line + 1 < starts.size(); ++line) {
        const qsizetype size = starts[line + 1] - starts[line];
        const FoldLine fold = engine.foldRules().fold(
            QByteArrayView(text).sliced(starts[line], size),
            std::span(styles).subspan(static_cast<std::size_t>(starts[line]), static_cast<std::size_t>(size)), state);
        result +=
            QString::number(fold.level) + (fold.header ? u"+"_s : QString()) + (fold.blank ? u"."_s : QString()) + u' ';
    }
    return result.trimmed();
}

} // namespace

class TstFoldLevels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folds_data();
    void folds();
    void resumesAtAnyLine_data();
    void resumesAtAnyLine();
};

void TstFoldLevels::folds_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("folds");
    const auto row = [](const char *name, const char *language, const char *text, const char *folds) {
        QTest::newRow(name) << QString::fromLatin1(language) << QByteArray(text) << QString::fromLatin1(folds);
    };

    row("braces", "C/C++", "void f() {\n  if (x) {\n    y;\n  }\n}\nz", "0+ 1+ 2 2 1 0");
    row("one line holds a block", "C/C++", "f() { g(); }\nh", "0 0");
    row("closing and opening in one line", "C/C++", "if (a) {\n} else {\n}\nb", "0+ 1 1 0");
    row("braces in strings and comments", "C/C++", "s = \"{\"; // {\nx", "0 0");
    row("more closed than opened", "C/C++", "}\n}\nf {\n}\n", "0 0 0+ 1");
    row("a comment over lines", "C/C++", "/* a\n b\n*/ c\nd", "0+ 1 1 0");
    row("two comments over lines", "C/C++", "/*\n*/ x /*\n*/\ny", "0+ 1 1 0");
    row("line comments side by side", "C/C++", "// a\n// b\nc", "0 0 0");
    row("blank lines", "C/C++", "{\n \t\n\n}\r\n\r\nx", "0+ 1. 1. 1 0. 0");
    row("elements", "HTML", "<div>\n<table>\n<tr><td>x\n</table>\n</div>\nx", "0+ 1+ 2 2 1 0");
    row("elements without an end tag", "HTML", "<p>\n<li>\n<br>\n<img src=x>\n", "0 0 0 0");
    row("an element that is closed in its line", "HTML", "<div>x</div>\n<ul>\n</ul>\n", "0 0+ 1");
    row("a tag over lines", "HTML", "<div\n id=x\n>\n</div>\nx", "0+ 1 1 1 0");
    row("case doesn't count", "HTML", "<DIV>\n</div>\nx", "0+ 1 0");
    row("a markup comment", "HTML", "<!--\n<div>\n-->\nx", "0+ 1 1 0");
    row("a script and its braces", "HTML", "<script>\nfunction f() {\n}\n</script>\nx", "0+ 1+ 2 1 0");
    row("a style sheet", "HTML", "<style>\na > b {\n}\n</style>\nx", "0+ 1+ 2 1 0");
    row("a server block", "HTML", "<% For Each x In y %>\n<b>z</b>\n<% Next %>\nx", "0+ 1 1 0");
    row("every element of XML", "XML", "<a>\n<b c='d'/>\n<e\n/>\n<?x?>\n</a>\nx", "0+ 1 1+ 2 1 1 0");
    row("words that open and close", "Basic", "Sub a()\n  Do While b\n  Loop\nEnd Sub\nx", "0+ 1+ 2 1 0");
    row("words that only look alike", "Basic", "Declare Sub a Lib \"b\"\nExit Sub\nOpen f For Input As #1\nx",
        "0 0 0 0");
    row("nested words", "Pascal", "begin\n repeat\n  x\n until y;\nend;\nz", "0+ 1+ 2 2 1 0");
    row("Perl", "Perl", "sub f {\n}\nx", "0+ 1 0");
}

void TstFoldLevels::folds()
{
    QFETCH(QString, language);
    QFETCH(QByteArray, text);
    QFETCH(QString, folds);
    QCOMPARE(foldsOf(engineOf(language), text), folds);
}

void TstFoldLevels::resumesAtAnyLine_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = corpusLanguages();
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

/// The folding of a line depends only on its text, its styles, the depth before it, and the style of the byte before
/// it.
void TstFoldLevels::resumesAtAnyLine()
{
    QFETCH(QString, language);
    const SyntaxEngine &engine = engineOf(language);
    std::mt19937 dice(5);
    for (int round = 0; round < 200; ++round) {
        const QByteArray text = corpusText(dice, 80);
        const std::vector<unsigned char> styles = stylesOf(engine, text);
        std::vector<qsizetype> starts = lineStartsOf(text);
        starts.push_back(text.size());
        FoldState state;
        for (std::size_t line = 0; line + 1 < starts.size(); ++line) {
            const std::size_t begin = static_cast<std::size_t>(starts[line]);
            const bool comment = begin > 0 && styles[begin - 1] == static_cast<unsigned char>(SyntaxStyle::Comment);
            QCOMPARE(state, (FoldState{state.level, comment}));
            QVERIFY(state.level >= 0);
            const std::size_t size = static_cast<std::size_t>(starts[line + 1]) - begin;
            engine.foldRules().fold(QByteArrayView(text).sliced(starts[line], static_cast<qsizetype>(size)),
                                    std::span(styles).subspan(begin, size), state);
        }
    }
}

ZEPHIRA_TEST(TstFoldLevels)

} // namespace zephira

#include "tst_foldlevels.moc"
