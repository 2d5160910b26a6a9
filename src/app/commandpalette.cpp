// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandpalette.h"

#include "app/editorcommandlist.h"
#include "commands/designerbar.h"
#include "commands/menukeys.h"
#include "commands/menus.h"
#include "commands/menutable.h"
#include "commands/palette.h"
#include "commands/palettetable.h"
#include "commands/toolbars.h"
#include "core/appcontext.h"
#include "core/commandkeys.h"
#include "core/designer.h"
#include "core/usersettings.h"
#include "editor/codemax.h"
#include "widgets/pickpopup.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QSet>
#include <QToolBar>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Home = CommandWay::Home;

/// Whether an entry could be clicked: it and the menus that lead to it are enabled.
bool isReachable(const QAction &action)
{
    if (!action.isEnabled() || !action.isVisible())
        return false;
    const QList<QObject *> holders = action.associatedObjects();
    return std::ranges::all_of(holders, [](QObject *holder) {
        const auto *menu = qobject_cast<const QMenu *>(holder);
        return !menu || (menu->isEnabled() && isReachable(*menu->menuAction()));
    });
}

QString shown(const QString &keys)
{
    return QKeySequence::fromString(keys, QKeySequence::PortableText).toString(QKeySequence::NativeText);
}

} // namespace

void CommandPalette::open()
{
    update();
    gather();
    PickPopup::of(m_parts.window)
        .open({QCoreApplication::translate("CommandPalette", "Commands"),
               QCoreApplication::translate("CommandPalette", "Search for a command"),
               QCoreApplication::translate("CommandPalette", "No command is called so"),
               [this](const QString &typed) { return search(typed); }, [this](int row) { choose(row); }});
}

void CommandPalette::gather()
{
    QHash<QString, QString> keys;
    QHash<QString, QString> captions;
    const std::vector<CommandKey> all = m_parts.context.keys.commands();
    for (const CommandKey &command : all) {
        keys.insert(command.name, command.keys);
        captions.insert(command.name, command.caption.section(u" > "_s, -1));
    }
    m_commands.clear();
    addListed(keys, captions);
    addPlugins(keys);
    addEditorCommands(QSet<QString>(keys.cbegin(), keys.cend()));

    std::vector<ListedCommand> listed;
    std::ranges::transform(m_commands, std::back_inserter(listed), &Command::listed);
    m_search = CommandSearch(listed);
    readUses();
}

void CommandPalette::addListed(const QHash<QString, QString> &keys, const QHash<QString, QString> &captions)
{
    for (ListedCommand &listed : listedCommands()) {
        Command command{std::move(listed), {}};
        for (const CommandWay &way : command.listed.ways)
            command.actions.emplace_back(actionOf(way));
        if (keys.contains(command.listed.name))
            command.listed.keys = keys[command.listed.name];
        // The formats of the visual view have their captions from the page.
        if (command.listed.caption.isEmpty())
            command.listed.caption = captions.value(command.listed.name);
        const QAction *first = command.actions.front();
        if (!first || first->isVisible())
            m_commands.push_back(std::move(command));
    }
}

void CommandPalette::addPlugins(const QHash<QString, QString> &keys)
{
    const QMenu *menu = m_parts.menus.menu(menuname::plugins);
    const QList<QAction *> entries = menu->actions();
    for (QAction *entry : entries) {
        const QString plugin = entry->data().toString();
        if (!plugin.isEmpty())
            m_commands.push_back(
                {{plugin, plainCaption(entry->text()), plainCaption(menu->title()), {}, {}, {{}}, keys.value(plugin)},
                 {entry}});
    }
}

void CommandPalette::addEditorCommands(const QSet<QString> &taken)
{
    const std::vector<EditorCommandRow> rows = editorCommandRows(m_parts.rt.globals(), taken);
    for (const EditorCommandRow &row : rows) {
        const CommandWay way{.need = Need::SourceView};
        m_commands.push_back({{u"rt_%1"_s.arg(row.command),
                               row.caption,
                               QCoreApplication::translate("CommandPalette", "Code view"),
                               {},
                               {},
                               {way},
                               row.keys},
                              {actionFor(row.command)}});
    }
}

void CommandPalette::readUses()
{
    const UserSettings &settings = m_parts.context.settings;
    const QStringList known = settings.owners(UserSetting::CommandUses);
    const QSet<QString> used(known.cbegin(), known.cend());
    m_uses.clear();
    for (const Command &command : m_commands) {
        const QString &name = command.listed.name;
        m_uses.push_back(used.contains(name) ? std::max(wholeNumber(settings, UserSetting::CommandUses, name, 0), 0)
                                             : 0);
    }
}

QAction *CommandPalette::actionOf(const CommandWay &way) const
{
    switch (way.home) {
    case Home::Menu:
    case Home::Popup:
        return m_parts.menus.action(way.name);
    case Home::Standard:
        return m_parts.standard.action(way.name);
    case Home::Formatting:
        return m_parts.formatting.action(way.name);
    case Home::Palette:
        return m_parts.palette.toolBar(way.bar)->actions().value(way.position);
    case Home::Heading:
        return m_parts.palette.action(way.bar, headingsKey.toString())->menu()->actions().value(way.position - 1);
    case Home::Designer:
        return m_parts.designerBar.findChild<QAction *>(way.name, Qt::FindDirectChildrenOnly);
    }
    return nullptr;
}

QAction *CommandPalette::actionFor(int command)
{
    QAction *&action = m_editorActions[command];
    if (!action) {
        action = new QAction(this);
        connect(action, &QAction::triggered, this, [this, command] { m_parts.rt.executeCmd(command); });
    }
    return action;
}

bool CommandPalette::canRun(const CommandWay &way, const QAction *action) const
{
    if (way.need == Need::SourceView && !m_parts.rt.isVisible())
        return false;
    if (way.need == Need::VisualView && !m_parts.context.designer.isShowing())
        return false;
    // The menu of a tab of snippets works on the tab that was clicked.
    if (way.home == Home::Popup && findMenuItem(menuname::customTab)->children.front().name == way.name)
        return false;
    return action && isReachable(*action);
}

QAction *CommandPalette::runnable(const Command &command) const
{
    for (std::size_t i = 0; i < command.actions.size(); ++i) {
        if (canRun(command.listed.ways[i], command.actions[i]))
            return command.actions[i];
    }
    return nullptr;
}

QString CommandPalette::refusalOf(const Command &command) const
{
    if (runnable(command))
        return {};
    const CommandWay &way = command.listed.ways.front();
    const bool needsOther = (way.need == Need::SourceView && m_parts.rt.isVisible())
        || (way.need == Need::VisualView && m_parts.context.designer.isShowing());
    return whyDisabled(way.home, needsOther ? Need::Nothing : way.need);
}

std::vector<PickRow> CommandPalette::search(const QString &typed)
{
    m_found = m_search.find(typed, m_uses);
    std::vector<PickRow> rows;
    rows.reserve(m_found.size());
    for (const CommandSearch::Found &found : m_found)
        rows.push_back(rowOf(found));
    return rows;
}

PickRow CommandPalette::rowOf(const CommandSearch::Found &found) const
{
    const Command &command = m_commands[static_cast<std::size_t>(found.command)];
    const QString refusal = refusalOf(command);
    const QAction *first = command.actions.front();
    QStringList detail{command.listed.place};
    if (first && first->isChecked())
        detail.front() += QCoreApplication::translate("CommandPalette", ", on");
    if (!refusal.isEmpty())
        detail.prepend(refusal);
    if (!command.listed.tip.isEmpty())
        detail.append(command.listed.tip);
    return {command.listed.caption, found.places, detail.join(u" \u2013 "_s), shown(command.listed.keys),
            refusal.isEmpty()};
}

void CommandPalette::choose(int row)
{
    const auto number = static_cast<std::size_t>(m_found[static_cast<std::size_t>(row)].command);
    const Command &command = m_commands[number];
    QAction *action = runnable(command);
    if (!action)
        return;
    const int uses = std::min(m_uses[number], std::numeric_limits<int>::max() - 1) + 1;
    writeNumber(m_parts.context.settings, UserSetting::CommandUses, command.listed.name, uses);
    // The key that chose it is done with before the command runs, which may open a dialog or end the program.
    QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
}

} // namespace zephira
