// SPDX-License-Identifier: GPL-3.0-or-later
#include "handbook/shippedkeys.h"

#include "commands/menutable.h"
#include "commands/quicktag.h"
#include "commands/tagsmenu.h"
#include "editor/hotkeys.h"
#include "ftp/ftpcommandtables.h"

#include <QKeySequence>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A caption without the mark of its access key and the dots behind it.
QString plainCaption(QStringView caption)
{
    QString text = caption.toString().remove(u'&');
    while (text.endsWith(u'.'))
        text.chop(1);
    return text;
}

void addMenuRows(std::span<const MenuItem> items, const QString &way, std::vector<KeyRow> &rows)
{
    for (const MenuItem &item : items) {
        const QString command = way + plainCaption(item.caption);
        if (!item.shortcut.isEmpty())
            rows.push_back({command, {item.shortcut.toString()}});
        addMenuRows(item.children, command + u", "_s, rows);
    }
}

/// A group for each menu that has a key.
void addMenuGroups(std::vector<KeyGroup> &groups)
{
    for (const MenuItem &menu : menuBarTable()) {
        KeyGroup group{u"Menu "_s + plainCaption(menu.caption), {}};
        addMenuRows(menu.children, {}, group.rows);
        if (menu.name == menuname::tags) {
            for (const QuickTag &tag : tagsMenu()) {
                if (!tag.shortcut.isEmpty())
                    group.rows.push_back({plainCaption(tag.label), {tag.shortcut.toString()}});
            }
        }
        if (!group.rows.empty())
            groups.push_back(std::move(group));
    }
}

/// The keys of the code view that no menu has; a command's keys in one row.
KeyGroup editorGroup(std::span<const KeyGroup> menus)
{
    const auto isInAMenu = [menus](const QString &keys) {
        return std::ranges::any_of(menus, [&keys](const KeyGroup &group) {
            return std::ranges::any_of(group.rows, [&keys](const KeyRow &row) { return row.keys.contains(keys); });
        });
    };
    KeyGroup group{u"Code view"_s, {}};
    for (const CodeMaxHotKey &hotKey : initialHotKeys()) {
        const QString keys = QKeySequence(hotKey.keys).toString(QKeySequence::PortableText);
        if (isInAMenu(keys))
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
