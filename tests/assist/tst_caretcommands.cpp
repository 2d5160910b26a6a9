// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/caretcommands.h"
#include "assist/selectionmarks.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstCaretCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data()
    {
        using enum TextCommand;
        QTest::addColumn<TextCommand>("command");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        // clang-format off: a row a line
        QTest::newRow("all of a word") << SelectAllOccurrences << u"one One o|ne one"_s << u"«one» One «one» «one»"_s;
        QTest::newRow("all of a selection") << SelectAllOccurrences << u"«aa»aaa"_s << u"«aa»«aa»a"_s;
        QTest::newRow("no word") << SelectAllOccurrences << u"a | b"_s << u"a | b"_s;
        QTest::newRow("carets in lines") << CaretInEachLine << u"a«b\r\nc\r\nd»e\r\nf"_s << u"ab|\r\nc|\r\nde|\r\nf"_s;
        QTest::newRow("up to a line's start") << CaretInEachLine << u"«ab\r\n»c"_s << u"ab|\r\nc"_s;
        QTest::newRow("upper case of a word") << MakeUpperCase << u"one tw|o"_s << u"one TW|O"_s;
        QTest::newRow("upper case of selections") << MakeUpperCase << u"«oné» two «three»"_s << u"«ONÉ» two «THREE»"_s;
        QTest::newRow("two carets in a word") << MakeUpperCase << u"o|n|e"_s << u"O|N|E"_s;
        QTest::newRow("it may grow") << MakeUpperCase << u"«ß» «ß»"_s << u"«SS» «SS»"_s;
        QTest::newRow("lower case") << MakeLowerCase << u"«ONE»"_s << u"«one»"_s;
        QTest::newRow("capitals") << Capitalise << u"«one TWO»"_s << u"«One Two»"_s;
        // clang-format on
    }

    void commands()
    {
        QFETCH(TextCommand, command);
        QFETCH(QString, before);
        AssistFixture f;
        QTEST(afterCommand(f, before, command), "after");
    }

    void theViewStaysWithTheMainOne()
    {
        AssistFixture f;
        setSelected(f, u"one two one t|wo one"_s);
        f.run(TextCommand::SelectAllOccurrences);
        QCOMPARE(f.editor.engine().caret(), 15);
    }

    /// After them, what one types goes in at all places, and one undo takes the word back.
    void oneTypesAtAllOfThem()
    {
        AssistFixture f;
        f.show();
        setSelected(f, u"o|ne one"_s);
        f.run(TextCommand::SelectAllOccurrences);
        f.type(u"two"_s);
        QCOMPARE(f.editor.text(), u"two two"_s);
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"one one"_s);
    }

    void thereIsALimit()
    {
        AssistFixture f;
        f.editor.setText(u"a\r\n"_s.repeated(mostCarets + 5));
        f.editor.select({0, 0, 0, 1});
        f.world.prompts.expectTell(
            u"There are more places than can be selected at once. The first %1 are selected."_s.arg(
                QLocale().toString(mostCarets)));
        f.run(TextCommand::SelectAllOccurrences);
        QCOMPARE(f.editor.selectionCount(), mostCarets);
        QVERIFY(f.world.prompts.verify());
    }

    void theNextOccurrenceIsFoundAfterAChange()
    {
        AssistFixture f;
        f.show();
        setSelected(f, u"a|\r\nb\r\none one"_s);
        f.run(TextCommand::JoinLines);
        f.editor.select({1, 0, 1, 3});
        f.editor.executeCmd(EditorCommand::AddNextOccurrence);
        QCOMPARE(selected(f), u"a b\r\n«one» «one»"_s);
    }
};

ZEPHIRA_TEST(TstCaretCommands)

#include "tst_caretcommands.moc"
