// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class TextHelpers;

/// Makes markup or style sheets of the abbreviation before each caret.
void expandAbbreviation(TextHelpers &helpers);

/// Asks for an abbreviation to wrap the selections with.
void wrapWithAbbreviation(TextHelpers &helpers);

} // namespace zephira
