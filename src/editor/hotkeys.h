// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/codemaxglobals.h"

#include <QStringView>

#include <span>

namespace zephira {

/// The initial key bindings of the control.
std::span<const CodeMaxHotKey> initialHotKeys();

/// What the command of an initial key does, in a few words for the user; empty for a command that no initial key has.
QStringView hotKeyText(int command);

/// Whether a combination that runs no command is left to the window: letters with Ctrl never type anything.
bool isShortcutLike(QKeyCombination keys);

} // namespace zephira
