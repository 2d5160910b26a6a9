// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/designercommands.h"

#include <algorithm>

namespace zephira {

namespace {

using enum DesignerCommand;

// The user sees what a button does; its key is just an internal name.
constexpr DesignerButton buttons[] = {
    {u"Bold", Bold, u"Bold", u"format-text-bold", u"Ctrl+B"},
    {u"Italic", Italic, u"Italic", u"format-text-italic", u"Ctrl+I"},
    {u"Underline", Underline, u"Underline", u"format-text-underline", u"Ctrl+U"},
    {u"Numbers", OrderedList, u"Numbered list", u"format-list-ordered"},
    {u"Bullets", UnorderedList, u"Bulleted list", u"format-list-unordered"},
    {u"Outdent", Indent, u"Indent", u"format-indent-more"},
    {u"Indent", Outdent, u"Outdent", u"format-indent-less"},
    {u"LeftJustify", JustifyLeft, u"Align left", u"format-justify-left"},
    {u"Center", JustifyCenter, u"Center", u"format-justify-center"},
    {u"RightJustify", JustifyRight, u"Align right", u"format-justify-right"},
    {u"Color", SetForeColor, u"Text color", u"format-text-color"},
};

constexpr DesignerCommand editCommands[] = {Undo, Redo, None, Cut, Copy, Paste, SelectAll, None, FindText};

constexpr DesignerCommand insertCommands[] = {Image, Hyperlink};

constexpr DesignerCommand tableCommands[] = {
    InsertTable, None,          InsertRow,   InsertColumn, InsertCell, None,
    DeleteRows,  DeleteColumns, DeleteCells, None,         MergeCells, SplitCell,
};

constexpr DesignerCommand positionCommands[] = {
    AbsolutePosition, BringToFront,  SendToBack, BringForward, SendBackward,
    BringAboveText,   SendBelowText, None,       LockElement,
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
