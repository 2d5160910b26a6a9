// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/codemaxglobals.h"

#include <span>

namespace zephira {

/// The control's own commands beside those of EditorCommand. Keys run a few of the editor engine's too, whose numbers are
/// from 2000 on. The first seven do what menus usually do as well; a program with such menus takes their keys away.
enum EditorFunction : int {
    FindByKey = 129,
    ReplaceByKey = 139,
    CutByOldKey = 140,
    GoToByKey = 160,
    FindNextByKey = 161,
    TransposeLines = 197,
    SelectWord = 198,
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
    CutText,
    CopyText,
    PasteText,
    DeleteText,
};

/// The keys that the control starts with.
std::span<const CodeMaxHotKey> initialHotKeys();

/// Whether a combination that runs no command is to be left to the window: letters with Ctrl never type anything.
bool isShortcutLike(QKeyCombination keys);

} // namespace zephira
