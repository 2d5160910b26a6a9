// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "support/testregistry.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;
using Sci = QsciScintillaBase;

namespace zephira {

/// Copying, cutting and pasting whole lines without a selection.
class TstCodeMaxClipboard : public QObject
{
    Q_OBJECT

private:
    static void addCaret(EditorFixture &f, qsizetype at) { f.editor.engine().send(Sci::SCI_ADDSELECTION, at, at); }
    static QString clipboard() { return QGuiApplication::clipboard()->text(); }

private Q_SLOTS:
    void init() { QGuiApplication::clipboard()->setText(u"before"_s); }

    void aLineIsCopiedAndPastedAbove()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one\r\ntwo\r\nthree"_s);
        f.editor.select({0, 1, 0, 1});
        QTest::keyClick(&f.editor, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(clipboard(), u"one\r\n"_s);
        f.editor.select({2, 2, 2, 2});
        QTest::keyClick(&f.editor, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(f.editor.text(), u"one\r\ntwo\r\none\r\nthree"_s);
        QCOMPARE(f.editor.selection(true), (CodeMaxRange{3, 2, 3, 2}));
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"one\r\ntwo\r\nthree"_s);
    }

    void theCaretAtALinesStartStaysInIt()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one"_s);
        f.editor.copy();
        f.editor.paste();
        QCOMPARE(f.editor.text(), u"one\r\none"_s);
        QCOMPARE(f.editor.selection(true), (CodeMaxRange{1, 0, 1, 0}));
    }

    void aLineIsCut_data()
    {
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("copied");
        QTest::addColumn<QString>("text");
        QTest::newRow("first") << 0 << u"one\r\n"_s << u"two\r\nthree"_s;
        QTest::newRow("last") << 2 << u"three\r\n"_s << u"one\r\ntwo"_s;
    }

    void aLineIsCut()
    {
        QFETCH(int, line);
        QFETCH(QString, copied);
        EditorFixture f;
        f.show();
        f.editor.setText(u"one\r\ntwo\r\nthree"_s);
        f.editor.select({line, 1, line, 1});
        QTest::keyClick(&f.editor, Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(clipboard(), copied);
        QTEST(f.editor.text(), "text");
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"one\r\ntwo\r\nthree"_s);
    }

    void theLinesOfSeveralCarets()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one\r\ntwo\r\nthree\r\n"_s);
        f.editor.select({0, 0, 0, 0});
        addCaret(f, 2);
        addCaret(f, 10);
        f.editor.cut();
        QCOMPARE(clipboard(), u"one\r\nthree\r\n"_s);
        QCOMPARE(f.editor.text(), u"two\r\n"_s);
        f.editor.select({0, 1, 0, 1});
        addCaret(f, 5);
        f.editor.paste();
        QCOMPARE(f.editor.text(), u"one\r\nthree\r\ntwo\r\none\r\nthree\r\n"_s);
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"two\r\n"_s);
    }

    void aSelectionIsReplacedByThem()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one\r\ntwo"_s);
        f.editor.select({0, 0, 0, 0});
        f.editor.copy();
        f.editor.select({1, 0, 1, 3});
        f.editor.paste();
        QCOMPARE(f.editor.text(), u"one\r\none\r\n"_s);
    }

    void otherTextIsPastedAtTheCaret()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one"_s);
        QGuiApplication::clipboard()->setText(u"x\r\n"_s);
        f.editor.select({0, 1, 0, 1});
        f.editor.paste();
        QCOMPARE(f.editor.text(), u"ox\r\nne"_s);
    }

    /// While another view is in front, nobody sees which line it would be.
    void aHiddenTextGivesNone()
    {
        EditorFixture f;
        f.editor.setText(u"one"_s);
        f.editor.copy();
        f.editor.cut();
        QCOMPARE(clipboard(), u"before"_s);
        QCOMPARE(f.editor.text(), u"one"_s);
    }

    void aReadOnlyTextIsCopiedOnly()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one"_s);
        f.editor.setReadOnly(true);
        f.editor.cut();
        QCOMPARE(clipboard(), u"before"_s);
        f.editor.copy();
        f.editor.paste();
        QCOMPARE(clipboard(), u"one\r\n"_s);
        QCOMPARE(f.editor.text(), u"one"_s);
    }

    void lineEndsBecomeThoseOfTheText()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one\r\n"_s);
        f.editor.copy();
        f.files.contents[u"/a"_s] = "a\nb";
        QVERIFY(f.editor.openFile(u"/a"_s));
        f.editor.paste();
        QVERIFY(f.editor.saveFile(u"/a"_s, false));
        QCOMPARE(f.files.contents[u"/a"_s], QByteArray("one\na\nb"));
    }
};

ZEPHIRA_TEST(TstCodeMaxClipboard)

} // namespace zephira

#include "tst_codemaxclipboard.moc"
