// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/pairs/commenttext.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;

class TstCommentText : public QObject
{
    Q_OBJECT

private:
    static CommentMarks markup() { return {{}, "<!--", "-->"}; }
    static CommentMarks code() { return {"//", "/*", "*/"}; }

private Q_SLOTS:
    void intoAndOut_data()
    {
        QTest::addColumn<bool>("isMarkup");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("comment");
        QTest::newRow("text") << true << QByteArray("a") << QByteArray("<!-- a -->");
        QTest::newRow("nothing") << true << QByteArray("") << QByteArray("<!--  -->");
        QTest::newRow("a comment") << true << QByteArray("a <!-- b --> c")
                                   << QByteArray("<!-- a <!-&#45; b -&#45;> c -->");
        QTest::newRow("twice") << true << QByteArray("<!-- <!-&#45; b -&#45;> -->")
                               << QByteArray("<!-- <!-&#45; <!-&amp;#45; b -&amp;#45;> -&#45;> -->");
        QTest::newRow("dashes") << true << QByteArray("--- -") << QByteArray("<!-- -&#45;- - -->");
        QTest::newRow("another entity") << true << QByteArray("-&amp; -&#46;") << QByteArray("<!-- -&amp; -&#46; -->");
        QTest::newRow("code") << false << QByteArray("a /* b */ c") << QByteArray("/* a /* b *\\/ c */");
        QTest::newRow("code twice") << false << QByteArray("/* *\\/ */") << QByteArray("/* /* *\\\\/ *\\/ */");
        QTest::newRow("backslashes") << false << QByteArray("*\\x") << QByteArray("/* *\\x */");
    }

    void intoAndOut()
    {
        QFETCH(bool, isMarkup);
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, comment);
        const CommentMarks marks = isMarkup ? markup() : code();
        QCOMPARE(changedText(text, intoComment(text, marks)), comment);
        const auto back = withoutComment(comment, marks);
        QVERIFY(back);
        QCOMPARE(changedText(comment, *back), text);
    }

    void whatIsNoComment()
    {
        QVERIFY(!withoutComment("a", markup()));
        QVERIFY(!withoutComment("<!-- a", markup()));
        QVERIFY(!withoutComment("<!-- a --> b", markup()));
        QVERIFY(!withoutComment("<!-- a --> <!-- b -->", markup()));
        QVERIFY(!withoutComment("/*/", code()));
        const auto bare = withoutComment("<!--a-->", markup());
        QVERIFY(bare);
        QCOMPARE(changedText("<!--a-->", *bare), QByteArray("a"));
    }

    void lines_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<QByteArray>("toggled");
        QTest::addColumn<bool>("comesBack");
        QTest::newRow("one") << QByteArray("  a") << QByteArray("  // a") << true;
        QTest::newRow("several") << QByteArray("  a\r\n    b\r\n") << QByteArray("  // a\r\n  //   b\r\n") << true;
        QTest::newRow("blank ones between") << QByteArray("a\n\nb") << QByteArray("// a\n\n// b") << true;
        QTest::newRow("one that is a comment") << QByteArray("// a\nb") << QByteArray("// // a\n// b") << true;
        QTest::newRow("comments without blank") << QByteArray("//a\n//b") << QByteArray("a\nb") << false;
        QTest::newRow("different blanks") << QByteArray("\ta\n  b") << QByteArray("// \ta\n//   b") << true;
        QTest::newRow("a blank line") << QByteArray("  ") << QByteArray("  // ") << false;
        QTest::newRow("its comment") << QByteArray("  // ") << QByteArray("  ") << false;
        QTest::newRow("only blank ones") << QByteArray("\n \n") << QByteArray("\n \n") << true;
    }

    void lines()
    {
        QFETCH(QByteArray, lines);
        QFETCH(bool, comesBack);
        const QByteArray toggled = changedText(lines, toggledLines(lines, "//"));
        QTEST(toggled, "toggled");
        if (comesBack)
            QCOMPARE(changedText(toggled, toggledLines(toggled, "//")), lines);
    }

    void around()
    {
        const QByteArray text("a <!-- b --> c <!-- d");
        const auto comment = commentAround(text, 8, markup());
        QVERIFY(comment);
        QCOMPARE(text.mid(comment->start, comment->end - comment->start), QByteArray("<!-- b -->"));
        QVERIFY(!commentAround(text, 1, markup()));
        QVERIFY(!commentAround(text, 13, markup()));
        QVERIFY(!commentAround(text, 20, markup()));
        QVERIFY(!commentAround(text, 8, {"'", {}, {}}));
    }
};

ZEPHIRA_TEST(TstCommentText)

#include "tst_commenttext.moc"
