// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "app/windowkeys.h"
#include "commands/menutable.h"
#include "commands/texttable.h"
#include "core/itemroles.h"
#include "plugins/modulebench.h"
#include "settings/keysequencebox.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString place = u"zephira/Keys/"_s;

/// Presses keys in the window, as the window system delivers them.
void press(QWidget &window, const QString &keys)
{
    const QKeyCombination key = QKeySequence(keys)[0];
    QTest::keyClick(window.windowHandle(), key.key(), key.keyboardModifiers());
}

/// Waits until the window takes keys, as after a dialog.
void activate(const WindowBench &bench)
{
    bench.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(bench.window.get()));
}

/// Shows the window with the focus in the text.
void show(const WindowBench &bench)
{
    bench.window->show();
    activate(bench);
    bench.window->rt().setFocus();
}

/// The form that keys open, which is closed again.
QString formOpenedBy(const WindowBench &bench, const QString &keys)
{
    activate(bench);
    QString opened;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&] {
        if (QWidget *form = QApplication::activeModalWidget()) {
            opened = form->objectName();
            form->close();
        }
    });
    closer.start(0);
    press(*bench.window, keys);
    return opened;
}

QTreeWidgetItem *nodeOf(const QTreeWidget &tree, const QString &key)
{
    for (QTreeWidgetItemIterator node(const_cast<QTreeWidget *>(&tree)); *node; ++node) {
        if ((*node)->data(0, KeyRole) == key)
            return *node;
    }
    qFatal("nothing has the key %s", qPrintable(key));
}

void click(const QTreeWidget &tree, const QString &key)
{
    QTreeWidgetItem *node = nodeOf(tree, key);
    node->treeWidget()->scrollToItem(node);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(node).center());
}

/// Opens the options on the page of the keys and works there.
void onKeyPage(const WindowBench &bench, const std::function<void(QDialog &)> &work)
{
    bool opened = false;
    QTimer::singleShot(0, bench.window.get(), [&] {
        auto *form = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY(form);
        opened = true;
        click(*form->findChild<QTreeWidget *>(u"TreeView1"_s), u"Keyboard"_s);
        work(*form);
        if (form->isVisible())
            form->reject();
    });
    bench.choose(u"main"_s);
    QVERIFY(opened);
}

void push(const QDialog &form, const QString &button)
{
    auto *control = form.findChild<QPushButton *>(button);
    QVERIFY2(control->isEnabled(), qPrintable(button));
    QTest::mouseClick(control, Qt::LeftButton);
}

/// Gives a command other keys on the page.
void give(const QDialog &form, const QString &command, const QString &keys)
{
    click(*form.findChild<QTreeWidget *>(u"lstkeys"_s), command);
    auto *box = form.findChild<KeySequenceBox *>(u"keyedit"_s);
    const QKeyCombination key = QKeySequence(keys)[0];
    QTest::keyClick(box, key.key(), key.keyboardModifiers());
    push(form, u"cmdkeyset"_s);
}

QString tipOf(const WindowBench &bench, const QString &button)
{
    return bench.find<QToolBar>(u"tBar"_s)->findChild<QAction *>(button)->toolTip();
}

CommandKey commandNamed(const WindowBench &bench, const QString &name)
{
    const std::vector<CommandKey> commands = bench.window->context().keys.commands();
    const auto found = std::ranges::find(commands, name, &CommandKey::name);
    return found == commands.end() ? CommandKey{} : *found;
}

/// The entries of the menu bar that can be chosen, in their order.
void collect(const QList<QAction *> &entries, QStringList &names)
{
    for (const QAction *entry : entries) {
        if (const QMenu *menu = entry->menu())
            collect(menu->actions(), names);
        else if (!entry->isSeparator() && entry->objectName() != u"mnusep"_s)
            names.append(entry->objectName());
    }
}

} // namespace

/// The keys of the menus in the real window.
class TstWindowKeys final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { takeLog(); }

    /// Every command of the menus, and nothing else.
    void allCommandsAreListed()
    {
        WindowBench bench;
        bench.start();
        QStringList entries;
        collect(bench.window->menuBar()->actions(), entries);
        for (const MenuItem &menu : textMenuTable())
            collect(bench.find<QMenu>(menu.name.toString())->actions(), entries);
        // Until there is a plug-in, this says that there is none.
        QVERIFY(entries.removeOne(u"mnupluginoptions_0"_s));
        QStringList listed;
        const std::vector<CommandKey> commands = bench.window->context().keys.commands();
        for (const CommandKey &command : commands) {
            listed.append(command.name);
            const QString keys = bench.find<QAction>(command.name)->shortcut().toString(QKeySequence::PortableText);
            QCOMPARE(command.keys, keys);
            QCOMPARE(command.shipped, keys);
            QVERIFY2(!command.caption.endsWith(u' '), qPrintable(command.caption));
        }
        QCOMPARE(listed, entries);
        QVERIFY(bench.settings.values.empty() || !bench.settings.values.begin()->first.startsWith(place));
    }

    /// New keys open their command and the old ones don't, at once and after a restart; the configuration isn't touched
    /// for their sake.
    void newKeysTakeEffectAndStay()
    {
        WindowBench bench;
        bench.start();
        show(bench);
        QCOMPARE(formOpenedBy(bench, u"F6"_s), u"frmAbout"_s);
        QCOMPARE(formOpenedBy(bench, u"Ctrl+Shift+B"_s), QString());
        QByteArray before;
        onKeyPage(bench, [&](QDialog &form) {
            // What the first save writes is the colours of today, not the keys.
            push(form, u"Command2"_s);
            before = WindowBench::read(bench.configuration.file());
            give(form, u"about"_s, u"Ctrl+Shift+B"_s);
            give(form, u"mnutblwiz"_s, u"F11"_s);
            QCOMPARE(bench.find<QAction>(u"about"_s)->shortcut(), QKeySequence(u"F6"_s));
            push(form, u"cmdOK"_s);
        });
        QCOMPARE(WindowBench::read(bench.configuration.file()), before);
        QCOMPARE(bench.settings.values.at(place + u"about"_s), u"Ctrl+Shift+B"_s);
        QCOMPARE(bench.settings.values.at(place + u"mnutblwiz"_s), u"F11"_s);
        for (int run = 0; run < 2; ++run) {
            QCOMPARE(formOpenedBy(bench, u"Ctrl+Shift+B"_s), u"frmAbout"_s);
            QCOMPARE(formOpenedBy(bench, u"F11"_s), u"frmTables"_s);
            QCOMPARE(formOpenedBy(bench, u"F6"_s), QString());
            QCOMPARE(bench.find<QAction>(u"about"_s)->shortcut(), QKeySequence(u"Ctrl+Shift+B"_s));
            bench.start();
            show(bench);
        }
        QCOMPARE(WindowBench::read(bench.configuration.file()), before);
    }

    void cancelLeavesThem()
    {
        WindowBench bench;
        bench.start();
        show(bench);
        onKeyPage(bench, [&](QDialog &form) {
            give(form, u"about"_s, u"F11"_s);
            push(form, u"cmdCancel"_s);
        });
        QCOMPARE(formOpenedBy(bench, u"F11"_s), QString());
        QCOMPARE(formOpenedBy(bench, u"F6"_s), u"frmAbout"_s);
        QVERIFY(!bench.settings.values.contains(place + u"about"_s));
    }

    /// The command that had them loses them, which is kept too; resetting removes both again.
    void keysMoveAndComeBack()
    {
        WindowBench bench;
        bench.start();
        show(bench);
        onKeyPage(bench, [&](QDialog &form) {
            give(form, u"mnutblwiz"_s, u"F6"_s);
            push(form, u"cmdOK"_s);
        });
        QCOMPARE(bench.settings.values.at(place + u"about"_s), QString());
        QCOMPARE(formOpenedBy(bench, u"F6"_s), u"frmTables"_s);
        bench.start();
        show(bench);
        QCOMPARE(formOpenedBy(bench, u"F6"_s), u"frmTables"_s);
        onKeyPage(bench, [&](QDialog &form) {
            push(form, u"cmdkeyreset"_s);
            push(form, u"cmdOK"_s);
        });
        QVERIFY(!bench.settings.values.contains(place + u"about"_s));
        QVERIFY(!bench.settings.values.contains(place + u"mnutblwiz"_s));
        QCOMPARE(formOpenedBy(bench, u"F6"_s), u"frmAbout"_s);
        bench.start();
        show(bench);
        QCOMPARE(formOpenedBy(bench, u"F6"_s), u"frmAbout"_s);
    }

    /// Two commands exchange their keys in one save.
    void keysAreExchanged()
    {
        WindowBench bench;
        bench.start();
        show(bench);
        onKeyPage(bench, [&](QDialog &form) {
            give(form, u"about"_s, u"F7"_s);
            give(form, u"webview"_s, u"F6"_s);
            push(form, u"cmdOK"_s);
        });
        QCOMPARE(formOpenedBy(bench, u"F7"_s), u"frmAbout"_s);
        QCOMPARE(formOpenedBy(bench, u"F6"_s), u"frmwebdisp"_s);
        QCOMPARE(formOpenedBy(bench, u"Ctrl+W"_s), QString());
    }

    void theTipsOfTheToolbarFollow()
    {
        WindowBench bench;
        bench.start();
        show(bench);
        QCOMPARE(tipOf(bench, u"new"_s), u"New document (Ctrl+N)"_s);
        onKeyPage(bench, [&](QDialog &form) {
            give(form, u"mnunewdoc"_s, u"F11"_s);
            give(form, u"about"_s, u"Ctrl+S"_s);
            push(form, u"cmdOK"_s);
        });
        for (int run = 0; run < 2; ++run) {
            QCOMPARE(tipOf(bench, u"new"_s), u"New document (F11)"_s);
            QCOMPARE(tipOf(bench, u"save"_s), u"Save the document"_s);
            QCOMPARE(tipOf(bench, u"open"_s), u"Open a document (Ctrl+O)"_s);
            bench.start();
        }
        bench.settings.values.clear();
        bench.start();
        QCOMPARE(tipOf(bench, u"save"_s), u"Save the document (Ctrl+S)"_s);
    }

    /// A command may have keys of the text, for as long as it keeps them.
    void keysOfTheTextRunTheCommand()
    {
        WindowBench bench;
        bench.settings.values[place + u"about"_s] = u"Ctrl+D"_s;
        bench.settings.values[place + u"mnutblwiz"_s] = u"Ctrl+Right"_s;
        bench.start();
        show(bench);
        bench.window->rt().setText(u"word word"_s);
        QCOMPARE(formOpenedBy(bench, u"Ctrl+D"_s), u"frmAbout"_s);
        QCOMPARE(formOpenedBy(bench, u"Ctrl+Right"_s), u"frmTables"_s);
        QVERIFY(!bench.window->rt().canCopy());
        bench.settings.values.clear();
        bench.start();
        show(bench);
        bench.window->rt().setText(u"word word"_s);
        press(*bench.window, u"Ctrl+D"_s);
        QVERIFY(bench.window->rt().canCopy());
    }

    /// The context menu of the text names the keys of the entries, else its own as far as these still work.
    void theContextMenuOfTheTextFollows()
    {
        WindowBench bench;
        const auto named = [&bench] {
            CodeMax &rt = bench.window->rt();
            QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(20, 20), rt.mapToGlobal(QPoint(20, 20)));
            QCoreApplication::sendEvent(rt.viewport(), &event);
            auto *menu = rt.findChild<QMenu *>(u"editorMenu"_s);
            QStringList keys;
            const QList<QAction *> entries = menu->actions();
            for (const QAction *entry : entries) {
                if (!entry->isSeparator() && !entry->menu())
                    keys.append(entry->shortcut().toString(QKeySequence::PortableText));
            }
            delete menu;
            return keys.join(u' ');
        };
        bench.start();
        show(bench);
        QCOMPARE(named(), u"Ctrl+Z Ctrl+Y Ctrl+X Ctrl+C Ctrl+V Del Ctrl+A Ctrl+F2 "_s);
        for (const auto &[name, keys] : {std::pair(u"undo"_s, u"F11"_s), std::pair(u"redo"_s, QString()),
                                         std::pair(u"copy"_s, QString()), std::pair(u"about"_s, u"Ctrl+F2"_s)})
            bench.settings.values[place + name] = keys;
        bench.start();
        show(bench);
        QCOMPARE(named(), u"F11 Ctrl+Y Ctrl+X  Ctrl+V Del Ctrl+A  "_s);
    }

    /// In the preview, whatever keys edit the text of the code view do nothing to it.
    void thePreviewFollows()
    {
        WindowBench bench;
        bench.settings.values[place + u"Timedate"_s] = u"F11"_s;
        bench.settings.values[place + u"undo"_s] = u"F10"_s;
        bench.settings.values[place + u"about"_s] = u"Ctrl+Z"_s;
        bench.start();
        show(bench);
        CodeMax &rt = bench.window->rt();
        press(*bench.window, u"F11"_s);
        QVERIFY(rt.canUndo());
        const QString text = rt.text();
        bench.find<QTabBar>(u"workspace"_s)->setCurrentIndex(1);
        auto *page = bench.find<QWidget>(u"ww1"_s);
        page->setFocusPolicy(Qt::StrongFocus);
        page->setFocus();
        for (const QString &keys : {u"F11"_s, u"F10"_s})
            press(*bench.window, keys);
        QCOMPARE(rt.text(), text);
        QCOMPARE(formOpenedBy(bench, u"Ctrl+Z"_s), u"frmAbout"_s);
    }

    /// What can't be keys counts as nothing; the rest of the store isn't harmed.
    void brokenTexts_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text :
             {"Blah", "Ctrl+", "Ctrl+K, Ctrl+L", "A", "Return", "Alt+F", "Ctrl+F6", "@Variant(\\0\\0)", "\n"})
            QTest::newRow(text) << QString::fromLatin1(text);
    }

    void brokenTexts()
    {
        QFETCH(QString, text);
        WindowBench bench;
        bench.settings.values[place + u"about"_s] = text;
        bench.settings.values[place + u"webview"_s] = u"F11"_s;
        bench.settings.values[place + u"nothing of ours"_s] = u"F6"_s;
        bench.start();
        show(bench);
        QCOMPARE(formOpenedBy(bench, u"F6"_s), u"frmAbout"_s);
        QCOMPARE(formOpenedBy(bench, u"F11"_s), u"frmwebdisp"_s);
        QCOMPARE(commandNamed(bench, u"about"_s).keys, u"F6"_s);
    }

    /// Two kept texts that are the same: the first command has the keys, and the other what ships with it.
    void theSameKeysTwice()
    {
        WindowBench bench;
        bench.settings.values[place + u"webview"_s] = u"F11"_s;
        bench.settings.values[place + u"about"_s] = u"f11"_s;
        bench.start();
        show(bench);
        QCOMPARE(formOpenedBy(bench, u"F11"_s), u"frmwebdisp"_s);
        QCOMPARE(formOpenedBy(bench, u"F6"_s), u"frmAbout"_s);
    }

    /// What was kept but not in effect doesn't come back when the keys become free.
    void savingCleansUp()
    {
        WindowBench bench;
        bench.settings.values[place + u"webview"_s] = u"F11"_s;
        bench.settings.values[place + u"about"_s] = u"F11"_s;
        bench.settings.values[place + u"font"_s] = u"Blah"_s;
        bench.settings.values[place + u"a plug-in of another day"_s] = u"F9"_s;
        bench.start();
        show(bench);
        onKeyPage(bench, [&](QDialog &form) {
            give(form, u"webview"_s, u"F10"_s);
            push(form, u"cmdOK"_s);
        });
        QCOMPARE(formOpenedBy(bench, u"F10"_s), u"frmwebdisp"_s);
        QCOMPARE(formOpenedBy(bench, u"F11"_s), QString());
        QCOMPARE(formOpenedBy(bench, u"F6"_s), u"frmAbout"_s);
        QCOMPARE(bench.settings.owners(UserSetting::MenuKeys),
                 (QStringList{u"a plug-in of another day"_s, u"webview"_s}));
    }

    /// Another process has saved keys since this window read them: both changes stay, and of two the later one.
    void twoProcessesShareTheKeys()
    {
        WindowBench bench;
        bench.start();
        show(bench);
        bench.settings.values[place + u"about"_s] = u"F11"_s;
        bench.settings.values[place + u"font"_s] = u"F9"_s;
        onKeyPage(bench, [&](QDialog &form) {
            give(form, u"mnutblwiz"_s, u"F10"_s);
            give(form, u"webview"_s, u"F9"_s);
            push(form, u"cmdOK"_s);
        });
        QCOMPARE(formOpenedBy(bench, u"F11"_s), u"frmAbout"_s);
        QCOMPARE(formOpenedBy(bench, u"F10"_s), u"frmTables"_s);
        QCOMPARE(formOpenedBy(bench, u"F9"_s), u"frmwebdisp"_s);
        QCOMPARE(bench.settings.values.at(place + u"about"_s), u"F11"_s);
        QVERIFY(!bench.settings.values.contains(place + u"font"_s));
        QCOMPARE(commandNamed(bench, u"font"_s).keys, u"F7"_s);
    }

    void aStoreThatCantBeWrittenIsTold()
    {
        WindowBench bench;
        bench.start();
        show(bench);
        onKeyPage(bench, [&](QDialog &form) {
            give(form, u"about"_s, u"F11"_s);
            bench.settings.writable = false;
            bench.prompts.expectTell(u"The keys could not be saved."_s, u"Options"_s, Question::Icon::Exclamation);
            push(form, u"cmdOK"_s);
            QVERIFY(form.isVisible());
            bench.settings.writable = true;
        });
        QCOMPARE(formOpenedBy(bench, u"F11"_s), QString());
        QCOMPARE(formOpenedBy(bench, u"F6"_s), u"frmAbout"_s);
    }

    /// The keys of a plug-in are its own, wherever it stands in the menu.
    void aPluginKeepsItsKeys()
    {
        WindowBench bench;
        install(bench, u"b.so"_s);
        bench.start();
        show(bench);
        QCOMPARE(commandNamed(bench, u"b.Main"_s), (CommandKey{u"b.Main"_s, u"Plugins > b"_s, {}, {}}));
        onKeyPage(bench, [&](QDialog &form) {
            give(form, u"b.Main"_s, u"F11"_s);
            push(form, u"cmdOK"_s);
        });
        QCOMPARE(bench.find<QAction>(u"mnupluginoptions_0"_s)->shortcut(), QKeySequence(u"F11"_s));
        install(bench, u"a.so"_s);
        bench.start();
        QCOMPARE(bench.find<QAction>(u"mnupluginoptions_0"_s)->shortcut(), QKeySequence());
        QCOMPARE(bench.find<QAction>(u"mnupluginoptions_1"_s)->shortcut(), QKeySequence(u"F11"_s));
    }

    void whatElseKeysDo_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("use");
        QTest::addColumn<bool>("yields");
        QTest::newRow("menu") << u"Alt+E"_s << u"opens the menu Edit"_s << false;
        QTest::newRow("walk") << u"Ctrl+Shift+F6"_s << u"goes from one part of the window to another"_s << false;
        QTest::newRow("text") << u"Ctrl+Shift+A"_s << u"is \"Fold or unfold everything\" in the text"_s << true;
        QTest::newRow("undo") << u"Ctrl+Z"_s << u"is \"Undo\" in the text"_s << true;
        QTest::newRow("by words") << u"Ctrl+Shift+Left"_s << u"moves, selects or deletes in the text"_s << true;
        QTest::newRow("visual view") << u"Ctrl+B"_s << u"is \"Bold\" in the visual view"_s << true;
        QTest::newRow("nothing") << u"Ctrl+J"_s << QString() << false;
        // The menus have taken these over.
        QTest::newRow("find") << u"Ctrl+F"_s << QString() << false;
    }

    void whatElseKeysDo()
    {
        QFETCH(QString, keys);
        WindowBench bench;
        bench.start();
        const std::vector<OtherKey> others = bench.window->context().keys.others();
        const auto found = std::ranges::find(others, keys, &OtherKey::keys);
        const OtherKey use = found == others.end() ? OtherKey{} : *found;
        QTEST(use.use, "use");
        QTEST(use.yields, "yields");
    }

private:
    static void install(const WindowBench &bench, const QString &name)
    {
        installModule(bench.appPath(), u"plugins"_s, name, testmodule::citizen());
    }
};

ZEPHIRA_TEST(TstWindowKeys)
#include "tst_windowkeys.moc"
