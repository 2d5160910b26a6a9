// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

/// Numbers of the editing control's built-in commands. Some keys also run commands of the editor engine, which have
/// numbers from 2000 to 2999 and keep the engine's names.
enum class EditorCommand : int {
    // Run by the program.
    SelectAll = 137, ///< no argument
    GoToLine = 168,  ///< a 0-based line number, or -1 for the control's own dialog
    FindReplaceDialog = 169,
    FindNext = 176,
    FindDialog = 178,
    PropertiesDialog = 224,

    // Usually also offered by menus; a program with such menus unbinds their keys here.
    FindByKey = 129,
    ReplaceByKey = 139,
    PasteByKey = 140,
    GoToByKey = 160,
    FindNextByKey = 161,
    CutByKey = 197,
    CopyByKey = 198,

    // The control's own commands.
    FindPrevious = 1000,
    ToggleBookmark,
    NextBookmark,
    PreviousBookmark,
    ClearBookmarks,
    ToggleOvertype,
    ToggleFold,
    ToggleAllFolds,
    GoToMatchingBrace,
    SelectToMatchingBrace,
    ResetZoom,
    UndoText,
    RedoText,
    CopyText,
    PasteText,
    DeleteText,
    AddNextOccurrence,
    FindWord,
    FindWordBefore,
};

constexpr int numberOf(EditorCommand command)
{
    return static_cast<int>(command);
}

} // namespace zephira
