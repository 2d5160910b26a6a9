// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "commands/menutable.h"
#include "commands/tagsmenu.h"
#include "commands/toolbartable.h"
#include "panes/sidetabbar.h"
#include "support/testregistry.h"

#include <QHelpEvent>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTest>
#include <QToolBar>
#include <QTreeWidget>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// The rows of the menus that keys choose.
QList<const MenuItem *> rowsWithKeys(std::span<const MenuItem> rows)
{
    QList<const MenuItem *> found;
    for (const MenuItem &row : rows) {
        if (!row.shortcut.isEmpty())
            found.append(&row);
        found.append(rowsWithKeys(row.children));
    }
    return found;
}

/// What a command does to the text, whether it asks for the view or not.
void (EditingControl::*editOf(const Command &command))()
{
    if (const auto *view = std::get_if<EditsView>(&command.effect))
        return view->editor;
    if (const auto *text = std::get_if<EditsText>(&command.effect))
        return text->editor;
    return nullptr;
}

/// The keys that choose from a menu what the button does, or what it opens.
QStringView keysFor(QStringView key, const Command &command)
{
    const auto rows = rowsWithKeys(menuBarTable());
    for (const MenuItem *row : rows) {
        const bool sameEdit = editOf(command) && editOf(command) == editOf(row->command);
        if (row->command.effect == command.effect || sameEdit || row->name == key)
            return row->shortcut;
    }
    return {};
}

/// The keys that a tip names behind what it says.
QString keysIn(const QString &tip)
{
    static const QRegularExpression brackets(u" \\(([^()]+)\\)$"_s);
    const QString words = brackets.match(tip).captured(1);
    const QKeySequence keys(words, QKeySequence::NativeText);
    return keys.isEmpty() || keys[0].key() == Qt::Key_unknown ? QString() : words;
}

/// All buttons of a window's tool bars.
QList<QAction *> buttonsOf(const QWidget &window)
{
    QList<QAction *> found;
    const QList<QToolBar *> bars = window.findChildren<QToolBar *>();
    for (const QToolBar *bar : bars) {
        const QList<QAction *> actions = bar->actions();
        for (QAction *action : actions) {
            if (!action->isSeparator() && !action->text().isEmpty())
                found.append(action);
        }
    }
    return found;
}

/// The buttons and the entries of all menus of a window.
QList<QAction *> actionsIn(const QWidget &window)
{
    QList<QAction *> all = buttonsOf(window);
    const QList<QMenu *> menus = window.findChildren<QMenu *>();
    for (const QMenu *menu : menus)
        all += menu->actions();
    all.removeIf([](const QAction *action) { return action->isSeparator() || action->text().isEmpty(); });
    return all;
}

struct Closed {
    int count = 0;
    /// Those whose tip doesn't begin with what they are called.
    QStringList faults;
};

Closed closedIn(const QWidget &window)
{
    Closed closed;
    const QList<QAction *> all = actionsIn(window);
    for (const QAction *action : all) {
        if (action->isEnabled())
            continue;
        ++closed.count;
        const QString name = action->text().remove(u'&').remove(QRegularExpression(u"\\.+$"_s));
        if (!action->toolTip().startsWith(name))
            closed.faults.append(action->objectName() + u": "_s + action->text() + u": "_s + action->toolTip());
    }
    return closed;
}

QString barOf(const QAction &action)
{
    const QList<QObject *> holders = action.associatedObjects();
    for (const QObject *holder : holders) {
        if (qobject_cast<const QToolBar *>(holder))
            return holder->objectName();
    }
    return {};
}

QStringList namedKeys(const QWidget &window)
{
    QStringList found;
    const QList<QAction *> buttons = buttonsOf(window);
    for (const QAction *action : buttons) {
        if (const QString keys = keysIn(action->toolTip()); !keys.isEmpty())
            found.append(u"%1 %2 %3"_s.arg(barOf(*action), action->objectName(), keys));
    }
    return found;
}

} // namespace

/// What the tips of the whole program have in common.
class TstWindowTips final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// A button does what keys do, or has no keys: its tip says which.
    void tipsNameTheKeysOfTheSameCommand()
    {
        WindowBench bench;
        bench.start();
        int named = 0;
        for (const ToolBarTable *table : {&standardToolBar(), &formattingToolBar()}) {
            for (const ToolButton &button : table->buttons) {
                if (button.key.isEmpty())
                    continue;
                const QString tip = bench.find<QToolBar>(table->name.toString())
                                        ->findChild<QAction *>(button.key.toString())
                                        ->toolTip();
                QVERIFY2(keysIn(tip) == keysFor(button.key, button.command), qPrintable(tip));
                named += !keysIn(tip).isEmpty();
            }
        }
        QCOMPARE(named, 10);
    }

    /// All that name keys, in all tool bars: a key of a view or a list stands in the tip of its button, too.
    void theKeysThatTipsName()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        bench.find<QTabBar>(u"workspace"_s)->setCurrentIndex(1);
        bench.find<QTabBar>(u"workspace"_s)->setCurrentIndex(2);
        QStringList found = namedKeys(window);
        for (const QString &form : {u"frmqv"_s, u"frmmainftp"_s}) {
            const std::unique_ptr<QWidget> living(bench.catalogue.make(form, window.context(), nullptr));
            found += namedKeys(*living);
        }
        found.sort();
        QStringList expected{u"tBar new Ctrl+N"_s, u"tBar open Ctrl+O"_s, u"tBar save Ctrl+S"_s, u"tBar print Ctrl+P"_s,
                             u"tBar cut Ctrl+X"_s, u"tBar copy Ctrl+C"_s, u"tBar paste Ctrl+V"_s, u"tBar delete Del"_s,
                             u"tBar undo Ctrl+Z"_s, u"tBar redo Ctrl+Y"_s, u"Toolbar2 Bold Ctrl+B"_s,
                             u"Toolbar2 Italic Ctrl+I"_s, u"Toolbar2 Underline Ctrl+U"_s, u"toolbarnav refresh F5"_s,
                             // The quick view
                             u"tBar copy Ctrl+C"_s,
                             // The FTP window
                             u"Toolbar1 DelFolder Del"_s, u"Toolbar1 DelFile Del"_s, u"Toolbar1 Rename F2"_s,
                             u"Toolbar1 DelFolder2 Del"_s, u"Toolbar1 DelFile2 Del"_s, u"Toolbar1 Rename2 F2"_s};
        expected.sort();
        QCOMPARE(found, expected);
    }

    /// What a button that can't be pressed would do stands first in its tip, in each window that has tool bars or menus.
    void closedButtonsSayWhatTheyAre()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        bench.find<QTabBar>(u"workspace"_s)->setCurrentIndex(1);
        bench.find<QTabBar>(u"workspace"_s)->setCurrentIndex(0);
        const Closed inWindow = closedIn(window);
        QVERIFY2(inWindow.faults.isEmpty(), qPrintable(inWindow.faults.join(u'\n')));
        // A walk that misses most of them would find no fault either.
        QVERIFY2(inWindow.count > 15, qPrintable(QString::number(inWindow.count)));
        QStringList walked;
        const QStringList forms = bench.catalogue.names();
        for (const QString &form : forms) {
            const std::unique_ptr<QWidget> living(bench.catalogue.make(form, window.context(), nullptr));
            if (!living || actionsIn(*living).isEmpty())
                continue;
            walked.append(form);
            // What is closed only now and then is closed by hand.
            for (const bool byHand : {false, true}) {
                const QList<QAction *> all = actionsIn(*living);
                for (QAction *action : all)
                    action->setEnabled(action->isEnabled() && !byHand);
                const Closed inForm = closedIn(*living);
                QVERIFY2(inForm.faults.isEmpty(), qPrintable(form + u'\n' + inForm.faults.join(u'\n')));
                QVERIFY2(!byHand || inForm.count > 0, qPrintable(form));
            }
        }
        for (const QString &form : {u"frmmainftp"_s, u"frmqv"_s})
            QVERIFY2(walked.contains(form), qPrintable(walked.join(u", ")));
    }

    /// Each tab of the side pane is called in its tip what its page is called.
    void sideTabsBearTheTitlesOfTheirPages()
    {
        WindowBench bench;
        frmmain &window = bench.start();
        window.show();
        auto *tabs = bench.find<SideTabBar>(u"Frame1"_s);
        QCOMPARE(tabs->count(), 12);
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            const QPoint place = tabs->tabRect(tab).center();
            QHelpEvent event(QEvent::ToolTip, place, tabs->mapToGlobal(place));
            QCoreApplication::sendEvent(tabs, &event);
            const QString key = tabs->tabData(tab).toString();
            const bool isCustom = key.size() == 2 && key.startsWith(u'c');
            const QString title = isCustom ? bench.find<QTreeWidget>(key)->headerItem()->text(0) : tabs->tabText(tab);
            QVERIFY2(!title.isEmpty(), qPrintable(key));
            QCOMPARE(tabs->tabToolTip(tab), title);
        }
    }
};

ZEPHIRA_TEST(TstWindowTips)
#include "tst_windowtips.moc"
