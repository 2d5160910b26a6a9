// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "support/testregistry.h"

#include <QDialog>
#include <QMetaMethod>
#include <QMetaProperty>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

constexpr EditorCommand namedCommands[] = {
    EditorCommand::SelectAll, EditorCommand::GoToLine,   EditorCommand::FindReplaceDialog,
    EditorCommand::FindNext,  EditorCommand::FindDialog, EditorCommand::PropertiesDialog,
};

/// The control as scripts use it: everything is read, written and called by name.
class TstCodeMaxMetaObject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void properties_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QMetaType>("type");
        QTest::addColumn<bool>("writable");
        const auto row = [](const char *name, const QMetaType &type, bool writable) {
            QTest::newRow(name) << QByteArray(name) << type << writable;
        };
        const auto string = QMetaType::fromType<QString>();
        const auto integer = QMetaType::fromType<int>();
        const auto boolean = QMetaType::fromType<bool>();
        row("Text", string, true);
        row("SelText", string, true);
        row("SelLength", integer, false);
        row("Language", string, true);
        row("LineCount", integer, false);
        row("CurrentWord", string, false);
        row("DisplayWhitespace", boolean, true);
        row("DisplayLeftMargin", boolean, true);
        row("LineNumbering", boolean, true);
        row("SelBounds", boolean, true);
        row("EnableDragDrop", boolean, true);
        row("HighlightedLine", integer, true);
        row("CanUndo", boolean, false);
        row("CanRedo", boolean, false);
        row("CanCopy", boolean, false);
        row("Font", QMetaType::fromType<QFont>(), true);
        row("Visible", boolean, true);
    }
    void properties()
    {
        QFETCH(QByteArray, name);
        QFETCH(QMetaType, type);
        QFETCH(bool, writable);
        EditorFixture f;
        const QMetaObject *meta = f.editor.metaObject();
        const QMetaProperty property = meta->property(meta->indexOfProperty(name));
        QVERIFY(property.isValid() && property.isReadable());
        QCOMPARE(property.metaType(), type);
        QCOMPARE(property.isWritable(), writable);
    }

    void flagsAreReadBack_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("initial");
        QTest::newRow("DisplayWhitespace") << "DisplayWhitespace"_ba << false;
        QTest::newRow("DisplayLeftMargin") << "DisplayLeftMargin"_ba << false;
        QTest::newRow("LineNumbering") << "LineNumbering"_ba << true;
        QTest::newRow("SelBounds") << "SelBounds"_ba << false;
        QTest::newRow("EnableDragDrop") << "EnableDragDrop"_ba << true;
    }
    /// Each flag reads back, and each but dragging changes the picture.
    void flagsAreReadBack()
    {
        QFETCH(QByteArray, name);
        QFETCH(bool, initial);
        EditorFixture f;
        f.show();
        f.editor.setText(u"one two\r\nthree"_s);
        f.editor.select({0, 1, 1, 2});
        QCOMPARE(f.editor.property(name).toBool(), initial);
        const QImage before = f.editor.grab().toImage();
        f.editor.setProperty(name, !initial);
        QCOMPARE(f.editor.property(name).toBool(), !initial);
        QCOMPARE(f.editor.grab().toImage() != before, name != "EnableDragDrop");
        f.editor.setProperty(name, initial);
        QCOMPARE(f.editor.property(name).toBool(), initial);
        QCOMPARE(f.editor.grab().toImage(), before);
    }

    void textAndSelection()
    {
        EditorFixture f;
        QVERIFY(f.editor.setProperty("Text", u"one\ntwo"_s));
        QCOMPARE(f.editor.property("Text").toString(), u"one\r\ntwo"_s);
        QCOMPARE(f.editor.property("LineCount").toInt(), 2);
        QVERIFY(
            QMetaObject::invokeMethod(&f.editor, "SetSel", Q_ARG(int, 0), Q_ARG(int, 1), Q_ARG(int, 1), Q_ARG(int, 2)));
        QCOMPARE(f.editor.property("SelText").toString(), u"ne\r\ntw"_s);
        QCOMPARE(f.editor.property("SelLength").toInt(), 6);
        QVERIFY(f.editor.property("CanCopy").toBool());
        QVariantMap range;
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "GetSel", Q_RETURN_ARG(QVariantMap, range), Q_ARG(bool, true)));
        QCOMPARE(range,
                 (QVariantMap{{u"StartLineNo"_s, 0}, {u"StartColNo"_s, 1}, {u"EndLineNo"_s, 1}, {u"EndColNo"_s, 2}}));
        QVERIFY(f.editor.setProperty("SelText", u"-"_s));
        QCOMPARE(f.editor.property("Text").toString(), u"o-o"_s);
        QCOMPARE(f.editor.property("CurrentWord").toString(), u"o"_s);
    }

    void history()
    {
        EditorFixture f;
        f.editor.setProperty("Text", u"a"_s);
        QVERIFY(f.editor.property("CanUndo").toBool());
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "Undo"));
        QCOMPARE(f.editor.text(), QString());
        QVERIFY(f.editor.property("CanRedo").toBool());
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "Redo"));
        QCOMPARE(f.editor.text(), u"a"_s);
    }

    void clipboard()
    {
        EditorFixture f;
        f.editor.setProperty("Text", u"ab"_s);
        f.editor.select({0, 0, 0, 1});
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "Copy"));
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "Cut"));
        QCOMPARE(f.editor.text(), u"b"_s);
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "Paste"));
        QCOMPARE(f.editor.text(), u"ab"_s);
        f.editor.select({0, 0, 0, 1});
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "ClearSelection"));
        QCOMPARE(f.editor.text(), u"b"_s);
    }

    void files()
    {
        EditorFixture f;
        f.files.contents[u"/in"_s] = "hello";
        bool done = false;
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "OpenFile", Q_RETURN_ARG(bool, done), Q_ARG(QString, u"/in"_s)));
        QVERIFY(done);
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "SaveFile", Q_RETURN_ARG(bool, done), Q_ARG(QString, u"/out"_s),
                                          Q_ARG(bool, true)));
        QVERIFY(done);
        QCOMPARE(f.files.contents[u"/out"_s], "hello"_ba);
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "OpenFile", Q_RETURN_ARG(bool, done), Q_ARG(QString, u"/none"_s)));
        QVERIFY(!done);
        QString sentence;
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "lastError", Q_RETURN_ARG(QString, sentence)));
        QVERIFY(sentence.contains(u"/none"_s));
        QCOMPARE(f.editor.text(), u"hello"_s);
    }

    void coloursAndStyles()
    {
        EditorFixture f;
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "SetColor", Q_ARG(int, 14), Q_ARG(int, 0x123456)));
        int colour = 0;
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "GetColor", Q_RETURN_ARG(int, colour), Q_ARG(int, 14)));
        QCOMPARE(colour, 0x123456);
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "SetFontStyle", Q_ARG(int, 5), Q_ARG(int, 3)));
        int style = 0;
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "GetFontStyle", Q_RETURN_ARG(int, style), Q_ARG(int, 5)));
        QCOMPARE(style, 3);
    }

    void commands()
    {
        EditorFixture f;
        f.editor.setText(u"a\r\nb\r\nc"_s);
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "ExecuteCmd", Q_ARG(int, 137)));
        QCOMPARE(f.editor.selText(), u"a\r\nb\r\nc"_s);
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "ExecuteCmd", Q_ARG(int, 168), Q_ARG(QVariant, 1)));
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{1, 0, 1, 0}));
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "ExecuteCmd", Q_ARG(int, 168), Q_ARG(int, 0)));
        QCOMPARE(f.editor.selection(false), CodeMaxRange());
        // Arguments may come as text.
        QVERIFY(QMetaObject::invokeMethod(&f.editor, "ExecuteCmd", Q_ARG(int, 168), Q_ARG(QVariant, u"2"_s)));
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{2, 0, 2, 0}));
        QVERIFY(f.editor.metaObject()->indexOfMethod("PrintContents(int,int)") >= 0);
    }

    /// External callers know the commands by these numbers.
    void commandsHaveTheirNumbers()
    {
        QCOMPARE(numberOf(EditorCommand::SelectAll), 137);
        QCOMPARE(numberOf(EditorCommand::GoToLine), 168);
        QCOMPARE(numberOf(EditorCommand::FindReplaceDialog), 169);
        QCOMPARE(numberOf(EditorCommand::FindNext), 176);
        QCOMPARE(numberOf(EditorCommand::FindDialog), 178);
    }

    void unknownCommandsDoNothing()
    {
        EditorFixture f;
        f.editor.setText(u"text"_s);
        for (int number = -10; number < 3000; ++number) {
            const bool known = f.editor.globals().hotKeyCount(number) > 0
                || std::ranges::any_of(namedCommands,
                                       [number](EditorCommand command) { return numberOf(command) == number; });
            if (!known)
                f.editor.ExecuteCmd(number, 0);
        }
        QCOMPARE(f.editor.text(), u"text"_s);
        QCOMPARE(f.editor.selection(false), CodeMaxRange());
        QVERIFY(!f.editor.findChild<QDialog *>());
    }

    void font()
    {
        EditorFixture f;
        QFont font(u"Liberation Mono"_s);
        font.setPointSizeF(13.5);
        font.setBold(true);
        font.setItalic(true);
        font.setUnderline(true);
        font.setStrikeOut(true);
        f.editor.setProperty("Font", font);
        const QFont read = f.editor.property("Font").value<QFont>();
        QCOMPARE(read.family(), u"Liberation Mono"_s);
        QCOMPARE(read.pointSizeF(), 13.5);
        QVERIFY(read.bold() && read.italic() && read.underline() && read.strikeOut());
    }

    void highlightedLine()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"a\r\nb\r\nc"_s);
        QCOMPARE(f.editor.property("HighlightedLine").toInt(), -1);
        const QImage plain = f.editor.grab().toImage();
        f.editor.setProperty("HighlightedLine", 1);
        QCOMPARE(f.editor.property("HighlightedLine").toInt(), 1);
        QVERIFY(f.editor.grab().toImage() != plain);
        f.editor.setProperty("HighlightedLine", 2);
        f.editor.setProperty("HighlightedLine", -1);
        QCOMPARE(f.editor.property("HighlightedLine").toInt(), -1);
        QCOMPARE(f.editor.grab().toImage(), plain);
        // A highlighted line that an edit has moved is found as well.
        f.editor.setProperty("HighlightedLine", 1);
        f.editor.select({0, 0, 0, 0});
        f.editor.setSelText(u"x\r\ny\r\n"_s);
        f.editor.setProperty("HighlightedLine", -1);
        f.editor.undo();
        f.editor.select({0, 0, 0, 0});
        QCOMPARE(f.editor.grab().toImage(), plain);
    }

    void visible()
    {
        EditorFixture f;
        f.show();
        f.editor.setProperty("Visible", false);
        QVERIFY(f.editor.isHidden());
        f.editor.setProperty("Visible", true);
        QVERIFY(f.editor.isVisible());
    }
};

ZEPHIRA_TEST(TstCodeMaxMetaObject)

} // namespace zephira

#include "tst_codemaxmetaobject.moc"
