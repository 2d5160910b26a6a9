// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

/// The commands that help with writing in the code view, and the windows and panels that belong to it. They are offered
/// by the text's own context menu, by the command palette and on keys.
enum class TextCommand {
    AutoClose,
    Capitalise,
    CaretInEachLine,
    ChangeColour,
    CommandPalette,
    Complete,
    CompleteWhileTyping,
    DeleteLines,
    Duplicate,
    ExpandAbbreviation,
    FindInProject,
    GoToLastEdit,
    GoToSymbol,
    JoinLines,
    ListProblems,
    LivePage,
    MakeLowerCase,
    MakeUpperCase,
    MarkProblems,
    MoveLinesDown,
    MoveLinesUp,
    NextProblem,
    PreviousProblem,
    RemoveTrailingBlanks,
    RenameTag,
    SelectAllOccurrences,
    SelectEnclosing,
    SelectInner,
    ShowBreadcrumb,
    ShowSwatches,
    SortLines,
    ToggleComment,
    WrapWithAbbreviation,
};

} // namespace zephira
