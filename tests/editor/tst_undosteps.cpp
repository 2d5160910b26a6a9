// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "support/testregistry.h"

#include <QInputMethodEvent>

using namespace Qt::StringLiterals;
using Sci = QsciScintillaBase;

namespace zephira {

/// How what is typed is divided into undo steps.
class TstUndoSteps : public QObject
{
    Q_OBJECT

private:
    /// The text after each undo, until nothing is left.
    static QStringList undone(EditorFixture &f)
    {
        QStringList texts;
        while (f.editor.canUndo() && texts.size() < 50) {
            f.editor.undo();
            texts += f.editor.text();
        }
        return texts;
    }

    static void loadText(EditorFixture &f, const QByteArray &text)
    {
        f.files.contents[u"/a.txt"_s] = text;
        QVERIFY(f.editor.openFile(u"/a.txt"_s));
    }

    static void press(EditorFixture &f, Qt::Key key, int times = 1)
    {
        for (int i = 0; i < times; ++i)
            QTest::keyClick(&f.editor, key);
    }

    static void commit(EditorFixture &f, const QString &preedit, const QString &text)
    {
        if (!preedit.isEmpty()) {
            QInputMethodEvent composing(preedit, {});
            QCoreApplication::sendEvent(&f.editor, &composing);
        }
        QInputMethodEvent done;
        done.setCommitString(text);
        QCoreApplication::sendEvent(&f.editor, &done);
    }

private Q_SLOTS:
    void aWordIsAStep_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("words") << u"one two three"_s << QStringList{u"one two"_s, u"one"_s, u""_s};
        QTest::newRow("a tag") << u"<p class=\"x\">"_s << QStringList{u"<p class=\"x"_s, u"<p class"_s, u"<p"_s, u""_s};
        QTest::newRow("only signs") << u"------"_s << QStringList{u""_s};
        QTest::newRow("letters of other scripts") << u"été où"_s << QStringList{u"été"_s, u""_s};
        QTest::newRow("upper case") << u"aBC D"_s << QStringList{u"aBC"_s, u""_s};
    }

    void aWordIsAStep()
    {
        QFETCH(QString, typed);
        EditorFixture f;
        f.show();
        for (const QChar c : typed) {
            // As with a keyboard, the modifier has an event of its own.
            if (c.isUpper()) {
                QKeyEvent shift(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier);
                QCoreApplication::sendEvent(&f.editor, &shift);
            }
            f.type(c);
        }
        QCOMPARE(f.editor.text(), typed);
        QTEST(undone(f), "texts");
        while (f.editor.canRedo())
            f.editor.redo();
        QCOMPARE(f.editor.text(), typed);
    }

    void aPauseBeginsAStep()
    {
        EditorFixture f;
        f.show();
        f.type(u"ab"_s);
        QTest::qWait(static_cast<int>(UndoSteps::pauseMilliseconds) + 50);
        f.type(u"cd"_s);
        QCOMPARE(undone(f), (QStringList{u"ab"_s, u""_s}));
    }

    void soDoesAMoveOfTheCaret()
    {
        EditorFixture f;
        f.show();
        f.type(u"ab"_s);
        press(f, Qt::Key_Left);
        press(f, Qt::Key_Right);
        f.type(u"cd"_s);
        QCOMPARE(undone(f), (QStringList{u"ab"_s, u""_s}));
        f.type(u"ab"_s);
        f.editor.select({0, 2, 0, 2});
        f.type(u"cd"_s);
        QCOMPARE(undone(f), (QStringList{u"ab"_s, u""_s}));
    }

    void soDoesACommand()
    {
        EditorFixture f;
        f.show();
        f.type(u"ab"_s);
        f.editor.executeCmd(EditorCommand::ToggleBookmark);
        f.type(u"cd"_s);
        QVERIFY(f.editor.saveFile(u"/b.txt"_s, false));
        f.type(u"ef"_s);
        f.editor.setSelText(u"gh"_s);
        f.type(u"ij"_s);
        QCOMPARE(undone(f), (QStringList{u"abcdefgh"_s, u"abcdef"_s, u"abcd"_s, u"ab"_s, u""_s}));
    }

    void aLineEndIsAStep()
    {
        EditorFixture f;
        f.show();
        f.type(u"ab"_s);
        press(f, Qt::Key_Return);
        f.type(u"cd"_s);
        QCOMPARE(undone(f), (QStringList{u"ab\r\n"_s, u"ab"_s, u""_s}));
    }

    void aMovingMouseEndsNone()
    {
        EditorFixture f;
        f.show();
        f.type(u"ab"_s);
        QMouseEvent move(QEvent::MouseMove, QPoint(50, 60), f.editor.viewport()->mapToGlobal(QPoint(50, 60)),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(f.editor.viewport(), &move);
        f.type(u"cd"_s);
        QCOMPARE(undone(f), QStringList{u""_s});
    }

    void severalCaretsTypeAWordInAStep()
    {
        EditorFixture f;
        f.show();
        loadText(f, "1\n2\n");
        f.editor.engine().send(Sci::SCI_SETSELECTION, 0, 0);
        f.editor.engine().send(Sci::SCI_ADDSELECTION, 2, 2);
        f.type(u"ab cd"_s);
        QCOMPARE(f.editor.text(), u"ab cd1\r\nab cd2\r\n"_s);
        QCOMPARE(undone(f), (QStringList{u"ab1\r\nab2\r\n"_s, u"1\r\n2\r\n"_s}));
    }

    void theSelectionGoesWithTheWordInItsPlace()
    {
        EditorFixture f;
        f.show();
        loadText(f, "one two");
        f.editor.select({0, 0, 0, 3});
        f.type(u"a b"_s);
        QCOMPARE(f.editor.text(), u"a b two"_s);
        QCOMPARE(undone(f), (QStringList{u"a two"_s, u"one two"_s}));
    }

    void overtypingIsTheSame()
    {
        EditorFixture f;
        f.show();
        loadText(f, "123456");
        f.editor.setOvertype(true);
        f.type(u"ab c"_s);
        QCOMPARE(f.editor.text(), u"ab c56"_s);
        QCOMPARE(undone(f), (QStringList{u"ab3456"_s, u"123456"_s}));
    }

    void erasingGoesByWords_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("key");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("backward") << 8 << int{Qt::Key_Backspace} << QStringList{u"one "_s, u"one été"_s};
        QTest::newRow("forward") << 0 << int{Qt::Key_Delete} << QStringList{u" été"_s, u"one été"_s};
    }

    void erasingGoesByWords()
    {
        QFETCH(int, column);
        QFETCH(int, key);
        EditorFixture f;
        f.show();
        loadText(f, "one \xc3\xa9t\xc3\xa9");
        f.editor.select({0, column, 0, column});
        press(f, static_cast<Qt::Key>(key), 7);
        QCOMPARE(f.editor.text(), u""_s);
        QTEST(undone(f), "texts");
    }

    void erasingIsAnotherStepThanTyping()
    {
        EditorFixture f;
        f.show();
        f.type(u"abc"_s);
        press(f, Qt::Key_Backspace, 2);
        f.type(u"de"_s);
        QCOMPARE(undone(f), (QStringList{u"a"_s, u"abc"_s, u""_s}));
        f.type(u"abc"_s);
        f.editor.select({0, 1, 0, 1});
        press(f, Qt::Key_Delete, 2);
        QCOMPARE(undone(f), (QStringList{u"abc"_s, u""_s}));
    }

    void erasingASelectionIsAStep()
    {
        EditorFixture f;
        f.show();
        loadText(f, "one two");
        f.editor.select({0, 4, 0, 7});
        press(f, Qt::Key_Delete);
        press(f, Qt::Key_Backspace);
        QCOMPARE(undone(f), (QStringList{u"one "_s, u"one two"_s}));
    }

    void anInputMethodTypesIntoTheWord()
    {
        EditorFixture f;
        f.show();
        f.type(u"caf"_s);
        commit(f, {}, u"é"_s);
        f.type(u"s "_s);
        commit(f, u"ni"_s, u"\u4f60"_s);
        QCOMPARE(f.editor.text(), u"cafés \u4f60"_s);
        const QStringList texts = undone(f);
        QVERIFY(texts.contains(u"cafés"_s));
        QVERIFY(!texts.contains(u"caf"_s));
        QCOMPARE(texts.last(), u""_s);
        f.editor.redo();
        QCOMPARE(f.editor.text(), u"cafés"_s);
    }

    void anInputMethodWithSeveralCarets()
    {
        EditorFixture f;
        f.show();
        loadText(f, "1\n2\n");
        f.editor.engine().send(Sci::SCI_SETSELECTION, 0, 0);
        f.editor.engine().send(Sci::SCI_ADDSELECTION, 2, 2);
        f.type(u"a"_s);
        commit(f, {}, u"é"_s);
        QCOMPARE(f.editor.text(), u"aé1\r\naé2\r\n"_s);
        commit(f, u"ni"_s, u"\u4f60"_s);
        QCOMPARE(f.editor.text(), u"aé\u4f601\r\naé\u4f602\r\n"_s);
        const QStringList texts = undone(f);
        QCOMPARE(texts, (QStringList{u"aé1\r\naé2\r\n"_s, u"1\r\n2\r\n"_s}));
    }

    void aCancelledCompositionLeavesNothing()
    {
        EditorFixture f;
        f.show();
        f.type(u"ab"_s);
        QInputMethodEvent composing(u"ni"_s, {});
        QCoreApplication::sendEvent(&f.editor, &composing);
        QInputMethodEvent nothing;
        QCoreApplication::sendEvent(&f.editor, &nothing);
        QCOMPARE(f.editor.text(), u"ab"_s);
        f.editor.select({0, 0, 0, 2});
        f.type(u"c"_s);
        QCOMPARE(undone(f), (QStringList{u"ab"_s, u""_s}));
    }

    void aReadOnlyTextHasNone()
    {
        EditorFixture f;
        f.show();
        loadText(f, "one");
        f.editor.setReadOnly(true);
        f.type(u"x"_s);
        press(f, Qt::Key_Backspace);
        press(f, Qt::Key_Delete);
        QCOMPARE(f.editor.text(), u"one"_s);
        QVERIFY(!f.editor.canUndo());
    }

    void anUndoneStepCanBeRedoneUntilOneTypes()
    {
        EditorFixture f;
        f.show();
        f.type(u"ab cd"_s);
        f.editor.undo();
        f.editor.copy();
        QVERIFY(f.editor.canRedo());
        f.type(u" ef"_s);
        QVERIFY(!f.editor.canRedo());
        QCOMPARE(undone(f), (QStringList{u"ab"_s, u""_s}));
    }
};

ZEPHIRA_TEST(TstUndoSteps)

} // namespace zephira

#include "tst_undosteps.moc"
