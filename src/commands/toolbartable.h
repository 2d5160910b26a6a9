// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <span>

namespace zephira {

/// An entry of a button's pull-down.
struct PullDownEntry {
    QStringView key = {};
    QStringView caption = {};
    QStringView icon = {};
    QStringView statusTip = {};
    /// The form that the entry opens modally, or that its command needs.
    QStringView form = {};
};

/// One button of a toolbar; without a key it is a separator.
struct ToolButton {
    QStringView key = {};
    QStringView tip = {};
    QStringView icon = {};
    QStringView form = {};
    /// Markup around the selection, for buttons that only do that.
    QStringView before = {};
    QStringView after = {};
    std::span<const PullDownEntry> pullDown = {};
};

struct ToolBarTable {
    QStringView name;
    QStringView title;
    std::span<const ToolButton> buttons;
};

/// The standard toolbar `tBar`.
const ToolBarTable &standardToolBar();

/// The formatting toolbar `Toolbar1`. Languages without markup close its positions 1 to 15 and open 13 to 15 again
/// (positions count from 1, separators included). The two separators put special characters, FTP and revert, which
/// serve any language, at 13 to 15, and all that is about markup at 1 to 12.
const ToolBarTable &formattingToolBar();

/// The formatting toolbar's button or pull-down entry of a key, or nullptr.
const ToolButton *findFormattingButton(QStringView key);
const PullDownEntry *findPullDownEntry(QStringView key);

} // namespace zephira
