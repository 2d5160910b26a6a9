// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowkeys.h"

#include "commands/menukeys.h"
#include "commands/menus.h"
#include "commands/menutable.h"
#include "commands/toolbars.h"
#include "core/usersettings.h"
#include "editor/codemax.h"
#include "editor/codemaxglobals.h"
#include "editor/hotkeys.h"
#include "views/designercommands.h"
#include "widgets/keytext.h"

#include <QAction>
#include <QMenu>
#include <QSet>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// With Ctrl these move the caret by words and further, or delete.
constexpr Qt::Key movingKeys[] = {
    Qt::Key_Left, Qt::Key_Right,    Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Home,
    Qt::Key_End,  Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Backspace, Qt::Key_Delete,
};

/// Commands of the text's context menu and the entries that do the same.
struct SameCommand {
    EditorCommand command;
    QStringView entry;
};

constexpr SameCommand sameCommands[] = {
    {EditorCommand::UndoText, u"undo"},       {EditorCommand::RedoText, u"redo"},
    {EditorCommand::CutByKey, u"cut"},        {EditorCommand::CopyByKey, u"copy"},
    {EditorCommand::PasteByKey, u"paste"},    {EditorCommand::DeleteText, u"delete"},
    {EditorCommand::SelectAll, u"selectall"},
};

/// Another one that changes the text of the code view.
constexpr QStringView insertingEntry = u"Timedate";

QString textOf(QKeyCombination keys)
{
    return QKeySequence(keys).toString(QKeySequence::PortableText);
}

/// The keys of the text, as far as they are bound.
void addTextKeys(std::vector<OtherKey> &keys, const CodeMaxGlobals &globals)
{
    for (const CodeMaxHotKey &hotKey : initialHotKeys()) {
        if (globals.commandFor(hotKey.keys))
            keys.push_back({textOf(hotKey.keys), u"is \"%1\" in the text"_s.arg(hotKeyText(hotKey.command)), true});
    }
    for (const Qt::Key key : movingKeys) {
        for (const Qt::KeyboardModifiers modifiers :
             {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier})
            keys.push_back({textOf(QKeyCombination(modifiers, key)), u"moves, selects or deletes in the text"_s, true});
    }
}

/// The keys of the visual view.
void addPageKeys(std::vector<OtherKey> &keys)
{
    for (const DesignerButton &button : designerButtons()) {
        if (!button.keys.isEmpty())
            keys.push_back({button.keys.toString(), u"is \"%1\" in the visual view"_s.arg(button.tip), true});
    }
}

} // namespace

void WindowKeys::attach(Menus &menus, CommandToolBar &bar, CodeMax &rt)
{
    m_menus = &menus;
    m_bar = &bar;
    m_rt = &rt;
    readKept();
    // The menus have the keys that ship.
    if (!m_kept.isEmpty())
        apply();
}

void WindowKeys::addTextMenus()
{
    if (!m_kept.isEmpty())
        apply();
}

void WindowKeys::readKept()
{
    m_kept.clear();
    const QStringList names = m_settings.owners(UserSetting::MenuKeys);
    if (names.isEmpty())
        return;
    QSet<QString> blocked;
    for (const OtherKey &other : others()) {
        if (!other.yields)
            blocked.insert(other.keys);
    }
    for (const QString &name : names) {
        const auto keys = normalKeys(m_settings.GetSetting(UserSetting::MenuKeys, name, {}));
        if (keys && keysRefusal(*keys).isEmpty() && !blocked.contains(*keys))
            m_kept.insert(name, *keys);
    }
}

void WindowKeys::addPlugin(QAction *entry, const QString &plugin)
{
    const auto isSame = [&](const Plugin &each) { return each.name == plugin; };
    if (std::ranges::any_of(m_plugins, isSame))
        return;
    m_plugins.push_back({entry, plugin});
    if (m_kept.contains(plugin))
        apply();
}

QAction *WindowKeys::entryOf(const CommandKey &command) const
{
    const auto plugin = std::ranges::find_if(m_plugins, [&](const Plugin &each) { return each.name == command.name; });
    return plugin == m_plugins.end() ? m_menus->action(command.name) : plugin->entry.data();
}

std::vector<CommandKey> WindowKeys::commands() const
{
    std::vector<CommandKey> commands = menuCommands();
    for (CommandKey &command : commands) {
        if (!command.caption.endsWith(u' '))
            continue;
        // The visual view gives the formats their captions when it first shows.
        const QString caption = entryOf(command)->text();
        const QString number = command.name.section(u'_', -1);
        command.caption += caption.isEmpty() ? u"Paragraph Format %1"_s.arg(number.toInt() + 1) : plainCaption(caption);
    }
    const auto before = std::ranges::find(commands, u"helpme"_s, &CommandKey::name);
    std::vector<CommandKey> plugins;
    const QString menu = plainCaption(m_menus->menu(menuname::plugins)->title());
    for (const Plugin &plugin : m_plugins)
        plugins.push_back({plugin.name, menu + u" > "_s + plainCaption(plugin.entry->text()), {}, {}});
    commands.insert(before, plugins.begin(), plugins.end());
    applyKept(commands, m_kept);
    return commands;
}

std::vector<OtherKey> WindowKeys::others() const
{
    std::vector<OtherKey> keys = menuMnemonics();
    for (const QString &round : {u"Ctrl+F6"_s, u"Ctrl+Shift+F6"_s})
        keys.push_back({round, u"goes from one part of the window to another"_s});
    addTextKeys(keys, m_rt->globals());
    addPageKeys(keys);
    return keys;
}

QAction *WindowKeys::entryWith(const QKeySequence &keys) const
{
    const std::vector<CommandKey> commands = this->commands();
    const auto found = std::ranges::find(commands, keys.toString(QKeySequence::PortableText), &CommandKey::keys);
    return keys.isEmpty() || found == commands.end() ? nullptr : entryOf(*found);
}

QKeySequence WindowKeys::namedKeys(EditorCommand command, const QKeySequence &first) const
{
    const auto same = std::ranges::find(sameCommands, command, &SameCommand::command);
    if (same != std::end(sameCommands)) {
        if (const QKeySequence keys = m_menus->action(same->entry)->shortcut(); !keys.isEmpty())
            return keys;
    }
    // The control's own keys, as far as they still run the command.
    const bool isFree = !entryWith(first) && m_rt->globals().commandFor(first[0]) == numberOf(command);
    return isFree ? first : QKeySequence();
}

std::optional<bool> WindowKeys::editsText(const QKeySequence &keys) const
{
    const QAction *entry = entryWith(keys);
    if (!entry)
        return std::nullopt;
    const QString name = entry->objectName();
    return name == insertingEntry
        || std::ranges::any_of(sameCommands, [&](const SameCommand &same) { return name == same.entry; });
}

/// Puts the changes in place of what is in effect, which another window may have changed meanwhile. What was kept but
/// isn't in effect is forgotten, so that it doesn't come back when its keys become free.
void WindowKeys::take(std::span<const KeyChange> changes)
{
    readKept();
    const std::vector<CommandKey> inEffect = commands();
    m_kept.clear();
    for (const CommandKey &command : inEffect) {
        if (command.keys != command.shipped)
            m_kept.insert(command.name, command.keys);
    }
    for (const KeyChange &change : changes) {
        m_kept.removeIf([&](const auto &each) { return !change.keys.isEmpty() && each.value() == change.keys; });
        m_kept.insert(change.name, change.keys);
    }
}

/// Writes what differs from what ships, and removes what doesn't. Returns false if something can't be written.
bool WindowKeys::write(std::span<const KeyChange> changes)
{
    const QStringList names = m_settings.owners(UserSetting::MenuKeys);
    const std::vector<CommandKey> all = commands();
    bool written = true;
    for (const CommandKey &command : all) {
        const bool isChanged = std::ranges::find(changes, command.name, &KeyChange::name) != changes.end();
        const bool isKept = names.contains(command.name);
        if (command.keys == command.shipped) {
            if (isKept)
                written = m_settings.RemoveSetting(UserSetting::MenuKeys, command.name) && written;
        } else if (isChanged || !isKept
                   || m_settings.GetSetting(UserSetting::MenuKeys, command.name, {}) != command.keys) {
            written = m_settings.SaveSetting(UserSetting::MenuKeys, command.name, command.keys) && written;
        }
    }
    return written;
}

Result<void> WindowKeys::save(std::span<const KeyChange> changes)
{
    if (changes.empty())
        return {};
    const QHash<QString, QString> before = m_kept;
    take(changes);
    if (!write(changes)) {
        m_kept = before;
        return Error{Error::Code::Unwritable, u"The keys could not be saved."_s};
    }
    apply();
    return {};
}

void WindowKeys::apply()
{
    const std::vector<CommandKey> commands = this->commands();
    // First all old ones go, so that no two commands have the same for a moment.
    std::vector<std::pair<QAction *, QKeySequence>> changed;
    for (const CommandKey &command : commands) {
        const QKeySequence keys = QKeySequence::fromString(command.keys, QKeySequence::PortableText);
        QAction *entry = entryOf(command);
        if (!entry || entry->shortcut() == keys)
            continue;
        entry->setShortcut({});
        changed.emplace_back(entry, keys);
        m_bar->showKeys(command.name, command.keys);
    }
    for (const auto &[entry, keys] : changed)
        entry->setShortcut(keys);
}

} // namespace zephira
