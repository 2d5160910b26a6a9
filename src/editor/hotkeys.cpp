// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/hotkeys.h"

#include "core/editorcommand.h"
#include "editor/qsci.h"

#include <algorithm>
#include <array>
#include <iterator>

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
    row(ToggleBookmark, Ctrl, Qt::Key_F2),
    row(NextBookmark, None, Qt::Key_F2),
    row(PreviousBookmark, Shift, Qt::Key_F2),
    row(ClearBookmarks, CtrlShift, Qt::Key_F2),
    row(ToggleOvertype, None, Qt::Key_Insert),
    row(ToggleFold, CtrlShift, Qt::Key_F),
    row(ToggleAllFolds, CtrlShift, Qt::Key_A),
    row(GoToMatchingBrace, Ctrl, Qt::Key_M),
    row(SelectToMatchingBrace, CtrlShift, Qt::Key_M),
    row(ResetZoom, Ctrl, Qt::Key_0),
    row(Sci::SCI_ZOOMIN, Ctrl, Qt::Key_Plus),
    row(Sci::SCI_ZOOMIN, CtrlShift, Qt::Key_Plus),
    row(Sci::SCI_ZOOMIN, Ctrl, Qt::Key_Equal),
    row(Sci::SCI_ZOOMOUT, Ctrl, Qt::Key_Minus),
    row(AddNextOccurrence, Ctrl, Qt::Key_D),
    row(Sci::SCI_SELECTIONDUPLICATE, CtrlShift, Qt::Key_D),
    row(Sci::SCI_LINEDELETE, CtrlShift, Qt::Key_L),
    row(Sci::SCI_LOWERCASE, Ctrl, Qt::Key_U),
    row(Sci::SCI_UPPERCASE, CtrlShift, Qt::Key_U),
    row(Sci::SCI_MOVESELECTEDLINESUP, Alt, Qt::Key_Up),
    row(Sci::SCI_MOVESELECTEDLINESDOWN, Alt, Qt::Key_Down),
};

struct CommandUse {
    int command;
    QStringView use;
};

constexpr CommandUse use(EditorCommand command, QStringView text)
{
    return {numberOf(command), text};
}

constexpr CommandUse uses[] = {
    use(UndoText, u"undoes the last change of the text"),
    use(RedoText, u"redoes a change of the text"),
    use(CopyText, u"copies the selected text"),
    use(PasteText, u"inserts the clipboard's text"),
    use(DeleteText, u"deletes text"),
    use(SelectAll, u"selects the whole text"),
    use(FindPrevious, u"finds the text further up"),
    use(ToggleBookmark, u"sets or removes a bookmark"),
    use(NextBookmark, u"goes to the next bookmark"),
    use(PreviousBookmark, u"goes to the previous bookmark"),
    use(ClearBookmarks, u"removes all bookmarks"),
    use(ToggleOvertype, u"changes between inserting and overtyping"),
    use(ToggleFold, u"folds or unfolds lines of the text"),
    use(ToggleAllFolds, u"folds or unfolds the whole text"),
    use(GoToMatchingBrace, u"goes to the matching bracket in the text"),
    use(SelectToMatchingBrace, u"selects up to the matching bracket in the text"),
    use(ResetZoom, u"shows the text in its usual size"),
    use(AddNextOccurrence, u"selects the next occurrence of the selected text, too"),
    {Sci::SCI_ZOOMIN, u"shows the text larger"},
    {Sci::SCI_ZOOMOUT, u"shows the text smaller"},
    {Sci::SCI_SELECTIONDUPLICATE, u"doubles the selected text"},
    {Sci::SCI_LINEDELETE, u"deletes the line"},
    {Sci::SCI_LOWERCASE, u"makes the selected text lower case"},
    {Sci::SCI_UPPERCASE, u"makes the selected text upper case"},
    {Sci::SCI_MOVESELECTEDLINESUP, u"moves the selected lines up"},
    {Sci::SCI_MOVESELECTEDLINESDOWN, u"moves the selected lines down"},
};

} // namespace

std::span<const CodeMaxHotKey> initialHotKeys()
{
    return hotKeys;
}

QStringView hotKeyUse(int command)
{
    const auto found = std::ranges::find(uses, command, &CommandUse::command);
    return found == std::end(uses) ? QStringView() : found->use;
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
