// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/hotkeys.h"

#include "core/editorcommand.h"
#include "editor/qsci.h"

#include <algorithm>
#include <array>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

constexpr auto Ctrl = Qt::ControlModifier;
constexpr auto Shift = Qt::ShiftModifier;
constexpr auto Alt = Qt::AltModifier;
constexpr Qt::KeyboardModifiers CtrlShift = Qt::ControlModifier | Qt::ShiftModifier;
constexpr Qt::KeyboardModifiers None;

using enum EditorCommand;

constexpr CodeMaxHotKey row(EditorCommand command, Qt::KeyboardModifiers modifiers, Qt::Key key)
{
    return {numberOf(command), QKeyCombination(modifiers, key)};
}

/// A row for a command of the editor engine.
constexpr CodeMaxHotKey row(int command, Qt::KeyboardModifiers modifiers, Qt::Key key)
{
    return {command, QKeyCombination(modifiers, key)};
}

// The engine's own keys for moving and selecting are kept; the rows below are all others.
constexpr std::array hotKeys{
    row(FindByKey, Ctrl, Qt::Key_F),
    row(ReplaceByKey, Ctrl, Qt::Key_R),
    row(ReplaceByKey, Ctrl, Qt::Key_H),
    row(PasteByKey, Ctrl, Qt::Key_V),
    row(GoToByKey, Ctrl, Qt::Key_G),
    row(FindNextByKey, None, Qt::Key_F3),
    row(CutByKey, Ctrl, Qt::Key_X),
    row(CutByKey, Shift, Qt::Key_Delete),
    row(CopyByKey, Ctrl, Qt::Key_C),

    row(UndoText, Ctrl, Qt::Key_Z),
    row(UndoText, Alt, Qt::Key_Backspace),
    row(RedoText, Ctrl, Qt::Key_Y),
    row(RedoText, CtrlShift, Qt::Key_Z),
    row(CopyText, Ctrl, Qt::Key_Insert),
    row(PasteText, Shift, Qt::Key_Insert),
    row(DeleteText, None, Qt::Key_Delete),
    row(SelectAll, Ctrl, Qt::Key_A),

    row(FindPrevious, Shift, Qt::Key_F3),
    row(FindWord, Ctrl, Qt::Key_F3),
    row(FindWordBefore, CtrlShift, Qt::Key_F3),
    row(ToggleBookmark, Ctrl, Qt::Key_F2),
    row(NextBookmark, None, Qt::Key_F2),
    row(PreviousBookmark, Shift, Qt::Key_F2),
    row(ClearBookmarks, CtrlShift, Qt::Key_F2),
    row(ToggleOvertype, None, Qt::Key_Insert),
    row(ToggleFold, Ctrl, Qt::Key_F11),
    row(ToggleAllFolds, CtrlShift, Qt::Key_A),
    row(GoToMatchingBrace, Ctrl, Qt::Key_M),
    row(SelectToMatchingBrace, CtrlShift, Qt::Key_M),
    row(ResetZoom, Ctrl, Qt::Key_0),
    row(Sci::SCI_ZOOMIN, Ctrl, Qt::Key_Plus),
    row(Sci::SCI_ZOOMIN, CtrlShift, Qt::Key_Plus),
    row(Sci::SCI_ZOOMIN, Ctrl, Qt::Key_Equal),
    row(Sci::SCI_ZOOMOUT, Ctrl, Qt::Key_Minus),
    row(AddNextOccurrence, Ctrl, Qt::Key_D),
};

struct HotKeyText {
    int command;
    QStringView text;
};

constexpr HotKeyText text(EditorCommand command, QStringView words)
{
    return {numberOf(command), words};
}

constexpr std::array texts{
    text(FindByKey, u"Find"),
    text(ReplaceByKey, u"Find and replace"),
    text(PasteByKey, u"Paste"),
    text(GoToByKey, u"Go to a line"),
    text(FindNextByKey, u"Find the next match"),
    text(CutByKey, u"Cut"),
    text(CopyByKey, u"Copy"),
    text(UndoText, u"Undo"),
    text(RedoText, u"Redo"),
    text(CopyText, u"Copy"),
    text(PasteText, u"Paste"),
    text(DeleteText, u"Delete the selection or the next character"),
    text(SelectAll, u"Select the whole text"),
    text(FindPrevious, u"Find the previous match"),
    text(FindWord, u"Find the word or the selection"),
    text(FindWordBefore, u"Find the word or the selection, backward"),
    text(ToggleBookmark, u"Set or remove a bookmark"),
    text(NextBookmark, u"Go to the next bookmark"),
    text(PreviousBookmark, u"Go to the previous bookmark"),
    text(ClearBookmarks, u"Remove all bookmarks"),
    text(ToggleOvertype, u"Type over or insert"),
    text(ToggleFold, u"Fold or unfold here"),
    text(ToggleAllFolds, u"Fold or unfold everything"),
    text(GoToMatchingBrace, u"Go to the matching bracket"),
    text(SelectToMatchingBrace, u"Select to the matching bracket"),
    text(ResetZoom, u"Normal text size"),
    HotKeyText{Sci::SCI_ZOOMIN, u"Larger text"},
    HotKeyText{Sci::SCI_ZOOMOUT, u"Smaller text"},
    text(AddNextOccurrence, u"Select the word, then also its next occurrence"),
};

} // namespace

std::span<const CodeMaxHotKey> initialHotKeys()
{
    return hotKeys;
}

QStringView hotKeyText(int command)
{
    const auto row = std::ranges::find(texts, command, &HotKeyText::command);
    return row == texts.end() ? QStringView() : row->text;
}

bool isShortcutLike(QKeyCombination keys)
{
    const auto modifiers = keys.keyboardModifiers();
    const bool character = keys.key() >= Qt::Key_Space && keys.key() <= Qt::Key_ydiaeresis;
    const bool control = modifiers & Qt::ControlModifier && !(modifiers & Qt::AltModifier);
    return (character && control) || (keys.key() == Qt::Key_Delete && !control)
        || (keys.key() >= Qt::Key_F1 && keys.key() <= Qt::Key_F35);
}

} // namespace zephira
