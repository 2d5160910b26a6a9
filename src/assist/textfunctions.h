// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/textcommand.h"

#include <optional>

namespace zephira {

class TextHelpers;

using TextFunction = void (*)(TextHelpers &);

/// What runs a command on the text; nullptr for one that isn't about the text itself.
TextFunction textFunction(TextCommand command);

/// Whether what a command switches is on; nullopt for a command that switches nothing.
std::optional<bool> isSwitchedOn(TextHelpers &helpers, TextCommand command);

} // namespace zephira
