// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "editor/typingrules.h"
#include "support/testregistry.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;
using Sci = QsciScintillaBase;

namespace zephira {

class TstTypingRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewLineIsIndentedAsTheOneAbove_data()
    {
        QTest::addColumn<QByteArray>("above");
        QTest::addColumn<bool>("blanks");
        QTest::addColumn<QByteArray>("indent");
        QTest::newRow("not at all") << QByteArray("text") << false << QByteArray("");
        QTest::newRow("blanks") << QByteArray("  text") << false << QByteArray("  ");
        QTest::newRow("blanks and tabs") << QByteArray(" \t text") << false << QByteArray(" \t ");
        QTest::newRow("nothing else there") << QByteArray("   ") << false << QByteArray("   ");
        QTest::newRow("an empty line") << QByteArray("") << false << QByteArray("");
        QTest::newRow("an opening brace") << QByteArray("if (x) {") << false << QByteArray("\t");
        QTest::newRow("a brace followed by blanks") << QByteArray("\tif {  ") << false << QByteArray("\t\t");
        QTest::newRow("a brace with blanks for tabs") << QByteArray(" {") << true << QByteArray("    ");
        QTest::newRow("a closing brace") << QByteArray("\t}") << false << QByteArray("\t");
    }
    void aNewLineIsIndentedAsTheOneAbove()
    {
        QFETCH(QByteArray, above);
        QFETCH(bool, blanks);
        EditorOptions options;
        options.tabWidth = 3;
        options.tabsAsBlanks = blanks;
        QTEST(TypingRules::indentBelow(above, options), "indent");
    }

    void keysThatTypeNothingAreTheWindows_data()
    {
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("left");
        const Qt::KeyboardModifiers none;
        const Qt::KeyboardModifiers altGr = Qt::ControlModifier | Qt::AltModifier;
        QTest::newRow("a letter") << none << Qt::Key_A << u"a"_s << false;
        QTest::newRow("Shift and a letter") << Qt::KeyboardModifiers(Qt::ShiftModifier) << Qt::Key_A << u"A"_s << false;
        QTest::newRow("Ctrl and a letter")
            << Qt::KeyboardModifiers(Qt::ControlModifier) << Qt::Key_A << u"\1"_s << true;
        QTest::newRow("Alt and a letter") << Qt::KeyboardModifiers(Qt::AltModifier) << Qt::Key_A << u"a"_s << true;
        QTest::newRow("the right Alt and a letter") << altGr << Qt::Key_At << u"@"_s << false;
        QTest::newRow("Alt and an arrow")
            << Qt::KeyboardModifiers(Qt::AltModifier) << Qt::Key_Left << QString() << false;
        QTest::newRow("a function key") << none << Qt::Key_F5 << QString() << true;
        QTest::newRow("a digit of the keypad")
            << Qt::KeyboardModifiers(Qt::KeypadModifier) << Qt::Key_5 << u"5"_s << false;
    }
    void keysThatTypeNothingAreTheWindows()
    {
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(Qt::Key, key);
        QFETCH(QString, text);
        QTEST(TypingRules::isLeftToWindow(QKeyEvent(QEvent::KeyPress, key, modifiers, text)), "left");
    }

    void deleteIsPlainWithoutModifiers()
    {
        const auto plain = [](Qt::Key key, Qt::KeyboardModifiers modifiers) {
            return TypingRules::isPlainDelete(QKeyEvent(QEvent::KeyPress, key, modifiers));
        };
        QVERIFY(plain(Qt::Key_Delete, {}));
        QVERIFY(plain(Qt::Key_Delete, Qt::KeypadModifier));
        QVERIFY(!plain(Qt::Key_Delete, Qt::ShiftModifier));
        QVERIFY(!plain(Qt::Key_Backspace, {}));
    }

    /// The engine is in overtype mode only while it handles a key, so that the control determines its caret.
    void theEngineOvertypesDuringTheKey()
    {
        EditorFixture f;
        TypingRules typing(f.editor.engine());
        const auto overtypes = [&] { return f.editor.engine().send(Sci::SCI_GETOVERTYPE) != 0; };
        const QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, u"a"_s);
        QList<bool> seen;
        typing.type(letter, [&] { seen << overtypes(); });
        typing.setOvertype(true);
        QVERIFY(typing.overtype());
        QVERIFY(!overtypes());
        typing.type(letter, [&] { seen << overtypes(); });
        QVERIFY(!overtypes());
        QCOMPARE(seen, (QList<bool>{false, true}));
    }

    /// Whoever knows the text tells what a line break is between.
    void lineBreaks()
    {
        EditorFixture f;
        f.editor.setText(u"  ab"_s);
        f.editor.select({0, 3, 0, 3});
        QList<qsizetype> asked;
        LineBreak kind = LineBreak::Between;
        f.editor.setLineBreaks([&](qsizetype start, qsizetype end) {
            asked << start << end;
            return kind;
        });
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s);
        QCoreApplication::sendEvent(&f.editor, &key);
        QCOMPARE(asked, (QList<qsizetype>{3, 3}));
        QCOMPARE(f.editor.text(), u"  a\r\n  \t\r\n  b"_s);
        QCOMPARE(f.editor.selection(true).StartLineNo, 1);
        QCOMPARE(f.editor.selection(true).StartColNo, 3);
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"  ab"_s);
        kind = LineBreak::Deeper;
        f.editor.select({0, 3, 0, 4});
        QCoreApplication::sendEvent(&f.editor, &key);
        QCOMPARE(f.editor.text(), u"  a\r\n  \t"_s);
        // Lines that aren't indented by themselves are broken as ever.
        EditorOptions options = f.editor.options();
        options.autoIndent = false;
        f.editor.setOptions(options);
        f.editor.setText(u" a"_s);
        f.editor.select({0, 2, 0, 2});
        asked.clear();
        QCoreApplication::sendEvent(&f.editor, &key);
        QVERIFY(asked.isEmpty());
        QCOMPARE(f.editor.text(), u" a\r\n"_s);
    }
};

ZEPHIRA_TEST(TstTypingRules)

} // namespace zephira

#include "tst_typingrules.moc"
