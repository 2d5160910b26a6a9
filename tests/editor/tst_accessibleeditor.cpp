// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "support/testregistry.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Records the events that assistive technology receives.
void note(QStringList &events, const QAccessibleEvent *event)
{
    switch (event->type()) {
    case QAccessible::TextInserted: {
        const auto *inserted = static_cast<const QAccessibleTextInsertEvent *>(event);
        events += u"+%1 %2"_s.arg(inserted->changePosition()).arg(inserted->textInserted());
        break;
    }
    case QAccessible::TextRemoved: {
        const auto *removed = static_cast<const QAccessibleTextRemoveEvent *>(event);
        events += u"-%1 %2"_s.arg(removed->changePosition()).arg(removed->textRemoved());
        break;
    }
    case QAccessible::TextCaretMoved:
        events += u"|%1"_s.arg(static_cast<const QAccessibleTextCursorEvent *>(event)->cursorPosition());
        break;
    default:
        break;
    }
}

} // namespace

class TstAccessibleEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roleNameAndState()
    {
        EditorFixture f;
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&f.editor);
        QVERIFY(accessible);
        QCOMPARE(accessible->role(), QAccessible::EditableText);
        QCOMPARE(accessible->text(QAccessible::Name), u"Source text"_s);
        QVERIFY(accessible->state().multiLine);
        QVERIFY(accessible->state().editable);
        f.editor.setReadOnly(true);
        QVERIFY(accessible->state().readOnly);
        QVERIFY(!accessible->state().editable);
    }

    void text()
    {
        EditorFixture f;
        f.files.contents[u"/lf"_s] = "aä\n\xf0\x9f\x98\x80 word two\n";
        QVERIFY(f.editor.openFile(u"/lf"_s));
        const QString whole = u"aä\n\U0001f600 word two\n"_s;
        auto *accessible = QAccessible::queryAccessibleInterface(&f.editor);
        auto *text = accessible->textInterface();
        QVERIFY(text);
        QCOMPARE(text->characterCount(), whole.size());
        QCOMPARE(accessible->text(QAccessible::Value), whole);
        for (int start = 0; start <= whole.size(); ++start) {
            for (int end = start; end <= whole.size(); ++end) {
                const auto inPair = [&](int i) { return i > 0 && i < whole.size() && whole[i].isLowSurrogate(); };
                if (!inPair(start) && !inPair(end))
                    QCOMPARE(text->text(start, end), whole.sliced(start, end - start));
            }
        }
    }

    void stretches_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<QAccessible::TextBoundaryType>("boundary");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("at");
        QTest::addColumn<QString>("after");
        // one two\nthree
        QTest::newRow("character") << 1 << QAccessible::CharBoundary << u"o"_s << u"n"_s << u"e"_s;
        QTest::newRow("word") << 5 << QAccessible::WordBoundary << u" "_s << u"two"_s << u"\n"_s;
        QTest::newRow("first word") << 0 << QAccessible::WordBoundary << QString() << u"one"_s << u" "_s;
        QTest::newRow("line") << 9 << QAccessible::LineBoundary << u"one two\n"_s << u"three"_s << QString();
        QTest::newRow("first line") << 7 << QAccessible::LineBoundary << QString() << u"one two\n"_s << u"three"_s;
        QTest::newRow("all") << 3 << QAccessible::NoBoundary << QString() << u"one two\nthree"_s << QString();
    }
    void stretches()
    {
        QFETCH(int, offset);
        QFETCH(QAccessible::TextBoundaryType, boundary);
        QFETCH(QString, before);
        QFETCH(QString, at);
        QFETCH(QString, after);
        EditorFixture f;
        f.files.contents[u"/lf"_s] = "one two\nthree";
        QVERIFY(f.editor.openFile(u"/lf"_s));
        auto *text = QAccessible::queryAccessibleInterface(&f.editor)->textInterface();
        int start = -1;
        int end = -1;
        QCOMPARE(text->textAtOffset(offset, boundary, &start, &end), at);
        QCOMPARE(text->text(start, end), at);
        QCOMPARE(text->textBeforeOffset(offset, boundary, &start, &end), before);
        QCOMPARE(text->textAfterOffset(offset, boundary, &start, &end), after);
    }

    void caretAndSelections()
    {
        EditorFixture f;
        f.editor.setText(u"one\r\ntwo"_s);
        auto *text = QAccessible::queryAccessibleInterface(&f.editor)->textInterface();
        text->setCursorPosition(6);
        QCOMPARE(text->cursorPosition(), 6);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{1, 1, 1, 1}));
        QCOMPARE(text->selectionCount(), 0);
        text->addSelection(1, 7);
        QCOMPARE(f.editor.selText(), u"ne\r\ntw"_s);
        QCOMPARE(text->selectionCount(), 1);
        int start = 0;
        int end = 0;
        text->selection(0, &start, &end);
        QCOMPARE(std::pair(start, end), std::pair(1, 7));
        text->setSelection(0, 0, 2);
        QCOMPARE(f.editor.selText(), u"on"_s);
        text->removeSelection(0);
        QCOMPARE(f.editor.selText(), QString());
    }

    void editing()
    {
        EditorFixture f;
        f.editor.setText(u"one"_s);
        auto *editable = QAccessible::queryAccessibleInterface(&f.editor)->editableTextInterface();
        QVERIFY(editable);
        editable->insertText(3, u" two"_s);
        QCOMPARE(f.editor.text(), u"one two"_s);
        editable->replaceText(0, 3, u"1\n"_s);
        QCOMPARE(f.editor.text(), u"1\r\n two"_s);
        editable->deleteText(1, 4);
        QCOMPARE(f.editor.text(), u"1two"_s);
        f.editor.setReadOnly(true);
        editable->deleteText(0, 1);
        QCOMPARE(f.editor.text(), u"1two"_s);
    }

    void places()
    {
        EditorFixture f;
        f.editor.setText(u"one\r\ntwo"_s);
        f.show();
        auto *text = QAccessible::queryAccessibleInterface(&f.editor)->textInterface();
        const QRect character = text->characterRect(6);
        QVERIFY(character.isValid());
        QCOMPARE(text->offsetAtPoint(character.center()), 6);
        QCOMPARE(text->offsetAtPoint(QPoint(-5, -5)), -1);
    }

    void attributesFollowTheColours()
    {
        EditorFixture f;
        f.editor.setLanguage(u"C/C++"_s);
        f.editor.setText(u"int x; // y"_s);
        f.editor.setColor(KeywordFore, 0x030201);
        f.editor.setColor(KeywordBack, 0x060504);
        f.editor.setFontStyle(KeywordFont, 1);
        f.editor.colouring().colourAll();
        auto *text = QAccessible::queryAccessibleInterface(&f.editor)->textInterface();
        int start = -1;
        int end = -1;
        QCOMPARE(text->attributes(1, &start, &end),
                 u"color:rgb(1,2,3);background-color:rgb(4,5,6);font-weight:bold;font-style:normal;"_s);
        QCOMPARE(std::pair(start, end), std::pair(0, 3));
    }

    void whoListensIsTold()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"äb"_s);
        f.editor.select({0, 1, 0, 1});
        QStringList events;
        f.editor.setAccessibleListener([&](QAccessibleEvent *event) { note(events, event); });
        QTest::keyClicks(&f.editor, u"x"_s);
        QCOMPARE(std::exchange(events, {}), (QStringList{u"+1 x"_s, u"|2"_s}));
        f.editor.select({0, 0, 0, 2});
        QCOMPARE(std::exchange(events, {}), (QStringList{u"|2"_s}));
        f.editor.setSelText(u"y\nz"_s);
        QCOMPARE(std::exchange(events, {}), (QStringList{u"-0 äx"_s, u"+0 y\r\nz"_s, u"|4"_s}));
        f.editor.undo();
        QCOMPARE(std::exchange(events, {}), (QStringList{u"-0 y\r\nz"_s, u"+0 äx"_s, u"|2"_s}));
    }

    /// A new file may be loaded with or without the index that offsets need.
    void filesOneAfterAnother()
    {
        EditorFixture f;
        auto *text = QAccessible::queryAccessibleInterface(&f.editor)->textInterface();
        for (int i = 1; i < 5; ++i) {
            f.files.contents[u"/file"_s] = QByteArray("ä\n").repeated(i);
            QVERIFY(f.editor.openFile(u"/file"_s));
            if (i != 2)
                QCOMPARE(text->characterCount(), 2 * i);
        }
    }
};

ZEPHIRA_TEST(TstAccessibleEditor)

} // namespace zephira

#include "tst_accessibleeditor.moc"
