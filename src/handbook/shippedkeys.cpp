// SPDX-License-Identifier: GPL-3.0-or-later
#include "handbook/shippedkeys.h"

#include "commands/menukeys.h"
#include "editor/hotkeys.h"
#include "ftp/ftpcommandtables.h"

#include <QKeySequence>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A group for each menu that has a key, in the order of the menus.
void addMenuGroups(std::vector<KeyGroup> &groups)
{
    const std::vector<CommandKey> commands = barCommands();
    for (const CommandKey &command : commands) {
        if (command.shipped.isEmpty())
            continue;
        QStringList way = command.caption.split(u" > "_s);
        const QString title = u"Menu "_s + way.takeFirst();
        if (groups.empty() || groups.back().title != title)
            groups.push_back({title, {}});
        groups.back().rows.push_back({way.join(u", "_s), {command.shipped}});
    }
}

/// The keys of the code view: those of its own menus, then the engine's that no menu has; a command's keys in one row.
KeyGroup editorGroup(std::span<const KeyGroup> menus)
{
    const auto isInAMenu = [menus](const QString &keys) {
        return std::ranges::any_of(menus, [&keys](const KeyGroup &group) {
            return std::ranges::any_of(group.rows, [&keys](const KeyRow &row) { return row.keys.contains(keys); });
        });
    };
    KeyGroup group{u"Code view"_s, {}};
    const std::vector<CommandKey> commands = textCommands();
    for (const CommandKey &command : commands) {
        if (!command.shipped.isEmpty())
            group.rows.push_back({command.caption.section(u" > "_s, 1).replace(u" > "_s, u", "_s), {command.shipped}});
    }
    const auto isTaken = [&](const QString &keys) {
        return isInAMenu(keys)
            || std::ranges::any_of(group.rows, [&](const KeyRow &row) { return row.keys.contains(keys); });
    };
    for (const CodeMaxHotKey &hotKey : initialHotKeys()) {
        const QString keys = QKeySequence(hotKey.keys).toString(QKeySequence::PortableText);
        if (isTaken(keys))
            continue;
        const QString command = hotKeyText(hotKey.command).toString();
        const auto row = std::ranges::find(group.rows, command, &KeyRow::command);
        if (row != group.rows.end())
            row->keys.append(keys);
        else
            group.rows.push_back({command, {keys}});
    }
    return group;
}

KeyGroup transferGroup()
{
    KeyGroup group{u"File transfer"_s, {}};
    for (const std::span<const FtpToolKey> keys : {localToolKeys(), remoteToolKeys()}) {
        for (const FtpToolKey &key : keys) {
            if (!key.pressed.isEmpty())
                group.rows.push_back({key.tip.toString(), {key.pressed.toString()}});
        }
    }
    return group;
}

} // namespace

std::vector<KeyGroup> shippedKeys()
{
    std::vector<KeyGroup> groups;
    addMenuGroups(groups);
    groups.push_back(editorGroup(groups));
    groups.push_back(transferGroup());
    return groups;
}

} // namespace zephira
