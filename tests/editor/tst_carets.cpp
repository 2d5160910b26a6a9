// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "support/testregistry.h"

using namespace Qt::StringLiterals;
using Sci = QsciScintillaBase;

namespace zephira {

/// Adding, moving and removing carets with keys and mouse.
class TstCarets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ctrlAndAClickAddACaret()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"ab\r\ncd\r\nef"_s);
        QTest::mouseClick(f.editor.viewport(), Qt::LeftButton, {}, at(f, 0, 1));
        QTest::mouseClick(f.editor.viewport(), Qt::LeftButton, Qt::ControlModifier, at(f, 2, 1));
        QTest::keyClicks(&f.editor, u"x"_s);
        QCOMPARE(f.editor.text(), u"axb\r\ncd\r\nexf"_s);
        QTest::keyClick(&f.editor, Qt::Key_Escape);
        QTest::keyClicks(&f.editor, u"y"_s);
        QCOMPARE(f.editor.text(), u"axb\r\ncd\r\nexyf"_s);
    }

    void ctrlDSelectsTheNextOccurrence()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one One one two one"_s);
        f.editor.select({0, 1, 0, 1});
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(&f.editor, Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(f.editor.selectionCount(), 3);
        QTest::keyClicks(&f.editor, u"1"_s);
        QCOMPARE(f.editor.text(), u"1 One 1 two 1"_s);
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"one One one two one"_s);
    }

    void altAndDraggingSelectARectangle()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"abcd\r\nabcd\r\nabcd"_s);
        QTest::mousePress(f.editor.viewport(), Qt::LeftButton, Qt::AltModifier, at(f, 0, 1));
        for (const QPoint &point : {at(f, 1, 2), at(f, 2, 3)}) {
            QMouseEvent move(QEvent::MouseMove, point, f.editor.viewport()->mapToGlobal(point), Qt::NoButton,
                             Qt::LeftButton, Qt::AltModifier);
            QCoreApplication::sendEvent(f.editor.viewport(), &move);
            // While dragging, the engine follows the mouse no faster than it would scroll.
            QTest::qWait(300);
        }
        QTest::mouseRelease(f.editor.viewport(), Qt::LeftButton, Qt::AltModifier, at(f, 2, 3));
        QCOMPARE(f.editor.selectionCount(), 3);
        QTest::keyClicks(&f.editor, u"-"_s);
        QCOMPARE(f.editor.text(), u"a-d\r\na-d\r\na-d"_s);
    }

    void escapeIsTheWindowsWithOneCaret()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"a a"_s);
        const auto isTaken = [&] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QCoreApplication::sendEvent(&f.editor, &press);
            return press.isAccepted();
        };
        QVERIFY(!isTaken());
        f.editor.select({0, 0, 0, 1});
        QTest::keyClick(&f.editor, Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(f.editor.selectionCount(), 2);
        QVERIFY(isTaken());
        QCOMPARE(f.editor.selectionCount(), 1);
        QCOMPARE(f.editor.selText(), u"a"_s);
        QVERIFY(!isTaken());
    }

    void enterBreaksTheLineAtEachCaret()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"  ab\r\n  cd\r\nx"_s);
        rectangle(f, 3, f.editor.engine().lineStart(1) + 3);
        QTest::keyClick(&f.editor, Qt::Key_Return);
        QCOMPARE(f.editor.text(), u"  a\r\n  b\r\n  c\r\n  d\r\nx"_s);
        QTest::keyClicks(&f.editor, u"_"_s);
        QCOMPARE(f.editor.text(), u"  a\r\n  _b\r\n  c\r\n  _d\r\nx"_s);
        f.editor.undo();
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"  ab\r\n  cd\r\nx"_s);
    }

    void anEmptyIndentedLineKeepsNoBlanks()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"  ab"_s);
        f.editor.select({0, 4, 0, 4});
        QTest::keyClick(&f.editor, Qt::Key_Return);
        QTest::keyClick(&f.editor, Qt::Key_Return);
        QTest::keyClicks(&f.editor, u"c"_s);
        QCOMPARE(f.editor.text(), u"  ab\r\n\r\n  c"_s);
    }

    void norDoSeveralOfThem()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"  ab\r\n  cd\r\nx"_s);
        rectangle(f, 4, f.editor.engine().lineStart(1) + 4);
        QTest::keyClick(&f.editor, Qt::Key_Return);
        QTest::keyClick(&f.editor, Qt::Key_Return);
        QTest::keyClicks(&f.editor, u"_"_s);
        QCOMPARE(f.editor.text(), u"  ab\r\n\r\n  _\r\n  cd\r\n\r\n  _\r\nx"_s);
    }

    /// A rectangle of several lines and columns is taken away by the line ends.
    void enterReplacesARectangle()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"abcd\r\nabcd\r\nabcd"_s);
        rectangle(f, 1, f.editor.engine().lineStart(2) + 3);
        QTest::keyClick(&f.editor, Qt::Key_Return);
        QCOMPARE(f.editor.text(), u"a\r\nd\r\na\r\nd\r\na\r\nd"_s);
    }

    /// The engine would keep the corners of the rectangle, behind the end of what is left.
    void caretsOfARectangleStayInAShorterText()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"abcd\r\nabcd\r\nabcd"_s);
        rectangle(f, 1, f.editor.engine().lineStart(2) + 3);
        QTest::keyClicks(&f.editor, u"-"_s);
        QCOMPARE(f.editor.text(), u"a-d\r\na-d\r\na-d"_s);
        f.editor.engine().replace(2, 8, {});
        QCOMPARE(f.editor.text(), u"a-\r\na-d"_s);
        QCOMPARE(f.editor.engine().anchor(), 6);
        QCOMPARE(f.editor.engine().caret(), 6);
        QTest::keyClicks(&f.editor, u"x"_s);
        QCOMPARE(f.editor.text(), u"a-x\r\na-xd"_s);
        f.editor.engine().replace(0, f.editor.engine().length(), {});
        QCOMPARE(f.editor.engine().caret(), 0);
        QTest::keyClick(&f.editor, Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
        QTest::keyClicks(&f.editor, u"y"_s);
        QCOMPARE(f.editor.text(), u"y"_s);
    }

    /// The engine's own commands don't move the corners either.
    void keysLeaveNoCornerBehindTheText_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QString>("text");
        QTest::newRow("to the start of the line")
            << static_cast<int>(Qt::Key_Backspace) << (Qt::ControlModifier | Qt::ShiftModifier) << u"f"_s;
        QTest::newRow("a word") << static_cast<int>(Qt::Key_Backspace) << Qt::KeyboardModifiers(Qt::ControlModifier)
                                << u"f"_s;
    }
    void keysLeaveNoCornerBehindTheText()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QString, text);
        EditorFixture f;
        f.show();
        f.editor.setText(u"abcdef"_s);
        rectangle(f, 2, 5);
        QTest::keyClicks(&f.editor, u"xyz"_s);
        QCOMPARE(f.editor.text(), u"abxyzf"_s);
        QTest::keyClick(&f.editor, static_cast<Qt::Key>(key), modifiers);
        QCOMPARE(f.editor.text(), text);
        QCOMPARE(f.editor.engine().caret(), 0);
        QCOMPARE(f.editor.engine().anchor(), 0);
        QTest::keyClicks(&f.editor, u"v"_s);
        QCOMPARE(f.editor.text(), u'v' + text);
    }

    void ctrlAndDeleteTakeAWordOrTheRestOfTheLine()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one two three\r\nfour"_s);
        QTest::keyClick(&f.editor, Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(f.editor.text(), u"two three\r\nfour"_s);
        f.editor.select({0, 3, 0, 3});
        QTest::keyClick(&f.editor, Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(f.editor.text(), u"two\r\nfour"_s);
    }

    void arrowsStartFromTheNewColumn()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"abcdef\r\nabcdef\r\nabcdef"_s);
        QTest::keyClick(&f.editor, Qt::Key_End);
        f.editor.select({0, 2, 0, 2});
        QTest::keyClick(&f.editor, Qt::Key_Down);
        QCOMPARE(f.editor.selection(false).EndColNo, 2);
        QTest::keyClick(&f.editor, Qt::Key_End);
        f.editor.executeCmd(EditorCommand::GoToLine, 1);
        QTest::keyClick(&f.editor, Qt::Key_Down);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{2, 0, 2, 0}));
    }

    void caretsStandBesideWhatIsSeenAsOneCharacter_data()
    {
        QTest::addColumn<QString>("character");
        QTest::newRow("an accent") << u"e\u0301"_s;
        QTest::newRow("two accents") << u"a\u0323\u0301"_s;
        QTest::newRow("a family") << u"👨‍👩‍👧"_s;
        QTest::newRow("a flag") << u"🇩🇪"_s;
        QTest::newRow("a colour of skin") << u"👍🏽"_s;
        QTest::newRow("a picture") << u"😀"_s;
        QTest::newRow("a letter") << u"ä"_s;
    }
    void caretsStandBesideWhatIsSeenAsOneCharacter()
    {
        QFETCH(QString, character);
        EditorFixture f;
        f.show();
        const QString text = u"x"_s + character + u"y"_s;
        const int behind = 1 + static_cast<int>(character.size());
        const auto column = [&] { return f.editor.selection(false).EndColNo; };
        f.editor.setText(text);
        f.editor.select({0, 1, 0, 1});
        QTest::keyClick(&f.editor, Qt::Key_Right);
        QCOMPARE(column(), behind);
        QTest::keyClick(&f.editor, Qt::Key_Left);
        QCOMPARE(column(), 1);
        QTest::keyClick(&f.editor, Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(f.editor.selText(), character);
        f.editor.select({0, behind, 0, behind});
        QTest::keyClick(&f.editor, Qt::Key_Backspace);
        QCOMPARE(f.editor.text(), u"xy"_s);
        QCOMPARE(column(), 1);
        f.editor.undo();
        QCOMPARE(f.editor.text(), text);
        f.editor.select({0, 1, 0, 1});
        QTest::keyClick(&f.editor, Qt::Key_Delete);
        QCOMPARE(f.editor.text(), u"xy"_s);
    }

    void aClickOnAnAccentLandsBesideTheLetter()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"👨‍👩‍👧 x"_s);
        for (int x = 0; x < 60; x += 2) {
            const QPoint start = at(f, 0, 0);
            QTest::mouseClick(f.editor.viewport(), Qt::LeftButton, {}, start + QPoint(x, 0));
            const int column = f.editor.selection(false).EndColNo;
            QVERIFY2(column == 0 || column >= 8, qPrintable(QString::number(column)));
        }
    }

    void eachSelectionIsReplacedForItself()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one two one"_s);
        f.editor.select({0, 0, 0, 3});
        QTest::keyClick(&f.editor, Qt::Key_D, Qt::ControlModifier);
        f.editor.replaceSelections([](const QString &text) { return QString(u"<b>"_s + text + u"</b>"_s); });
        QCOMPARE(f.editor.text(), u"<b>one</b> two <b>one</b>"_s);
        QTest::keyClicks(&f.editor, u"!"_s);
        QCOMPARE(f.editor.text(), u"<b>one</b>! two <b>one</b>!"_s);
        f.editor.undo();
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"one two one"_s);
    }

private:
    /// The point of the viewport at a line and column.
    static QPoint at(EditorFixture &f, int line, int column)
    {
        const SciEngine &engine = f.editor.engine();
        const qsizetype position = engine.lineStart(line) + column;
        return {static_cast<int>(engine.send(Sci::SCI_POINTXFROMPOSITION, 0, position)),
                static_cast<int>(engine.send(Sci::SCI_POINTYFROMPOSITION, 0, position)) + 4};
    }

    static void rectangle(EditorFixture &f, qsizetype anchor, qsizetype caret)
    {
        f.editor.viewport()->repaint();
        f.editor.engine().send(Sci::SCI_SETRECTANGULARSELECTIONANCHOR, anchor);
        f.editor.engine().send(Sci::SCI_SETRECTANGULARSELECTIONCARET, caret);
    }
};

ZEPHIRA_TEST(TstCarets)

} // namespace zephira

#include "tst_carets.moc"
