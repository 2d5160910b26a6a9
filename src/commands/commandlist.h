// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/needs.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace zephira {

/// A place in the window where a command can be chosen.
struct CommandWay {
    enum class Home {
        Menu,     ///< an entry of the menu bar, of the tag menu or of the text's menus; `name` is the entry's
        Popup,    ///< an entry of a menu that belongs to what was clicked
        Standard, ///< the standard toolbar; `name` is the key of a button or of an entry of its pull-down
        Formatting,
        Palette,  ///< toolbar `bar` of the tool palette; `position` counts its buttons from 0
        Heading,  ///< heading size `position` of the pull-down in toolbar `bar` of the tool palette
        Designer, ///< the designer's toolbar
    };

    Home home = Home::Menu;
    QString name = {};
    int bar = 0;
    int position = 0;
    /// What the place needs, its menu included.
    Need need = Need::Nothing;

    friend bool operator==(const CommandWay &, const CommandWay &) = default;
};

/// A command as a list of all commands shows it.
struct ListedCommand {
    /// Stays the same from version to version, so that something can be remembered of the command.
    QString name;
    QString caption;
    /// The way to it, such as "File > New".
    QString place;
    /// What it does, or what it writes.
    QString tip = {};
    /// What else it is called, where it can be chosen in several places.
    QStringList others = {};
    /// The places, the first one first.
    std::vector<CommandWay> ways = {};
    /// Keys that no menu entry has, or empty.
    QString keys = {};

    friend bool operator==(const ListedCommand &, const ListedCommand &) = default;
};

/// Every command of the menus, the toolbars, the tool palette, the designer's toolbar and the pop-up menus, in this order.
/// What can be chosen in several places is one command: a button that does what an entry does, the same form, the same
/// markup. Plug-ins, which come while the program runs, aren't in it.
std::vector<ListedCommand> listedCommands();

/// Why a command can't be chosen when something that it needs isn't so.
QString whyDisabled(CommandWay::Home home, Need need);

} // namespace zephira
