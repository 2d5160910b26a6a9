// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/commandlist.h"

#include "commands/helppages.h"
#include "commands/menukeys.h"
#include "commands/menutable.h"
#include "commands/palettetable.h"
#include "commands/tagsmenu.h"
#include "commands/texttable.h"
#include "commands/toolbartable.h"
#include "core/translation.h"
#include "views/designercommands.h"

#include <QCoreApplication>
#include <QStringBuilder>

#include <algorithm>
#include <utility>
#include <variant>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using Home = CommandWay::Home;

constexpr QStringView divider = u" > ";

/// Markup that a quick tag writes.
struct Markup {
    TagKind kind = TagKind::Separator;
    QStringView before;
    QStringView after;

    friend bool operator==(const Markup &, const Markup &) = default;
};

/// The name of a form that opens.
struct OfForm {
    QString name;

    friend bool operator==(const OfForm &, const OfForm &) = default;
};

/// What a command does, to tell whether two rows have the same. Nothing is equal to a monostate.
using Doing = std::variant<std::monostate, Effect, Markup, OfForm>;

Doing doingOf(const Command &command, QStringView form)
{
    if (const auto *tag = std::get_if<InsertsTag>(&command.effect)) {
        const QuickTag &row = *tag->tag;
        if (row.kind != TagKind::TagEditor)
            return Markup{row.kind, row.before, row.after};
        // On a page of its own, the tag editor is a command of its own.
        return row.before.isEmpty() ? Doing(OfForm{row.form().toString()}) : Doing();
    }
    if (!form.isEmpty())
        return OfForm{form.toString()};
    return command.effect;
}

Doing doingOf(const QuickTag &tag)
{
    switch (tag.kind) {
    case TagKind::Wrap:
    case TagKind::Behind:
    case TagKind::Replace:
        return Markup{tag.kind, tag.before, tag.after};
    case TagKind::Form:
        return OfForm{tag.before.toString()};
    case TagKind::Help:
        return Effect{static_cast<void (*)(const AppContext &)>(openHelp)};
    default:
        return {};
    }
}

/// What a quick tag writes, in one line.
QString markupTip(const QuickTag &tag)
{
    const bool writes = tag.kind == TagKind::Wrap || tag.kind == TagKind::Behind || tag.kind == TagKind::Replace;
    return writes
        ? QCoreApplication::translate("Commands", "Insert %1").arg(QString(tag.before % tag.after).simplified())
        : QString();
}

/// Puts the list together. A command that is already in it gets one more way.
class CommandLister
{
public:
    void add(const Doing &doing, ListedCommand command)
    {
        const auto same = std::ranges::find_if(m_rows, [&](const Row &row) {
            return row.doing == doing && !std::holds_alternative<std::monostate>(doing);
        });
        if (same == m_rows.end()) {
            m_rows.push_back({doing, std::move(command)});
            return;
        }
        ListedCommand &known = same->command;
        if (command.caption != known.caption && !known.others.contains(command.caption))
            known.others.append(command.caption);
        if (known.tip.isEmpty())
            known.tip = command.tip;
        if (known.keys.isEmpty())
            known.keys = command.keys;
        std::ranges::move(command.ways, std::back_inserter(known.ways));
    }

    /// Adds a way to the command of an entry.
    void addTo(QStringView entry, const QString &caption, const CommandWay &way)
    {
        const auto known = std::ranges::find_if(m_rows, [&](const Row &row) { return row.command.name == entry; });
        if (known->command.caption != caption && !known->command.others.contains(caption))
            known->command.others.append(caption);
        known->command.ways.push_back(way);
    }

    std::vector<ListedCommand> take()
    {
        std::vector<ListedCommand> commands;
        for (Row &row : m_rows)
            commands.push_back(std::move(row.command));
        return commands;
    }

private:
    struct Row {
        Doing doing;
        ListedCommand command;
    };
    std::vector<Row> m_rows;
};

void addMenus(CommandLister &list, std::span<const MenuItem> items, const QString &place, Need outer, Home home)
{
    for (const MenuItem &item : items) {
        const Need need = item.need == Need::Nothing ? outer : item.need;
        const QString caption = plainCaption(captionOf(item));
        if (item.kind == MenuItem::Kind::Menu) {
            addMenus(list, item.children, place.isEmpty() ? caption : place % divider % caption, need, home);
        } else if (hasEffect(item.command) && item.need != Need::Plugin) {
            const QString name = item.name.toString();
            list.add(doingOf(item.command, item.form),
                     {name, caption, place, tipOf(item), {}, {{home, name, 0, 0, need}}});
        }
        if (item.name != menuname::tags)
            continue;
        for (const QuickTag &tag : tagsMenu()) {
            const QString name = tag.key.toString();
            list.add(
                doingOf({InsertsTag{&tag}}, {}),
                {name, plainCaption(tag.label.toString()), caption, markupTip(tag), {}, {{home, name, 0, 0, need}}});
        }
    }
}

void addToolBar(CommandLister &list, const ToolBarTable &table, Home home)
{
    const QString place = QCoreApplication::translate("Commands", "%1 toolbar").arg(table.title);
    for (const ToolButton &button : table.buttons) {
        if (button.key.isEmpty())
            continue;
        const QString key = button.key.toString();
        const CommandWay way{home, key, 0, 0, button.need};
        if (button.entry.isEmpty())
            list.add(doingOf(button.command, button.form),
                     {table.name % u'_' % key, button.tip.toString(), place, {}, {}, {way}});
        else
            list.addTo(button.entry, button.tip.toString(), way);
        for (const PullDownEntry &row : button.pullDown) {
            const QString rowKey = row.key.toString();
            list.add(doingOf(row.command, row.form),
                     {table.name % u'_' % rowKey,
                      plainCaption(row.caption.toString()),
                      place % divider % button.tip,
                      row.statusTip.toString(),
                      {},
                      {{home, rowKey, 0, 0, button.need}}});
        }
    }
}

void addPalette(CommandLister &list)
{
    int bar = 0;
    for (const PaletteToolbar &table : paletteToolbars()) {
        const QString place = QCoreApplication::translate("Commands", "Tool palette") % divider % table.caption;
        int position = 0;
        for (const QuickTag &tag : table.buttons) {
            const CommandWay way{Home::Palette, {}, bar, position++};
            const QString caption = tag.label.toString();
            const QString key = tag.key.isEmpty() ? QString::number(way.position) : tag.key.toString();
            const QString name = u"Toolbar_%1_%2"_s.arg(bar).arg(key);
            if (tag.kind == TagKind::Headings) {
                for (int size = 1; size <= 6; ++size)
                    list.add({},
                             {name % QString::number(size),
                              QCoreApplication::translate("Commands", "Heading %1").arg(size),
                              place,
                              caption,
                              {},
                              {{Home::Heading, {}, bar, size}}});
            } else if (tag.kind != TagKind::Separator) {
                list.add(doingOf(tag), {name, caption, place, markupTip(tag), {}, {way}});
            }
        }
        ++bar;
    }
}

void addDesigner(CommandLister &list)
{
    for (const DesignerButton &button : designerButtons()) {
        const QString key = button.key.toString();
        list.add(Effect{button.command},
                 {u"Toolbar2_"_s % key,
                  button.tip.toString(),
                  QCoreApplication::translate("Commands", "Visual designer toolbar"),
                  {},
                  {},
                  {{Home::Designer, key, 0, 0, Need::VisualView}},
                  button.keys.toString()});
    }
}

void addPopups(CommandLister &list)
{
    static constexpr std::pair<QStringView, QStringView> places[] = {
        {menuname::fileList, ZEPHIRA_TEXT("Commands", "Menu of the file list")},
        {menuname::customTab, ZEPHIRA_TEXT("Commands", "Menu of a tab of snippets")},
    };
    for (const auto &[menu, place] : places)
        addMenus(list, findMenuItem(menu)->children, translated("Commands", place), Need::Nothing, Home::Popup);
}

} // namespace

std::vector<ListedCommand> listedCommands()
{
    CommandLister list;
    addMenus(list, menuBarTable(), {}, Need::Nothing, Home::Menu);
    addMenus(list, textMenuTable(), QCoreApplication::translate("Commands", "Code view"), Need::Nothing, Home::Menu);
    addToolBar(list, standardToolBar(), Home::Standard);
    addToolBar(list, formattingToolBar(), Home::Formatting);
    addPalette(list);
    addDesigner(list);
    addPopups(list);
    return list.take();
}

QString whyDisabled(CommandWay::Home home, Need need)
{
    switch (need) {
    case Need::Markup:
        return QCoreApplication::translate("Commands", "Only in a document of a markup language");
    case Need::SourceView:
        return QCoreApplication::translate("Commands", "Only in the code view");
    case Need::VisualView:
        return QCoreApplication::translate("Commands", "Only in the visual view");
    case Need::QuickTags:
        return QCoreApplication::translate("Commands", "Only in the code view, for a markup language");
    case Need::ListedFile:
        return QCoreApplication::translate("Commands", "Needs a file that is selected in the file list");
    case Need::PageText:
        return QCoreApplication::translate("Commands", "Not while an element of the page is selected as a whole");
    case Need::Plugin:
        return QCoreApplication::translate("Commands", "Needs a plug-in");
    case Need::Nothing:
        break;
    }
    if (home == Home::Popup)
        return QCoreApplication::translate("Commands", "Belongs to what its menu was opened on");
    // A button of the tool palette is only disabled where nothing could run it.
    return home == Home::Palette
        ? QCoreApplication::translate("Commands", "Needs a program that this system doesn't have")
        : QCoreApplication::translate("Commands", "Not possible here");
}

} // namespace zephira
