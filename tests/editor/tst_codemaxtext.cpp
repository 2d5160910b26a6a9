// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "support/testregistry.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace zephira {

class TstCodeMaxText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewDocumentIsEmpty()
    {
        EditorFixture f;
        QCOMPARE(f.editor.text(), QString());
        QCOMPARE(f.editor.textLength(), 0);
        QCOMPARE(f.editor.lineCount(), 1);
        QCOMPARE(f.editor.selection(false), CodeMaxRange());
        QVERIFY(!f.editor.canUndo());
        QVERIFY(!f.editor.canRedo());
        QVERIFY(!f.editor.canCopy());
    }

    void partsAreReplaced_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("CR LF") << QByteArray("one\r\ntw\xc3\xb6\r\nthree\r\n");
        QTest::newRow("LF") << QByteArray("one\ntw\xc3\xb6\nthree\n");
    }
    void partsAreReplaced()
    {
        QFETCH(QByteArray, file);
        EditorFixture f;
        f.files.contents[u"/a.txt"_s] = file;
        QVERIFY(f.editor.openFile(u"/a.txt"_s));
        const QString before = f.editor.text();
        QCOMPARE(before, u"one\r\ntwö\r\nthree\r\n"_s);
        f.editor.select({2, 1, 2, 4});
        QSignalSpy changes(&f.editor, &CodeMax::Change);
        const TextChanges parts{{0, 1, u"O\r\nO"_s}, {7, 8, {}}, {10, 10, u"\U0001f600"_s}, {17, 17, u"end"_s}};
        f.editor.changeText(parts);
        QCOMPARE(f.editor.text(), withChanges(before, parts));
        QCOMPARE(f.editor.text(), u"O\r\nOne\r\ntw\r\n\U0001f600three\r\nend"_s);
        QCOMPARE(changes.count(), 1);
        // The selection is still on the same characters.
        QCOMPARE(f.editor.selText(), u"hre"_s);
        f.editor.undo();
        QCOMPARE(f.editor.text(), before);
        QVERIFY(!f.editor.canUndo());
        f.editor.redo();
        QCOMPARE(f.editor.text(), withChanges(before, parts));
        f.editor.changeText({});
        QCOMPARE(f.editor.text(), withChanges(before, parts));
    }

    void scrollPositionStaysWhenPartsAreReplaced()
    {
        EditorFixture f;
        f.show();
        QString text;
        for (int line = 0; line < 500; ++line)
            text += u"line %1\r\n"_s.arg(line);
        f.editor.setText(text);
        f.editor.select({200, 3, 200, 3});
        f.editor.engine().send(QsciScintillaBase::SCI_SETFIRSTVISIBLELINE, 190);
        f.editor.changeText({{0, 0, u"new\r\nlines\r\n"_s}, {text.size(), text.size(), u"end"_s}});
        QCOMPARE(f.editor.engine().send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE), 192);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{202, 3, 202, 3}));
    }

    void writingTextIsReadBack_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("read");
        QTest::addColumn<int>("lines");
        QTest::newRow("CR LF") << u"one\r\ntwo\r\n"_s << u"one\r\ntwo\r\n"_s << 3;
        QTest::newRow("LF becomes CR LF") << u"one\ntwo"_s << u"one\r\ntwo"_s << 2;
        QTest::newRow("CR becomes CR LF") << u"one\rtwo"_s << u"one\r\ntwo"_s << 2;
        QTest::newRow("NUL") << QString::fromUtf16(u"a\0b\r\n\0", 6) << QString::fromUtf16(u"a\0b\r\n\0", 6) << 2;
        QTest::newRow("beyond the BMP") << u"\U0001f600 x"_s << u"\U0001f600 x"_s << 1;
        QTest::newRow("empty") << QString() << QString() << 1;
    }
    void writingTextIsReadBack()
    {
        QFETCH(QString, written);
        QFETCH(QString, read);
        QFETCH(int, lines);
        EditorFixture f;
        QSignalSpy changes(&f.editor, &CodeMax::Change);
        f.editor.setText(u"before"_s);
        changes.clear();
        f.editor.setText(written);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(f.editor.text(), read);
        QCOMPARE(f.editor.textLength(), read.size());
        QCOMPARE(f.editor.lineCount(), lines);
        QCOMPARE(f.editor.selection(false), CodeMaxRange());
        // One undo step and one redo step.
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"before"_s);
        f.editor.redo();
        QCOMPARE(f.editor.text(), read);
    }

    void changeComesOnceForEachWrite()
    {
        EditorFixture f;
        QSignalSpy changes(&f.editor, &CodeMax::Change);
        f.editor.setText(u"abc"_s);
        f.editor.setText(u"abc"_s);
        f.editor.select({0, 1, 0, 2});
        QCOMPARE(changes.count(), 2);
        f.editor.setSelText(u"xyz"_s);
        QCOMPARE(changes.count(), 3);
        f.editor.setSelText(QString());
        QCOMPARE(changes.count(), 4);
        f.editor.undo();
        QCOMPARE(changes.count(), 5);
        f.editor.redo();
        QCOMPARE(changes.count(), 6);
        QCOMPARE(f.editor.text(), u"axyzc"_s);
    }

    void changeIsRaisedWithinTheCallWithTheNewTextInPlace()
    {
        EditorFixture f;
        QString seen;
        int length = -1;
        connect(&f.editor, &CodeMax::Change, this, [&] {
            seen = f.editor.text();
            length = f.editor.textLength();
        });
        f.editor.setText(u"new"_s);
        QCOMPARE(seen, u"new"_s);
        QCOMPARE(length, 3);
        f.editor.setSelText(u"<b>"_s);
        QCOMPARE(seen, u"<b>new"_s);
    }

    void aHandlerMayWriteAgain()
    {
        EditorFixture f;
        int changes = 0;
        connect(&f.editor, &CodeMax::Change, this, [&] {
            if (++changes == 1)
                f.editor.setSelText(u"!"_s);
        });
        f.editor.setText(u"a"_s);
        QCOMPARE(f.editor.text(), u"!a"_s);
        QCOMPARE(changes, 2);
    }

    void aHandlerMayDestroyTheControl()
    {
        EditorFixture f;
        auto *editor = new CodeMax(f.editor.services());
        connect(editor, &CodeMax::Change, this, [&] { delete std::exchange(editor, nullptr); });
        editor->setText(u"a"_s);
        QVERIFY(!editor);
    }

    void selTextReplacesAndLeavesTheCaretBehind()
    {
        EditorFixture f;
        f.editor.setText(u"one\r\ntwo\r\nthree"_s);
        f.editor.select({0, 1, 1, 2});
        QCOMPARE(f.editor.selText(), u"ne\r\ntw"_s);
        QCOMPARE(f.editor.selLength(), 6);
        QVERIFY(f.editor.canCopy());
        f.editor.setSelText(u"X\nY"_s);
        QCOMPARE(f.editor.text(), u"oX\r\nYo\r\nthree"_s);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{1, 1, 1, 1}));
        QCOMPARE(f.editor.selText(), QString());
        QCOMPARE(f.editor.selLength(), 0);
        f.editor.setSelText(u"Z"_s);
        QCOMPARE(f.editor.text(), u"oX\r\nYZo\r\nthree"_s);
        f.editor.undo();
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"one\r\ntwo\r\nthree"_s);
    }

    void selTextWithNul()
    {
        EditorFixture f;
        f.editor.setText(u"ab"_s);
        f.editor.select({0, 1, 0, 1});
        const QString nul = QString::fromUtf16(u"x\0y", 3);
        f.editor.setSelText(nul);
        QCOMPARE(f.editor.text(), u"a"_s + nul + u"b"_s);
        f.editor.select({0, 1, 0, 4});
        QCOMPARE(f.editor.selText(), nul);
        QCOMPARE(f.editor.selLength(), 3);
    }

    void aSelectionKeepsItsDirection()
    {
        EditorFixture f;
        f.editor.setText(u"one\r\ntwo"_s);
        f.editor.select({1, 2, 0, 1});
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{1, 2, 0, 1}));
        QCOMPARE(f.editor.selection(true), (CodeMaxRange{0, 1, 1, 2}));
    }

    void columnsCountUtf16Units()
    {
        EditorFixture f;
        f.editor.setText(u"ä\U0001f600b"_s);
        f.editor.select({0, 1, 0, 3});
        QCOMPARE(f.editor.selText(), u"\U0001f600"_s);
        QCOMPARE(f.editor.selLength(), 2);
        QCOMPARE(f.editor.selection(true), (CodeMaxRange{0, 1, 0, 3}));
        // A position in the middle of a surrogate pair counts as its beginning.
        f.editor.select({0, 2, 0, 4});
        QCOMPARE(f.editor.selection(true), (CodeMaxRange{0, 1, 0, 4}));
    }

    void aRangeOutsideTheTextIsBroughtInside_data()
    {
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("reachedLine");
        QTest::addColumn<int>("reachedColumn");
        QTest::newRow("column beyond the line") << 0 << 99 << 0 << 3;
        QTest::newRow("line beyond the text") << 99 << 0 << 1 << 2;
        QTest::newRow("negative line") << -1 << 5 << 0 << 0;
        QTest::newRow("negative column") << 1 << -5 << 1 << 0;
    }
    void aRangeOutsideTheTextIsBroughtInside()
    {
        QFETCH(int, line);
        QFETCH(int, column);
        QFETCH(int, reachedLine);
        QFETCH(int, reachedColumn);
        EditorFixture f;
        f.editor.setText(u"abc\r\nde"_s);
        f.editor.select({line, column, line, column});
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{reachedLine, reachedColumn, reachedLine, reachedColumn}));
    }

    void currentWord_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("word");
        QTest::newRow("start") << 0 << u"Grüße"_s;
        QTest::newRow("inside") << 3 << u"Grüße"_s;
        QTest::newRow("end") << 5 << u"Grüße"_s;
        QTest::newRow("between blanks") << 7 << QString();
        QTest::newRow("last") << 12 << u"you2"_s;
    }
    void currentWord()
    {
        QFETCH(int, column);
        QFETCH(QString, word);
        EditorFixture f;
        f.editor.setText(u"Grüße    you2"_s);
        f.editor.select({0, column, 0, column});
        QCOMPARE(f.editor.currentWord(), word);
    }

    void selChangeComesOnceForEachMove()
    {
        EditorFixture f;
        f.editor.setText(u"abc\r\ndef"_s);
        QSignalSpy moves(&f.editor, &CodeMax::SelChange);
        f.editor.select({0, 1, 1, 1});
        QCOMPARE(moves.count(), 1);
        f.editor.select({0, 1, 1, 1});
        QCOMPARE(moves.count(), 1);
        f.editor.setSelText(u"x"_s);
        QCOMPARE(moves.count(), 2);
        f.editor.executeCmd(EditorCommand::GoToLine, 0);
        QCOMPARE(moves.count(), 3);
    }

    /// A change of the number of lines is reported too, even if the caret stays: the window shows that number.
    void selChangeComesWithTheLineCount()
    {
        EditorFixture f;
        QSignalSpy moves(&f.editor, &CodeMax::SelChange);
        f.editor.setText(u"a\r\nb"_s);
        QCOMPARE(moves.count(), 1);
        QCOMPARE(f.editor.lineCount(), 2);
    }

    void whileHiddenTooEverythingIsTold()
    {
        EditorFixture f;
        f.show();
        f.editor.hide();
        QSignalSpy changes(&f.editor, &CodeMax::Change);
        QSignalSpy moves(&f.editor, &CodeMax::SelChange);
        f.editor.setText(u"a\r\nb"_s);
        f.editor.select({1, 1, 1, 1});
        QCOMPARE(changes.count(), 1);
        QCOMPARE(moves.count(), 2);
        f.editor.undo();
        QCOMPARE(f.editor.text(), QString());
    }

    void typingIsOneChangeAKey()
    {
        EditorFixture f;
        f.show();
        QSignalSpy changes(&f.editor, &CodeMax::Change);
        QTest::keyClicks(&f.editor, u"ab"_s);
        QCOMPARE(changes.count(), 2);
        QTest::keyClick(&f.editor, Qt::Key_Return);
        QCOMPARE(changes.count(), 3);
        f.editor.select({0, 0, 1, 0});
        QTest::keyClicks(&f.editor, u"x"_s);
        QCOMPARE(changes.count(), 4);
        QCOMPARE(f.editor.text(), u"x"_s);
    }

    void theLengthIsKeptThroughAnyEdits_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("CR LF") << "one\r\ntwo\r\n"_ba;
        QTest::newRow("LF") << "one\ntwo\n"_ba;
        QTest::newRow("CR") << "one\rtwo\r"_ba;
        QTest::newRow("mixed") << "one\rtwo\n\r\n"_ba;
    }
    void theLengthIsKeptThroughAnyEdits()
    {
        QFETCH(QByteArray, file);
        EditorFixture f;
        f.files.contents[u"/file"_s] = file;
        QVERIFY(f.editor.openFile(u"/file"_s));
        QRandomGenerator random(99);
        const QStringList pieces{u"a"_s,  u"é€"_s, u"\U0001f600"_s,   u"\r\n"_s,
                                 u"\n"_s, u"\r"_s, QString(QChar(0)), QString()};
        for (int i = 0; i < 2000; ++i) {
            const auto number = [&](int below) { return static_cast<int>(random.bounded(below)); };
            const int doing = number(12);
            if (doing == 0)
                f.editor.undo();
            else if (doing == 1)
                f.editor.redo();
            else if (doing == 2 && number(20) == 0)
                f.editor.setText(pieces[number(8)] + pieces[number(8)]);
            else if (doing == 3)
                f.editor.clearSelection();
            else if (doing < 7)
                f.editor.select({number(8), number(6), number(8), number(6)});
            else
                f.editor.setSelText(pieces[number(8)]);
            QCOMPARE(f.editor.textLength(), f.editor.text().size());
            QCOMPARE(f.editor.selLength(), f.editor.selText().size());
        }
    }

    void clipboardOperations()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one two"_s);
        f.editor.select({0, 0, 0, 3});
        f.editor.copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"one"_s);
        f.editor.select({0, 4, 0, 7});
        f.editor.clearSelection();
        QCOMPARE(f.editor.text(), u"one "_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"one"_s);
        f.editor.paste();
        QCOMPARE(f.editor.text(), u"one one"_s);
        f.editor.select({0, 0, 0, 4});
        f.editor.cut();
        QCOMPARE(f.editor.text(), u"one"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"one "_s);
    }

    void clearingWithoutASelectionChangesNothing()
    {
        EditorFixture f;
        f.editor.setText(u"a\r\nb"_s);
        f.editor.select({0, 1, 0, 1});
        f.editor.clearSelection();
        QCOMPARE(f.editor.text(), u"a\r\nb"_s);
    }

    void theDeleteKeyTakesTheNextCharacter()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"a\r\nb"_s);
        f.editor.select({0, 1, 0, 1});
        QTest::keyClick(&f.editor, Qt::Key_Delete);
        QCOMPARE(f.editor.text(), u"ab"_s);
    }

    void pastedLineEndsBecomeTheTexts()
    {
        EditorFixture f;
        f.files.contents[u"/lf"_s] = "a\nb";
        QVERIFY(f.editor.openFile(u"/lf"_s));
        QGuiApplication::clipboard()->setText(u"x\r\ny\rz\n"_s);
        f.editor.paste();
        QVERIFY(f.editor.saveFile(u"/lf"_s, false));
        QCOMPARE(f.files.contents[u"/lf"_s], "x\ny\nz\na\nb"_ba);
    }

    void aReadOnlyControlRefusesItsUser()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"abc"_s);
        f.editor.setReadOnly(true);
        QTest::keyClicks(&f.editor, u"x"_s);
        QTest::keyClick(&f.editor, Qt::Key_Return);
        f.editor.paste();
        f.editor.executeCmd(EditorCommand::SelectAll);
        f.editor.cut();
        f.editor.clearSelection();
        QCOMPARE(f.editor.text(), u"abc"_s);
        f.editor.setText(u"by the program"_s);
        f.editor.setSelText(u"set "_s);
        QCOMPARE(f.editor.text(), u"set by the program"_s);
        f.files.contents[u"/f"_s] = "file";
        QVERIFY(f.editor.openFile(u"/f"_s));
        QCOMPARE(f.editor.text(), u"file"_s);
        QVERIFY(f.editor.isReadOnly());
    }

    void severalSelectionsAreReplacedTogether()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"aXb\r\naXb"_s);
        const auto &engine = f.editor.engine();
        engine.send(QsciScintillaBase::SCI_SETSELECTION, 2, 1);
        engine.send(QsciScintillaBase::SCI_ADDSELECTION, 7, 6);
        QTest::keyClicks(&f.editor, u"yz"_s);
        QCOMPARE(f.editor.text(), u"ayzb\r\nayzb"_s);
    }

    void aBlockIsReadAsLinesAndReplacedAsAWhole()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"abcd\r\nabcd\r\nabcd"_s);
        QCoreApplication::processEvents();
        const auto &engine = f.editor.engine();
        engine.send(QsciScintillaBase::SCI_SETRECTANGULARSELECTIONANCHOR, 1);
        engine.send(QsciScintillaBase::SCI_SETRECTANGULARSELECTIONCARET, 15);
        QCOMPARE(f.editor.selText(), u"bc\r\nbc\r\nbc\r\n"_s);
        QCOMPARE(f.editor.selLength(), f.editor.selText().size());
        f.editor.setSelText(u"-"_s);
        QCOMPARE(f.editor.text().count(u'b'), 0);
        QCOMPARE(f.editor.text().count(u'-'), 1);
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"abcd\r\nabcd\r\nabcd"_s);
    }
};

ZEPHIRA_TEST(TstCodeMaxText)

} // namespace zephira

#include "tst_codemaxtext.moc"
