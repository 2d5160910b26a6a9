// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/textedits.h"

namespace zephira {

/// Neighbouring lines from first to last, 0-based.
struct LineBlock {
    qsizetype first = 0;
    qsizetype last = 0;
};

/// The lines of the selections. A line in which a selection ends before the first character doesn't count. Blocks that
/// touch each other are one.
std::vector<LineBlock> lineBlocks(const SciEngine &engine, const TextSelections &selections);
/// The same where something is selected; otherwise all lines, except for an empty one behind the last line end.
std::vector<LineBlock> selectedBlocks(const SciEngine &engine, const TextSelections &selections);

/// A place by its line and the bytes before it in the line.
struct LinePlace {
    qsizetype line = 0;
    qsizetype column = 0;
};

LinePlace linePlace(const SciEngine &engine, qsizetype position);
/// The byte position of a place, or of the end of its line if that is shorter. It isn't within a character.
qsizetype positionOf(const SciEngine &engine, const LinePlace &place);

/// The line end that the Enter key types.
QByteArray typedLineEnd(const SciEngine &engine);

} // namespace zephira
