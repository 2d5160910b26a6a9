// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/textfunctions.h"

#include "assist/linecommands.h"

#include <algorithm>
#include <array>

namespace zephira {

namespace {

struct Row {
    TextCommand command;
    TextFunction run;
};

using enum TextCommand;

constexpr std::array rows{
    Row{JoinLines, joinLines},
    Row{RemoveTrailingBlanks, removeTrailingBlanks},
};

} // namespace

TextFunction textFunction(TextCommand command)
{
    const auto *const row = std::ranges::find(rows, command, &Row::command);
    return row == rows.end() ? nullptr : row->run;
}

} // namespace zephira
