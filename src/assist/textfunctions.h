// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/textcommand.h"

namespace zephira {

class TextHelpers;

using TextFunction = void (*)(TextHelpers &);

/// What runs a command on the text; nullptr for one that isn't about the text itself.
TextFunction textFunction(TextCommand command);

} // namespace zephira
