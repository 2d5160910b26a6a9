// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class TextHelpers;

/// Commands on whole lines: those of each selection, or with a caret in them. Each is one undo step, and leaves a read-only
/// text alone.

/// A line alone is joined with the next one.
void joinLines(TextHelpers &helpers);
/// Where nothing is selected, of all lines.
void removeTrailingBlanks(TextHelpers &helpers);
/// Where nothing is selected, all lines.
void sortLines(TextHelpers &helpers);
void deleteLines(TextHelpers &helpers);
/// The selected text once more behind itself, or the line once more below.
void duplicate(TextHelpers &helpers);
/// Nothing moves if one of the lines is already the first, or the last one.
void moveLinesUp(TextHelpers &helpers);
void moveLinesDown(TextHelpers &helpers);

} // namespace zephira
