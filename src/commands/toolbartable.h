// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/command.h"
#include "commands/needs.h"

#include <QString>

#include <span>

namespace zephira {

/// An entry of a button's pull-down.
struct PullDownEntry {
    QStringView key = {};
    QStringView caption = {};
    QStringView icon = {};
    QStringView statusTip = {};
    /// What choosing the entry does.
    Command command = {};
    /// The form that the entry opens, or empty.
    QStringView form = {};
};

/// One button of a toolbar; without a key it is a separator.
struct ToolButton {
    QStringView key = {};
    /// Without the keys of `entry`, which are put behind it.
    QStringView tip = {};
    QStringView icon = {};
    Command command = {};
    /// As in PullDownEntry.
    QStringView form = {};
    std::span<const PullDownEntry> pullDown = {};
    /// What the button needs besides its form.
    Need need = Need::Nothing;
    /// The menu entry that does the same, or empty.
    QStringView entry = {};
};

struct ToolBarTable {
    QStringView name;
    QStringView title;
    std::span<const ToolButton> buttons;
};

/// The standard toolbar `tBar`.
const ToolBarTable &standardToolBar();

/// The formatting toolbar `Toolbar1`. Its markup buttons are at the positions 1 to 12, which count from 1 and include
/// separators; special characters, FTP and revert, which serve any language, are at 13 to 15.
const ToolBarTable &formattingToolBar();

} // namespace zephira
