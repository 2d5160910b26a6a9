// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class TextHelpers;

/// Offers the headings, ids, rules and functions of the document in the window of the command palette. The one that is
/// chosen gets the caret and is shown.
void goToSymbol(TextHelpers &helpers);

} // namespace zephira
