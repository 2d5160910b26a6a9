// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/textfunctions.h"

#include "assist/abbreviationcommands.h"
#include "assist/caretcommands.h"
#include "assist/colourswatches.h"
#include "assist/gotosymbol.h"
#include "assist/lastedit.h"
#include "assist/linecommands.h"
#include "assist/pairs/commentcommand.h"
#include "assist/pairs/elements.h"
#include "assist/pairs/enclosing.h"
#include "assist/pairs/typedpairs.h"
#include "assist/texthelpers.h"
#include "completion/completer.h"
#include "problems/problems.h"

#include <algorithm>
#include <array>

namespace zephira {

namespace {

struct Row {
    TextCommand command;
    TextFunction run;
    /// For a switch: whether it is on.
    bool (*isOn)(TextHelpers &) = nullptr;
};

void complete(TextHelpers &helpers)
{
    helpers.completer().complete();
}

bool completesWhileTyping(TextHelpers &helpers)
{
    return helpers.completer().isOn();
}

void switchCompletion(TextHelpers &helpers)
{
    helpers.completer().setOn(!helpers.completer().isOn());
}

void listProblems(TextHelpers &helpers)
{
    helpers.problems().list();
}

void nextProblem(TextHelpers &helpers)
{
    helpers.problems().goToNext();
}

void previousProblem(TextHelpers &helpers)
{
    helpers.problems().goToPrevious();
}

bool marksProblems(TextHelpers &helpers)
{
    return helpers.problems().isOn();
}

void switchProblems(TextHelpers &helpers)
{
    helpers.problems().setOn(!helpers.problems().isOn());
}

using enum TextCommand;

constexpr std::array rows{
    Row{AutoClose, switchAutoClose, closesPairs},
    Row{Capitalise, capitalise},
    Row{CaretInEachLine, caretInEachLine},
    Row{ChangeColour, changeColour},
    Row{Complete, complete},
    Row{CompleteWhileTyping, switchCompletion, completesWhileTyping},
    Row{DeleteLines, deleteLines},
    Row{Duplicate, duplicate},
    Row{ExpandAbbreviation, expandAbbreviation},
    Row{GoToLastEdit, goToLastEdit},
    Row{GoToSymbol, goToSymbol},
    Row{JoinLines, joinLines},
    Row{ListProblems, listProblems},
    Row{MakeLowerCase, makeLowerCase},
    Row{MakeUpperCase, makeUpperCase},
    Row{MarkProblems, switchProblems, marksProblems},
    Row{MoveLinesDown, moveLinesDown},
    Row{MoveLinesUp, moveLinesUp},
    Row{NextProblem, nextProblem},
    Row{PreviousProblem, previousProblem},
    Row{RemoveTrailingBlanks, removeTrailingBlanks},
    Row{RenameTag, renameTag},
    Row{SelectAllOccurrences, selectAllOccurrences},
    Row{SelectEnclosing, selectEnclosing},
    Row{SelectInner, selectInner},
    Row{ShowSwatches, switchSwatches, showsSwatches},
    Row{SortLines, sortLines},
    Row{ToggleComment, toggleComment},
    Row{WrapWithAbbreviation, wrapWithAbbreviation},
};

} // namespace

TextFunction textFunction(TextCommand command)
{
    const auto *const row = std::ranges::find(rows, command, &Row::command);
    return row == rows.end() ? nullptr : row->run;
}

std::optional<bool> isSwitchedOn(TextHelpers &helpers, TextCommand command)
{
    const auto *const row = std::ranges::find(rows, command, &Row::command);
    return row == rows.end() || !row->isOn ? std::nullopt : std::optional(row->isOn(helpers));
}

} // namespace zephira
