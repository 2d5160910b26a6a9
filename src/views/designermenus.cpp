// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/designermenus.h"

#include "views/designercommands.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// An entry of the View menu and the designer's switch whose state it shows.
struct DesignerSwitch {
    QStringView entry;
    bool (Designer::*get)() const;
};

constexpr DesignerSwitch switches[] = {
    {u"ViewSub_0", &Designer::showBorders},
    {u"ViewSub_1", &Designer::showDetails},
    {u"ViewSub_2", &Designer::browseMode},
    {u"ViewSub_10", &Designer::snapToGrid},
};

constexpr QStringView blockFormatArray = u"FormatSub";

QString entryName(QStringView array, qsizetype index)
{
    return u"%1_%2"_s.arg(array).arg(index);
}

bool isAvailable(const Designer &designer, DesignerCommand command)
{
    return designer.queryStatus(command) >= DesignerStatus::Enabled;
}

/// The entries for an array of commands, without its separators.
QList<DesignerMenuEntry> commandEntries(QStringView array, const Designer &designer)
{
    QList<DesignerMenuEntry> entries;
    const auto commands = designerMenuCommands(array);
    for (size_t index = 0; index < commands.size(); ++index) {
        if (commands[index] != DesignerCommand::None)
            entries.append({entryName(array, qsizetype(index)), isAvailable(designer, commands[index])});
    }
    return entries;
}

QList<DesignerMenuEntry> insertEntries(Designer &designer, const QStringList &)
{
    QList<DesignerMenuEntry> entries = commandEntries(u"InsertSub", designer);
    // Markup can be pasted into text, but not into an element that is selected as a whole.
    const bool isText = designer.selectionType() != u"Control";
    entries.append({u"InsertButton"_s, isText});
    entries.append({u"InsertHTML"_s, isText});
    return entries;
}

QList<DesignerMenuEntry> tableEntries(Designer &designer, const QStringList &)
{
    return commandEntries(u"TableSub", designer);
}

QList<DesignerMenuEntry> positionEntries(Designer &designer, const QStringList &)
{
    QList<DesignerMenuEntry> entries = commandEntries(u"D2DSub", designer);
    const int position = designer.queryStatus(DesignerCommand::AbsolutePosition);
    DesignerMenuEntry &first = entries.first();
    first.enabled = position == DesignerStatus::On || position == DesignerStatus::Enabled;
    first.caption =
        position == DesignerStatus::On ? u"Set Position Attribute To 1D"_s : u"Set Position Attribute To Absolute"_s;
    entries.last().checked = designer.queryStatus(DesignerCommand::LockElement) == DesignerStatus::On;
    return entries;
}

QList<DesignerMenuEntry> formatEntries(Designer &designer, const QStringList &blockFormats)
{
    const bool isOpen = isAvailable(designer, DesignerCommand::GetBlockFormat);
    const QString current = isOpen
        ? designer.execCommand(DesignerCommand::GetBlockFormat, DesignerPrompting::DontPromptUser).toString()
        : QString();
    QList<DesignerMenuEntry> entries;
    for (qsizetype index = 0; index < blockFormats.size(); ++index)
        entries.append({entryName(blockFormatArray, index), isOpen, isOpen && blockFormats[index] == current});
    return entries;
}

QList<DesignerMenuEntry> viewEntries(Designer &designer, const QStringList &)
{
    QList<DesignerMenuEntry> entries;
    for (const DesignerSwitch &row : switches)
        entries.append({row.entry.toString(), std::nullopt, (designer.*row.get)()});
    return entries;
}

struct MenuRow {
    QStringView menu;
    QList<DesignerMenuEntry> (*entries)(Designer &, const QStringList &);
};

constexpr MenuRow menus[] = {
    {u"View", viewEntries},   {u"Insert", insertEntries}, {u"Format", formatEntries},
    {u"Table", tableEntries}, {u"d2d", positionEntries},
};

} // namespace

QList<DesignerMenuEntry> designerMenuEntries(QStringView menu, Designer &designer, const QStringList &blockFormats)
{
    const auto row = std::ranges::find(menus, menu, &MenuRow::menu);
    return row == std::end(menus) ? QList<DesignerMenuEntry>() : row->entries(designer, blockFormats);
}

} // namespace zephira
