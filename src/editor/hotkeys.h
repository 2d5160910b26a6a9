// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/codemaxglobals.h"

#include <span>

namespace zephira {

/// The initial key bindings of the control.
std::span<const CodeMaxHotKey> initialHotKeys();

/// What the command of an initial hot key does, as the end of a sentence: "deletes the line". Empty for those that a
/// program with menus unbinds.
QStringView hotKeyUse(int command);

/// Whether a combination that runs no command is left to the window: letters with Ctrl never type anything.
bool isShortcutLike(QKeyCombination keys);

} // namespace zephira
