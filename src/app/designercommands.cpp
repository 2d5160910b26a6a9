// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/designercommands.h"

#include <algorithm>

namespace zephira {

namespace {

using enum DesignerCommand;

constexpr DesignerButton buttons[] = {
    {u"Bold", Bold},
    {u"Italic", Italic},
    {u"Underline", Underline},
    {u"Numbers", OrderedList},
    {u"Bullets", UnorderedList},
    {u"Outdent", Indent},
    {u"Indent", Outdent},
    {u"LeftJustify", JustifyLeft},
    {u"Center", JustifyCenter},
    {u"RightJustify", JustifyRight},
    {u"Color", SetForeColor},
};

constexpr DesignerCommand editCommands[] = {Undo, Redo, None, Cut, Copy, Paste, SelectAll, None, FindText};

constexpr DesignerCommand insertCommands[] = {Image, Hyperlink};

constexpr DesignerCommand tableCommands[] = {
    InsertTable, None,          InsertRow,   InsertColumn, InsertCell, None,
    DeleteRows,  DeleteColumns, DeleteCells, None,         MergeCells, SplitCell,
};

constexpr DesignerCommand positionCommands[] = {
    AbsolutePosition, BringToFront,   SendToBack,    BringForward, SendBackward,
    BringAboveText,   SendBelowText, None,         LockElement,
};

struct MenuArray {
    QStringView name;
    std::span<const DesignerCommand> commands;
};

constexpr MenuArray arrays[] = {
    {u"edit", editCommands},
    {u"InsertSub", insertCommands},
    {u"TableSub", tableCommands},
    {u"D2DSub", positionCommands},
};

} // namespace

std::span<const DesignerButton> designerButtons()
{
    return buttons;
}

std::span<const DesignerCommand> designerMenuCommands(QStringView array)
{
    const auto row = std::ranges::find_if(arrays, [&](const MenuArray &entry) { return entry.name == array; });
    return row == std::end(arrays) ? std::span<const DesignerCommand>{} : row->commands;
}

} // namespace zephira
