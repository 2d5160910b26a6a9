// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class TextHelpers;

/// Makes comments of the selections, or of the lines with carets, in the language that stands there; or makes text of
/// comments. Each is one undo step.
void toggleComment(TextHelpers &helpers);

} // namespace zephira
