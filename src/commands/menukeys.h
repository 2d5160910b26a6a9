// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/commandkeys.h"

#include <QHash>
#include <QString>

#include <vector>

namespace zephira {

/// The caption of an entry or a menu without the marks for menus: "Go To" for "&Go To...".
QString plainCaption(QString caption);

/// Every command of the menu bar with the keys that ship, in the order of the menus. Plug-ins come while the program runs;
/// pop-up menus, which work on what was clicked, have no keys.
std::vector<CommandKey> barCommands();
/// The same for the code view's own menus.
std::vector<CommandKey> textCommands();
/// Both, in this order.
std::vector<CommandKey> menuCommands();

/// Gives each command its keys: those that the user has kept, by the command's name, else those that ship. No keys run
/// two commands: what the user has kept goes before what ships, and the first command before later ones, for which what
/// ships is tried.
void applyKept(std::vector<CommandKey> &commands, const QHash<QString, QString> &kept);

/// The keys that open the menus of the bar, as their captions say.
std::vector<OtherKey> menuMnemonics();

} // namespace zephira
