// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/commandlist.h"
#include "commands/commandsearch.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

class QAction;
class QMainWindow;

namespace zephira {

struct AppContext;
class CodeMax;
class CommandToolBar;
class DesignerBar;
class Menus;
class Palette;
struct PickRow;

/// The window in which each command can be searched for and run: what stands in menus, toolbars, the tool palette and
/// pop-up menus, the code view's own commands, and plug-ins. A command runs by its entry or button, as if that were
/// clicked. How often each was chosen is kept for the user.
class CommandPalette final : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        QMainWindow &window;
        const AppContext &context;
        Menus &menus;
        CommandToolBar &standard;
        CommandToolBar &formatting;
        Palette &palette;
        DesignerBar &designerBar;
        CodeMax &rt;
    };

    explicit CommandPalette(const Parts &parts) : m_parts(parts) {}

    /// Brings the entries up to date whose state is otherwise set when their menu opens.
    std::function<void()> update;

    void open();

private:
    struct Command {
        ListedCommand listed;
        /// What can be clicked to run it, one for each way; null where there is nothing.
        std::vector<QPointer<QAction>> actions;
    };

    void gather();
    void addListed(const QHash<QString, QString> &keys, const QHash<QString, QString> &captions);
    void addPlugins(const QHash<QString, QString> &keys);
    void addEditorCommands(const QSet<QString> &taken);
    void readUses();
    QAction *actionOf(const CommandWay &way) const;
    QAction *actionFor(int command);
    bool canRun(const CommandWay &way, const QAction *action) const;
    /// The entry or button that runs the command now, or nullptr.
    QAction *runnable(const Command &command) const;
    QString refusalOf(const Command &command) const;
    std::vector<PickRow> search(const QString &typed);
    PickRow rowOf(const CommandSearch::Found &found) const;
    void choose(int row);

    const Parts m_parts;
    std::vector<Command> m_commands;
    std::vector<int> m_uses;
    CommandSearch m_search;
    std::vector<CommandSearch::Found> m_found;
    /// Entries for the code view's own commands, made at first use.
    QHash<int, QAction *> m_editorActions;
};

} // namespace zephira
