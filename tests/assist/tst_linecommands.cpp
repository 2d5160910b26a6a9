// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/selectionmarks.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstLineCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void join_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("text");
        QTest::newRow("this and the next") << u"on|e\r\n  two\r\nthree"_s << u"one two\r\nthree"_s;
        QTest::newRow("selected ones") << u"o^ne\r\ntwo\r\nthr|ee\r\nfour"_s << u"one two three\r\nfour"_s;
        QTest::newRow("up to a line's start") << u"^one\r\ntwo\r\n|three"_s << u"one two\r\nthree"_s;
        QTest::newRow("the last one") << u"one\r\ntw|o"_s << u"one\r\ntwo"_s;
    }

    void join()
    {
        QFETCH(QString, before);
        AssistFixture f;
        f.setMarked(before);
        const QString original = f.editor.text();
        f.run(TextCommand::JoinLines);
        QTEST(f.editor.text(), "text");
        if (f.editor.text() != original) {
            f.editor.undo();
            QCOMPARE(f.editor.text(), original);
        }
    }

    void trailingBlanks()
    {
        AssistFixture f;
        f.setMarked(u"one  \r\n^two \t\r\n|three \r\n"_s);
        f.run(TextCommand::RemoveTrailingBlanks);
        QCOMPARE(f.editor.text(), u"one  \r\ntwo\r\nthree \r\n"_s);
        f.editor.select({0, 0, 0, 0});
        f.run(TextCommand::RemoveTrailingBlanks);
        QCOMPARE(f.editor.text(), u"one\r\ntwo\r\nthree\r\n"_s);
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"one  \r\ntwo\r\nthree \r\n"_s);
    }

    void commands_data()
    {
        using enum TextCommand;
        QTest::addColumn<TextCommand>("command");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        // clang-format off: a row a line
        QTest::newRow("join at two carets") << JoinLines << u"a|\r\nb\r\nc\r\n|d\r\ne"_s << u"a b|\r\nc\r\nd e|"_s;
        QTest::newRow("join a selection") << JoinLines << u"«a\r\nb»\r\nc"_s << u"«a b»\r\nc"_s;
        QTest::newRow("trailing blanks keep the caret")
            << RemoveTrailingBlanks << u"a \r\nb|c \r\n"_s << u"a\r\nb|c\r\n"_s;

        QTest::newRow("up") << MoveLinesUp << u"a\r\nb|c\r\nd"_s << u"b|c\r\na\r\nd"_s;
        QTest::newRow("up from the last line") << MoveLinesUp << u"a\r\nb|"_s << u"b|\r\na"_s;
        QTest::newRow("up from the first line") << MoveLinesUp << u"a|\r\nb"_s << u"a|\r\nb"_s;
        QTest::newRow("up with a selection") << MoveLinesUp << u"a\r\nb«c\r\nd»\r\ne"_s << u"b«c\r\nd»\r\na\r\ne"_s;
        QTest::newRow("up at two carets") << MoveLinesUp << u"a\r\nb|\r\nc\r\n|d"_s << u"b|\r\na\r\n|d\r\nc"_s;
        QTest::newRow("up with one at the top") << MoveLinesUp << u"a|\r\nb\r\n|c"_s << u"a|\r\nb\r\n|c"_s;
        QTest::newRow("up past a like line") << MoveLinesUp << u"a\r\na|\r\n"_s << u"a|\r\na\r\n"_s;
        QTest::newRow("down") << MoveLinesDown << u"a|b\r\nc\r\nd"_s << u"c\r\na|b\r\nd"_s;
        QTest::newRow("down to the last line") << MoveLinesDown << u"a|\r\nbb"_s << u"bb\r\na|"_s;
        QTest::newRow("down from the last line") << MoveLinesDown << u"a\r\nb|"_s << u"a\r\nb|"_s;
        QTest::newRow("down at two carets")
            << MoveLinesDown << u"a|\r\nb\r\n|c\r\nd\r\n"_s << u"b\r\na|\r\nd\r\n|c\r\n"_s;
        QTest::newRow("down with carets in neighbours") << MoveLinesDown << u"a|\r\n|b\r\nc"_s << u"c\r\na|\r\n|b"_s;

        QTest::newRow("duplicate a line") << Duplicate << u"a|b\r\nc"_s << u"ab\r\na|b\r\nc"_s;
        QTest::newRow("duplicate the last line") << Duplicate << u"ä|b"_s << u"äb\r\nä|b"_s;
        QTest::newRow("duplicate a selection") << Duplicate << u"a«bc»d"_s << u"abc«bc»d"_s;
        QTest::newRow("duplicate at carets") << Duplicate << u"a|b|\r\n|c"_s << u"ab\r\na|b|\r\nc\r\n|c"_s;
        QTest::newRow("duplicate selections") << Duplicate << u"«a» «b»"_s << u"a«a» b«b»"_s;
        QTest::newRow("a caret beside a selection") << Duplicate << u"|c«a» «b»"_s << u"|ca«a» b«b»"_s;

        QTest::newRow("delete") << DeleteLines << u"a\r\nb|c\r\nde"_s << u"a\r\nd|e"_s;
        QTest::newRow("delete the last line") << DeleteLines << u"a\r\nbc|"_s << u"a|"_s;
        QTest::newRow("delete the only line") << DeleteLines << u"a|b"_s << u"|"_s;
        QTest::newRow("delete the empty last line") << DeleteLines << u"ab\r\n|"_s << u"|ab"_s;
        QTest::newRow("delete selected lines") << DeleteLines << u"a«b\r\nc»d\r\ne"_s << u"e|"_s;
        QTest::newRow("delete at carets") << DeleteLines << u"a|\r\nb\r\n|c\r\nd"_s << u"b|\r\n|d"_s;
        QTest::newRow("columns count whole letters") << DeleteLines << u"ab|\r\nxä"_s << u"x|ä"_s;

        QTest::newRow("sort all") << SortLines << u"b|\r\na10\r\nA2\r\n"_s << u"A|2\r\na10\r\nb\r\n"_s;
        QTest::newRow("sort selected lines") << SortLines << u"z\r\n«b\r\na»\r\nc"_s << u"z\r\n«a\r\nb»\r\nc"_s;
        QTest::newRow("sort in two places")
            << SortLines << u"«b\r\na»\r\nx\r\n«d\r\nc»"_s << u"«a\r\nb»\r\nx\r\n«c\r\nd»"_s;
        // clang-format on
    }

    void commands()
    {
        QFETCH(TextCommand, command);
        QFETCH(QString, before);
        AssistFixture f;
        QTEST(afterCommand(f, before, command), "after");
    }

    /// A file with other line ends gets no new ones.
    void lineEndsStay()
    {
        AssistFixture f;
        f.world.files.contents[u"/a"_s] = "b\na";
        QVERIFY(f.editor.openFile(u"/a"_s));
        for (const TextCommand command : {TextCommand::MoveLinesDown, TextCommand::Duplicate, TextCommand::SortLines})
            f.run(command);
        QVERIFY(f.editor.saveFile(u"/a"_s, false));
        QCOMPARE(f.world.files.contents[u"/a"_s], QByteArray("a\nb\nb"));
    }

    void aRectangleHasALineEach()
    {
        AssistFixture f;
        f.editor.setText(u"ab\r\nab\r\nx"_s);
        f.editor.engine().send(QsciScintillaBase::SCI_SETRECTANGULARSELECTIONANCHOR, 0);
        f.editor.engine().send(QsciScintillaBase::SCI_SETRECTANGULARSELECTIONCARET, 5);
        f.run(TextCommand::MoveLinesDown);
        QCOMPARE(f.editor.text(), u"x\r\nab\r\nab"_s);
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"ab\r\nab\r\nx"_s);
    }

    void aReadOnlyTextStays()
    {
        using enum TextCommand;
        AssistFixture f;
        f.setMarked(u"b|one \r\ntwo"_s);
        f.editor.setReadOnly(true);
        for (const TextCommand command : {JoinLines, RemoveTrailingBlanks, MoveLinesUp, MoveLinesDown, Duplicate,
                                          DeleteLines, SortLines, MakeUpperCase, MakeLowerCase, Capitalise})
            f.run(command);
        QCOMPARE(f.editor.text(), u"bone \r\ntwo"_s);
    }
};

ZEPHIRA_TEST(TstLineCommands)

#include "tst_linecommands.moc"
