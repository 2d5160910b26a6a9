// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class TextHelpers;

/// Selects every occurrence of the selected text, or of the word at the caret, with the same letters.
void selectAllOccurrences(TextHelpers &helpers);
/// Puts a caret at the end of each selected line.
void caretInEachLine(TextHelpers &helpers);

/// The selected texts, or the words at the carets, in other letters. They stay selected.
void makeUpperCase(TextHelpers &helpers);
void makeLowerCase(TextHelpers &helpers);
void capitalise(TextHelpers &helpers);

/// The number of carets that one command makes; more would be slow to type with.
constexpr int mostCarets = 10'000;

} // namespace zephira
