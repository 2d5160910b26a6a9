// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/command.h"
#include "commands/needs.h"
#include "core/translation.h"

#include <QString>

#include <span>

namespace zephira {

/// One row of the menu tree: name, appearance, effect and requirements.
struct MenuItem {
    enum class Kind {
        Entry,
        Check,   ///< an entry with a check mark
        Divider, ///< a line; it has a name only if it is an element of a menu array
        Menu,    ///< a menu with `children`
        Bar,     ///< a disabled text between the menus of the bar
        Title,   ///< a disabled text above the entries of a menu
    };

    QStringView name = {};
    QStringView caption = {};
    QStringView shortcut = {};
    /// See icons.h.
    QStringView icon = {};
    QStringView statusTip = {};
    /// What choosing the entry does.
    Command command = {};
    /// The form that the entry opens, or empty.
    QStringView form = {};
    Kind kind = Kind::Entry;
    std::span<const MenuItem> children = {};
    /// What the entry or menu needs besides its form.
    Need need = Need::Nothing;
    /// In the designer's menus: the command whose status enables the entry, if its effect isn't one.
    DesignerCommand asks = DesignerCommand::None;
    /// Of the translations of caption and tip; nullptr if they are the same in every language.
    const char *context = nullptr;
};

/// Caption and tip as they are shown.
inline QString captionOf(const MenuItem &item)
{
    return translated(item.context, item.caption);
}
inline QString tipOf(const MenuItem &item)
{
    return translated(item.context, item.statusTip);
}

/// The menus of the bar, left to right.
std::span<const MenuItem> menuBarTable();
/// The menus that only appear as pop-ups.
std::span<const MenuItem> popupTable();

/// The row with a name, anywhere in the tree, or nullptr.
const MenuItem *findMenuItem(QStringView name);

/// The menu of the designer's block formats. Its captions are the names of the formats, which the designer reports when
/// its first document is complete.
const MenuItem &blockFormatMenu();

/// The menus that the program fills or pops up, and the entries whose check marks it sets or asks for.
namespace menuname {
inline constexpr QStringView tags = u"Tags";
inline constexpr QStringView fileList = u"mnufilerc";
inline constexpr QStringView customTab = u"cmenu";
inline constexpr QStringView suggestions = u"mnuspell";
inline constexpr QStringView highlightedLines = u"highlightlines";
inline constexpr QStringView tipOfTheDay = u"mnuviewtip";
inline constexpr QStringView plugins = u"mnuplugins";
inline constexpr QStringView pluginEntries = u"mnupluginoptions";
} // namespace menuname

} // namespace zephira
