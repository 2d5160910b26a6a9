// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Every other test relies on the fakes, so their behaviour is tested as well.
class TstFakes final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void promptsAnswerInOrder()
    {
        ScriptedPrompts prompts;
        bool seen = false;
        prompts.expect({u"Save?"_s, u"Title"_s, Question::Icon::Question, Question::Buttons::YesNo}, Answer::No,
                       [&] { seen = true; });
        prompts.expectInput({u"Name"_s}, u"x"_s);
        prompts.expectTell(u"Done"_s);
        prompts.expectColour(0x0000FF, 0xFF0000U);
        QCOMPARE(prompts.ask({u"Save?"_s, u"Title"_s, Question::Icon::Question, Question::Buttons::YesNo}), Answer::No);
        QVERIFY(seen);
        QCOMPARE(prompts.input({u"Name"_s}), u"x"_s);
        prompts.tell(u"Done"_s);
        QCOMPARE(prompts.colour(0x0000FF), std::optional(0xFF0000U));
        QVERIFY(prompts.verify());
    }

    void promptsTellDifferences()
    {
        QStringList failures;
        {
            ScriptedPrompts prompts;
            prompts.onFailure = [&](const QString &message) { failures.append(message); };
            QCOMPARE(prompts.ask({u"Sure?"_s}), Answer::Cancel);
            prompts.expectTell(u"One\r\nline"_s, {}, Question::Icon::None);
            prompts.tell(u"One\nline"_s, {}, Question::Icon::None);
        }
        QCOMPARE(failures.size(), 3);
        QVERIFY(failures[0].contains(u"no question was expected"_s));
        QCOMPARE(failures[1],
                 u"the question differs.\n"
                 "  expected: message box\n"
                 "    title    \"\"\n"
                 "    text     \"One\\r\\nline\"\n"
                 "    icon     none\n"
                 "    buttons  OK\n"
                 "  asked:    message box\n"
                 "    title    \"\"\n"
                 "    text     \"One\\nline\"\n"
                 "    icon     none\n"
                 "    buttons  OK"_s);
        QVERIFY(failures[2].contains(u"expected and not asked"_s));
    }

    void editorReplacesItsSelection()
    {
        FakeEditor editor;
        int changes = 0;
        editor.onChange = [&] { ++changes; };
        editor.setText(u"one\r\ntwo three\r\n"_s);
        QVERIFY(editor.selectPart(u"two"_s));
        QCOMPARE(editor.selText(), u"two"_s);
        editor.setSelText(u"2\r\n2"_s);
        QCOMPARE(editor.text(), u"one\r\n2\r\n2 three\r\n"_s);
        QCOMPARE(editor.selection(false), (CodeMaxRange{2, 1, 2, 1}));
        QCOMPARE(editor.lineCount(), 4);
        QCOMPARE(changes, 2);
    }

    void editorPlaces_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("offset");
        QTest::newRow("start") << u"ab\r\ncd"_s << 0 << 0 << 0;
        QTest::newRow("end of line") << u"ab\r\ncd"_s << 0 << 2 << 2;
        QTest::newRow("behind the line's end") << u"ab\r\ncd"_s << 0 << 9 << 2;
        QTest::newRow("second line") << u"ab\r\ncd"_s << 1 << 1 << 5;
        QTest::newRow("lone line feed") << u"ab\ncd"_s << 1 << 1 << 4;
        QTest::newRow("lone return") << u"ab\rcd"_s << 1 << 0 << 3;
        QTest::newRow("behind the text") << u"ab\r\ncd"_s << 7 << 7 << 6;
        QTest::newRow("empty last line") << u"ab\r\n"_s << 1 << 0 << 4;
    }

    void editorPlaces()
    {
        QFETCH(QString, text);
        QFETCH(int, line);
        QFETCH(int, column);
        FakeEditor editor;
        editor.setText(text);
        editor.select({line, column, line, column});
        QTEST(editor.caretOffset(), "offset");
    }

    void editorSelectionHasADirection()
    {
        FakeEditor editor;
        editor.setText(u"one two"_s);
        editor.select({0, 7, 0, 4});
        QCOMPARE(editor.selText(), u"two"_s);
        QCOMPARE(editor.selection(false), (CodeMaxRange{0, 7, 0, 4}));
        QCOMPARE(editor.selection(true), (CodeMaxRange{0, 4, 0, 7}));
        QCOMPARE(editor.currentWord(), u"two"_s);
    }

    void editorOpensAndSaves()
    {
        TestContext world;
        world.files.contents[u"/a.htm"_s] = "<p>\r\n";
        QVERIFY(world.editor.openFile(u"/a.htm"_s).ok());
        world.editor.selectOffsets(0, 3);
        world.editor.copy();
        world.editor.placeCaret(5);
        world.editor.paste();
        QVERIFY(world.editor.saveFile(u"/b.htm"_s, true).ok());
        QCOMPARE(world.files.contents[u"/b.htm"_s], "<p>\r\n<p>");
        QCOMPARE(world.editor.openFile(u"/c.htm"_s).error().code, Error::Code::NotFound);
        world.editor.saveError = Error{Error::Code::Unwritable, u"full"_s};
        QVERIFY(!world.editor.saveFile(u"/b.htm"_s, true).ok());
        QVERIFY(world.editor.saveFile(u"/b.htm"_s, true).ok());
    }

    void configurationForgetsCase()
    {
        MemoryConfiguration configuration;
        configuration.put(u"Font"_s, u"Name"_s, u"Mono"_s);
        QCOMPARE(configuration.value(u"FONT"_s, u"name"_s), u"Mono"_s);
        QVERIFY(configuration.log.isEmpty());
        QVERIFY(configuration.setValue(Setting::FontSize, u"9"_s));
        QCOMPARE(configuration.log, QStringList{u"[font] size=9"_s});
        configuration.writable = false;
        QVERIFY(!configuration.setValue(Setting::FontSize, u"10"_s));
        QCOMPARE(configuration.value(u"Font"_s, u"SIZE"_s), u"9"_s);
    }

    void filesFailWhereTheyAreTold()
    {
        MemoryFileStore files;
        QVERIFY(files.write(u"/a"_s, "one").ok());
        const FileSignature first = files.signature(u"/a"_s);
        QVERIFY(files.write(u"/a"_s, "two").ok());
        QVERIFY(files.signature(u"/a"_s) != first);
        files.unwritable[u"/a"_s] = {Error::Code::Unwritable, u"no"_s};
        QVERIFY(!files.write(u"/a"_s, "three").ok());
        QVERIFY(!files.remove(u"/a"_s).ok());
        QCOMPARE(files.read(u"/a"_s).value(), "two");
        files.unreadable[u"/a"_s] = {Error::Code::Unreadable, u"no"_s};
        QVERIFY(!files.FileExists(u"/a"_s));
        QCOMPARE(files.log, (QStringList{u"write /a"_s, u"write /a"_s}));
    }

    void opener()
    {
        FakeFormOpener forms;
        forms.unavailable.insert(u"frmB"_s);
        forms.openModal(u"frmA"_s);
        forms.openModal(u"frmB"_s);
        forms.openModeless(u"frmC"_s);
        QCOMPARE(forms.modal, QStringList{u"frmA"_s});
        QCOMPARE(forms.modeless, QStringList{u"frmC"_s});
    }
};

ZEPHIRA_TEST(TstFakes)

#include "tst_fakes.moc"
