// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/menukeys.h"

#include "commands/menutable.h"
#include "commands/tagsmenu.h"
#include "commands/texttable.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

void addCommands(std::vector<CommandKey> &commands, const QString &path, std::span<const MenuItem> items)
{
    for (const MenuItem &item : items) {
        const QString caption = path + plainCaption(captionOf(item));
        const bool canBeChosen = item.kind == MenuItem::Kind::Entry || item.kind == MenuItem::Kind::Check;
        if (item.kind == MenuItem::Kind::Menu)
            addCommands(commands, caption + u" > "_s, item.children);
        else if (canBeChosen && item.need != Need::Plugin)
            commands.push_back({item.name.toString(), caption, item.shortcut.toString(), item.shortcut.toString()});
        if (item.name != menuname::tags)
            continue;
        for (const QuickTag &tag : tagsMenu()) {
            commands.push_back({tag.key.toString(), caption + u" > "_s + plainCaption(tag.label.toString()),
                                tag.shortcut.toString(), tag.shortcut.toString()});
        }
    }
}

} // namespace

QString plainCaption(QString caption)
{
    caption.remove(u'&');
    while (caption.endsWith(u'.'))
        caption.chop(1);
    return caption;
}

std::vector<CommandKey> barCommands()
{
    std::vector<CommandKey> commands;
    addCommands(commands, {}, menuBarTable());
    return commands;
}

std::vector<CommandKey> textCommands()
{
    std::vector<CommandKey> commands;
    addCommands(commands, QCoreApplication::translate("Commands", "Code View") + u" > "_s, textMenuTable());
    return commands;
}

std::vector<CommandKey> menuCommands()
{
    std::vector<CommandKey> commands = barCommands();
    std::ranges::move(textCommands(), std::back_inserter(commands));
    return commands;
}

void applyKept(std::vector<CommandKey> &commands, const QHash<QString, QString> &kept)
{
    QSet<QString> taken;
    std::vector<CommandKey *> others;
    for (CommandKey &command : commands) {
        const auto own = kept.constFind(command.name);
        if (own == kept.constEnd() || taken.contains(*own)) {
            others.push_back(&command);
            continue;
        }
        command.keys = *own;
        if (!own->isEmpty())
            taken.insert(*own);
    }
    for (CommandKey *command : others) {
        command->keys = taken.contains(command->shipped) ? QString() : command->shipped;
        if (!command->keys.isEmpty())
            taken.insert(command->keys);
    }
}

std::vector<OtherKey> menuMnemonics()
{
    std::vector<OtherKey> keys;
    for (const MenuItem &menu : menuBarTable()) {
        const QString caption = menu.caption.toString();
        const qsizetype mark = caption.indexOf(u'&');
        if (mark >= 0 && mark + 1 < caption.size())
            keys.push_back({u"Alt+"_s + caption[mark + 1].toUpper(), u"opens the menu "_s + plainCaption(caption)});
    }
    return keys;
}

} // namespace zephira
