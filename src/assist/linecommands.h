// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class TextHelpers;

/// Commands on whole lines. Each is one undo step, and leaves a read-only text alone.
void joinLines(TextHelpers &helpers);
void removeTrailingBlanks(TextHelpers &helpers);

} // namespace zephira
