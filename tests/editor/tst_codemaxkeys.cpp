// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/codemaxglobals.h"
#include "editor/editorfixture.h"
#include "editor/finddialog.h"
#include "editor/hotkeys.h"
#include "support/actionwalk.h"
#include "support/testregistry.h"

#include <QAction>
#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;
using Sci = QsciScintillaBase;

namespace zephira {

class TstCodeMaxKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandsThatAMenuReplacesLoseTheirKeys_data()
    {
        QTest::addColumn<int>("command");
        using enum EditorCommand;
        for (const EditorCommand command :
             {CutByKey, PasteByKey, CopyByKey, FindNextByKey, FindByKey, ReplaceByKey, GoToByKey})
            QTest::addRow("%d", numberOf(command)) << numberOf(command);
    }
    void commandsThatAMenuReplacesLoseTheirKeys()
    {
        QFETCH(int, command);
        EditorFixture f;
        f.show();
        f.editor.setText(u"one\r\ntwo one\r\n"_s);
        f.editor.select({1, 1, 1, 3});
        CodeMaxGlobals &globals = f.editor.globals();
        const int count = globals.hotKeyCount(command);
        QVERIFY(count > 0);
        std::vector<QKeyCombination> keys;
        for (int i = count - 1; i >= 0; --i) {
            const CodeMaxHotKey hotKey = globals.hotKey(command, i);
            QCOMPARE(hotKey.command, command);
            keys.push_back(hotKey.keys);
            globals.UnregisterHotKey(hotKey);
        }
        QCOMPARE(globals.hotKeyCount(command), 0);
        QCOMPARE(globals.hotKey(command, 0), CodeMaxHotKey());
        for (const QKeyCombination key : keys)
            QTest::keyClick(&f.editor, key.key(), key.keyboardModifiers());
        QCOMPARE(f.editor.text(), u"one\r\ntwo one\r\n"_s);
        QCOMPARE(f.editor.selText(), u"wo"_s);
        QVERIFY(!f.editor.findChild<QDialog *>());
    }

    void keysOfTheSevenWorkBefore()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one\r\ntwo"_s);
        f.editor.select({1, 0, 1, 0});
        f.editor.select({0, 0, 0, 3});
        QTest::keyClick(&f.editor, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"one"_s);
        f.editor.select({1, 0, 1, 3});
        QTest::keyClick(&f.editor, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(f.editor.text(), u"one\r\none"_s);
        f.editor.select({0, 0, 0, 3});
        QTest::keyClick(&f.editor, Qt::Key_Delete, Qt::ShiftModifier);
        QCOMPARE(f.editor.text(), u"\r\none"_s);
        f.editor.select({1, 0, 1, 2});
        QTest::keyClick(&f.editor, Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(f.editor.text(), u"\r\ne"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"on"_s);
        QTest::keyClick(&f.editor, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(f.editor.findChild<FindDialog *>());
    }

    void theClipboardByNumber()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one two"_s);
        f.editor.executeCmd(137);
        QCOMPARE(f.editor.selText(), u"one two"_s);
        f.editor.select({0, 0, 0, 3});
        f.editor.executeCmd(198);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"one"_s);
        QCOMPARE(f.editor.text(), u"one two"_s);
        f.editor.select({0, 3, 0, 7});
        f.editor.executeCmd(197);
        QCOMPARE(QGuiApplication::clipboard()->text(), u" two"_s);
        QCOMPARE(f.editor.text(), u"one"_s);
        f.editor.executeCmd(140);
        f.editor.executeCmd(140);
        QCOMPARE(f.editor.text(), u"one two two"_s);
    }

    /// The menu names the keys even after a menu of the window has taken them over.
    void theContextMenuNamesItsKeys()
    {
        EditorFixture f;
        f.show();
        CodeMaxGlobals &globals = f.editor.globals();
        for (const CodeMaxHotKey &hotKey : initialHotKeys())
            globals.UnregisterHotKey(hotKey);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(20, 20), f.editor.mapToGlobal(QPoint(20, 20)));
        QCoreApplication::sendEvent(f.editor.viewport(), &event);
        auto *menu = f.editor.findChild<QMenu *>(u"editorMenu"_s);
        QVERIFY(menu);
        QStringList keys;
        const QList<QAction *> actions = menu->actions();
        for (const QAction *action : actions) {
            if (!action->isSeparator())
                keys.append(action->shortcut().toString(QKeySequence::PortableText));
        }
        QCOMPARE(keys,
                 (QStringList{u"Ctrl+Z"_s, u"Ctrl+Y"_s, u"Ctrl+X"_s, u"Ctrl+C"_s, u"Ctrl+V"_s, u"Del"_s, u"Ctrl+A"_s,
                              u"Ctrl+F2"_s, QString()}));
        menu->close();
    }

    /// Each hot key does something that can be told.
    void whatKeysDoIsTold()
    {
        for (const CodeMaxHotKey &hotKey : initialHotKeys())
            QVERIFY2(!hotKeyText(hotKey.command).isEmpty(), qPrintable(QKeySequence(hotKey.keys).toString()));
        QCOMPARE(hotKeyText(numberOf(EditorCommand::UndoText)).toString(), u"Undo"_s);
        QVERIFY(hotKeyText(0).isEmpty());
    }

    /// A menu's shortcut reaches the menu while the editor has the focus, even if the editor uses the key itself.
    void menusComeFirst_data()
    {
        QTest::addColumn<QKeySequence>("shortcut");
        for (const char *key :
             {"Ctrl+N", "Ctrl+T", "Ctrl+O", "Ctrl+S", "Ctrl+P", "Ctrl+Z", "Ctrl+Y", "Ctrl+X", "Ctrl+C",
              "Ctrl+V", "Ctrl+F", "Ctrl+R", "Ctrl+G", "Ctrl+A", "Ctrl+W", "Ctrl+H", "Del",    "Shift+Del",
              "F1",     "F3",     "F5",     "F6",     "F7",     "F8",     "F12"})
            QTest::newRow(key) << QKeySequence(QString::fromLatin1(key));
    }
    void menusComeFirst()
    {
        QFETCH(QKeySequence, shortcut);
        EditorFixture f;
        QMainWindow window;
        auto *editor = new CodeMax(f.editor.services(), &window);
        window.setCentralWidget(editor);
        QAction action;
        action.setShortcut(shortcut);
        window.addAction(&action);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        editor->setFocus();
        editor->setText(u"some text"_s);
        editor->select({0, 0, 0, 4});
        QSignalSpy triggered(&action, &QAction::triggered);
        QTest::keyClick(window.windowHandle(), shortcut[0].key(), shortcut[0].keyboardModifiers());
        QCOMPARE(triggered.count(), 1);
        QCOMPARE(editor->text(), u"some text"_s);
        QCOMPARE(editor->selText(), u"some"_s);
        QVERIFY(!editor->findChild<QDialog *>());
    }

    void withoutMenusTheUsualKeysWork()
    {
        EditorFixture f;
        f.show();
        QTest::keyClicks(&f.editor, u"ab"_s);
        QTest::keyClick(&f.editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&f.editor, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"ab"_s);
        QTest::keyClick(&f.editor, Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(f.editor.text(), QString());
        QTest::keyClick(&f.editor, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(&f.editor, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(f.editor.text(), u"abab"_s);
        QTest::keyClick(&f.editor, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(f.editor.text(), u"ab"_s);
        QTest::keyClick(&f.editor, Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(f.editor.text(), u"abab"_s);
        QTest::keyClick(&f.editor, Qt::Key_Home, Qt::ControlModifier);
        QTest::keyClick(&f.editor, Qt::Key_Delete);
        QCOMPARE(f.editor.text(), u"bab"_s);
        QTest::keyClick(&f.editor, Qt::Key_End);
        QTest::keyClick(&f.editor, Qt::Key_Backspace);
        QCOMPARE(f.editor.text(), u"ba"_s);
    }

    void controlKeysNeverType()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"x"_s);
        CodeMaxGlobals &globals = f.editor.globals();
        for (const CodeMaxHotKey &hotKey : initialHotKeys())
            globals.UnregisterHotKey(hotKey);
        for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key) {
            for (const Qt::KeyboardModifiers shift :
                 {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier)}) {
                const QString control(QChar(key - Qt::Key_A + 1));
                QKeyEvent press(QEvent::KeyPress, key, Qt::ControlModifier | shift, control);
                QCoreApplication::sendEvent(&f.editor, &press);
                QVERIFY(!press.isAccepted());
            }
        }
        QCOMPARE(f.editor.text(), u"x"_s);
    }

    void newLinesAreIndented_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("after");
        QTest::newRow("plain") << u"ab"_s << 1 << u"a\r\n|b"_s;
        QTest::newRow("blanks") << u"  ab"_s << 4 << u"  ab\r\n  |"_s;
        QTest::newRow("tab") << u"\tab"_s << 3 << u"\tab\r\n\t|"_s;
        QTest::newRow("after a brace") << u"  if {"_s << 6 << u"  if {\r\n  \t|"_s;
        QTest::newRow("at the beginning") << u"  ab"_s << 0 << u"\r\n|  ab"_s;
    }
    void newLinesAreIndented()
    {
        QFETCH(QString, before);
        QFETCH(int, column);
        QFETCH(QString, after);
        EditorFixture f;
        f.show();
        f.editor.setText(before);
        f.editor.select({0, column, 0, column});
        QTest::keyClick(&f.editor, Qt::Key_Return);
        f.editor.setSelText(u"|"_s);
        QCOMPARE(f.editor.text(), after);
        f.editor.undo();
        f.editor.undo();
        QCOMPARE(f.editor.text(), before);
    }

    void indentingCanBeSwitchedOff()
    {
        EditorFixture f;
        f.show();
        EditorOptions options;
        options.autoIndent = false;
        f.editor.setOptions(options);
        f.editor.setText(u"  a"_s);
        f.editor.select({0, 3, 0, 3});
        QTest::keyClick(&f.editor, Qt::Key_Return);
        QCOMPARE(f.editor.text(), u"  a\r\n"_s);
    }

    void tabIndentsTheSelectedLines()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"a\r\nb"_s);
        f.editor.select({0, 0, 1, 1});
        QTest::keyClick(&f.editor, Qt::Key_Tab);
        QCOMPARE(f.editor.text(), u"\ta\r\n\tb"_s);
        QTest::keyClick(&f.editor, Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(f.editor.text(), u"a\r\nb"_s);
        EditorOptions options;
        options.tabsAsBlanks = true;
        options.tabWidth = 3;
        f.editor.setOptions(options);
        QTest::keyClick(&f.editor, Qt::Key_Tab);
        QCOMPARE(f.editor.text(), u"   a\r\n   b"_s);
    }

    void insertSwitchesToOvertyping()
    {
        EditorFixture f;
        f.show();
        QSignalSpy switched(&f.editor, &CodeMax::OvertypeChanged);
        f.editor.setText(u"abc"_s);
        QTest::keyClick(&f.editor, Qt::Key_Insert);
        QVERIFY(f.editor.overtype());
        QCOMPARE(f.editor.engine().send(Sci::SCI_GETCARETSTYLE), Sci::CARETSTYLE_BLOCK);
        QTest::keyClicks(&f.editor, u"X"_s);
        QCOMPARE(f.editor.text(), u"Xbc"_s);
        QTest::keyClick(&f.editor, Qt::Key_Insert);
        QTest::keyClicks(&f.editor, u"Y"_s);
        QCOMPARE(f.editor.text(), u"XYbc"_s);
        QCOMPARE(switched.count(), 2);
    }

    void bookmarks()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"0\r\n1\r\n2\r\n3"_s);
        const auto line = [&] { return f.editor.selection(false).EndLineNo; };
        for (const int marked : {1, 3}) {
            f.editor.select({marked, 0, marked, 0});
            QTest::keyClick(&f.editor, Qt::Key_F2, Qt::ControlModifier);
        }
        QTest::keyClick(&f.editor, Qt::Key_F2);
        QCOMPARE(line(), 1);
        QTest::keyClick(&f.editor, Qt::Key_F2);
        QCOMPARE(line(), 3);
        QTest::keyClick(&f.editor, Qt::Key_F2, Qt::ShiftModifier);
        QCOMPARE(line(), 1);
        QTest::keyClick(&f.editor, Qt::Key_F2, Qt::ShiftModifier);
        QCOMPARE(line(), 3);
        QTest::keyClick(&f.editor, Qt::Key_F2, Qt::ControlModifier);
        QTest::keyClick(&f.editor, Qt::Key_F2);
        QTest::keyClick(&f.editor, Qt::Key_F2);
        QCOMPARE(line(), 1);
    }

    void zoom()
    {
        EditorFixture f;
        f.show();
        const auto zoom = [&] { return f.editor.engine().send(Sci::SCI_GETZOOM); };
        QTest::keyClick(&f.editor, Qt::Key_Plus, Qt::ControlModifier);
        QCOMPARE(zoom(), 1);
        QTest::keyClick(&f.editor, Qt::Key_Minus, Qt::ControlModifier);
        QTest::keyClick(&f.editor, Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(zoom(), -1);
        QTest::keyClick(&f.editor, Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(zoom(), 0);
        QWheelEvent turn(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::ControlModifier,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(f.editor.viewport(), &turn);
        QCOMPARE(zoom(), 1);
    }

    void shiftAndF10OpenTheMenu()
    {
        EditorFixture f;
        f.show();
        const QString before = f.editor.text();
        QTest::keyClick(&f.editor, Qt::Key_F10, Qt::ShiftModifier);
        auto *menu = f.editor.findChild<QMenu *>(u"editorMenu"_s);
        QVERIFY(menu);
        QVERIFY(menu->isVisible());
        menu->close();
        QCOMPARE(f.editor.text(), before);
    }

    void aHandledRightClickShowsNoMenu()
    {
        EditorFixture f;
        f.show();
        int asked = 0;
        bool handle = true;
        connect(&f.editor, &CodeMax::RClick, this, [&](bool *handled) {
            ++asked;
            *handled = handle;
        });
        const auto click = [&] {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(20, 20), f.editor.mapToGlobal(QPoint(20, 20)));
            QCoreApplication::sendEvent(f.editor.viewport(), &event);
        };
        click();
        QCOMPARE(asked, 1);
        QVERIFY(!f.editor.findChild<QMenu *>(u"editorMenu"_s));
        handle = false;
        click();
        auto *menu = f.editor.findChild<QMenu *>(u"editorMenu"_s);
        QVERIFY(menu && menu->isVisible());
        QStringList entries;
        const QList<QAction *> actions = menu->actions();
        for (const QAction *action : actions)
            entries += action->isSeparator() ? u"-"_s : action->text().remove(u'&');
        QCOMPARE(entries,
                 (QStringList{u"Undo"_s, u"Redo"_s, u"-"_s, u"Cut"_s, u"Copy"_s, u"Paste"_s, u"Delete"_s, u"-"_s,
                              u"Select All"_s, u"Toggle Bookmark"_s, u"-"_s, u"Properties…"_s}));
        menu->close();
    }

    /// Each entry, chosen from a menu of its own, has one effect, which can be seen.
    void eachEntryOfTheMenuHasOneEffect_data()
    {
        QTest::addColumn<int>("entry");
        for (int entry = 0; entry < 9; ++entry)
            QTest::addRow("%d", entry) << entry;
    }
    void eachEntryOfTheMenuHasOneEffect()
    {
        QFETCH(int, entry);
        EditorFixture f;
        f.show();
        f.editor.setText(u"one two"_s);
        f.editor.setSelText(u"A"_s);
        f.editor.setSelText(u"B"_s);
        f.editor.undo();
        f.editor.select({0, 0, 0, 3});
        QGuiApplication::clipboard()->setText(u"clip"_s);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(20, 20), f.editor.mapToGlobal(QPoint(20, 20)));
        QCoreApplication::sendEvent(f.editor.viewport(), &event);
        auto *menu = f.editor.findChild<QMenu *>(u"editorMenu"_s);
        QVERIFY(menu);
        QCOMPARE(faultsOf(actionsOf(*menu)), QStringList());
        const QList<QAction *> actions = choosable(actionsOf(*menu));
        QCOMPARE(actions.size(), 9);

        const auto state = [&] {
            const QList<QDialog *> dialogs = f.editor.window()->findChildren<QDialog *>();
            return QStringList{
                f.editor.text(), f.editor.selText(), QGuiApplication::clipboard()->text(),
                QString::number(f.editor.engine().send(Sci::SCI_MARKERGET, 0)),
                QString::number(std::ranges::count_if(dialogs, [](const QDialog *form) { return form->isVisible(); }))};
        };
        const QStringList before = state();
        actions[entry]->trigger();
        QVERIFY2(state() != before, qPrintable(actions[entry]->text()));
    }

    void aRightClickOutsideTheSelectionMovesTheCaret()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one two three"_s);
        f.editor.select({0, 0, 0, 3});
        connect(&f.editor, &CodeMax::RClick, this, [](bool *handled) { *handled = true; });
        const auto clickAt = [&](qsizetype position) {
            const QPoint at(static_cast<int>(f.editor.engine().send(Sci::SCI_POINTXFROMPOSITION, 0, position)), 5);
            QContextMenuEvent event(QContextMenuEvent::Mouse, at, f.editor.mapToGlobal(at));
            QCoreApplication::sendEvent(f.editor.viewport(), &event);
        };
        clickAt(1);
        QCOMPARE(f.editor.selText(), u"one"_s);
        clickAt(5);
        QCOMPARE(f.editor.selText(), QString());
        QCOMPARE(f.editor.currentWord(), u"two"_s);
    }

    void droppedFilesAreLeftToTheWindow_data()
    {
        QTest::addColumn<bool>("files");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("readOnly");
        QTest::addColumn<bool>("taken");
        QTest::newRow("text") << false << true << false << true;
        QTest::newRow("files") << true << true << false << false;
        QTest::newRow("text, dragging off") << false << false << false << false;
        QTest::newRow("text, read-only") << false << true << true << false;
    }
    void droppedFilesAreLeftToTheWindow()
    {
        QFETCH(bool, files);
        QFETCH(bool, enabled);
        QFETCH(bool, readOnly);
        QFETCH(bool, taken);
        EditorFixture f;
        f.show();
        f.editor.setEnableDragDrop(enabled);
        f.editor.setReadOnly(readOnly);
        QMimeData data;
        data.setText(u"dropped"_s);
        if (files)
            data.setUrls({QUrl(u"file:///tmp/x.html"_s)});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(f.editor.viewport(), &enter);
        QCOMPARE(enter.isAccepted(), taken);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(f.editor.viewport(), &drop);
        QCOMPARE(f.editor.text(), taken ? u"dropped"_s : QString());
    }

    void languagesAreRegisteredByName()
    {
        EditorFixture f;
        f.show();
        CodeMaxLanguage language;
        language.Keywords = u"zap"_s;
        f.editor.globals().RegisterLanguage(u"Zap"_s, language);
        f.editor.setText(u"zap it"_s);
        f.editor.setLanguage(u"ZAP"_s);
        QCOMPARE(f.editor.language(), u"ZAP"_s);
        f.waitForColours();
        QCOMPARE(f.styles(), "222000"_ba);
        language.Keywords = u"it"_s;
        f.editor.globals().RegisterLanguage(u"zap"_s, language);
        f.waitForColours();
        QCOMPARE(f.styles(), "000022"_ba);
        f.editor.setLanguage(QString());
        f.waitForColours();
        QCOMPARE(f.styles(), "000000"_ba);
        f.editor.setLanguage(u"no such language"_s);
        QCOMPARE(f.editor.language(), QString());
    }
};

ZEPHIRA_TEST(TstCodeMaxKeys)

} // namespace zephira

#include "tst_codemaxkeys.moc"
