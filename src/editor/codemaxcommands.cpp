// SPDX-License-Identifier: GPL-3.0-or-later
// The editing control's built-in commands by number.
#include "editor/bracematcher.h"
#include "editor/codemax.h"
#include "editor/colouritems.h"
#include "editor/editormargins.h"
#include "editor/editorprinter.h"
#include "editor/editorsearch.h"
#include "editor/finddialog.h"
#include "editor/gotodialog.h"
#include "editor/hotkeys.h"
#include "editor/idlecolouring.h"
#include "editor/propertiesdialog.h"

#include <QApplication>

#include <algorithm>

namespace zephira {

namespace {

/// Of the engine's messages only those bound to keys are commands.
bool isEngineCommand(int command)
{
    return command >= QsciScintillaBase::SCI_START
        && std::ranges::find(initialHotKeys(), command, &CodeMaxHotKey::command) != initialHotKeys().end();
}

/// The owner of a dialog is the active modal window, if there is one.
QWidget *dialogOwner(QWidget *editor)
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal ? modal : editor;
}

} // namespace

void CodeMax::executeCmd(int command, int argument)
{
    if (m_actions == 0 && command != numberOf(EditorCommand::DeleteText))
        m_steps.end();
    if (isEngineCommand(command))
        perform([&] { m_engine.send(static_cast<unsigned int>(command)); });
    else if (command == numberOf(EditorCommand::GoToLine))
        goToLine(argument);
    else
        runCommand(command);
}

void CodeMax::runCommand(int command)
{
    using enum EditorCommand;
    struct Row {
        EditorCommand command;
        void (*run)(CodeMax &);
    };
    static constexpr Row rows[] = {
        {SelectAll, [](CodeMax &editor) { editor.perform([&] { editor.m_engine.send(SCI_SELECTALL); }); }},
        {FindDialog, [](CodeMax &editor) { editor.showFindDialog(false); }},
        {FindReplaceDialog, [](CodeMax &editor) { editor.showFindDialog(true); }},
        {FindNext, [](CodeMax &editor) { editor.findNext(false); }},
        {PropertiesDialog, [](CodeMax &editor) { editor.showProperties(); }},
        {FindByKey, [](CodeMax &editor) { editor.showFindDialog(false); }},
        {ReplaceByKey, [](CodeMax &editor) { editor.showFindDialog(true); }},
        {PasteByKey, [](CodeMax &editor) { editor.paste(); }},
        {GoToByKey, [](CodeMax &editor) { editor.goToLine(-1); }},
        {FindNextByKey, [](CodeMax &editor) { editor.findNext(false); }},
        {CutByKey, [](CodeMax &editor) { editor.cut(); }},
        {CopyByKey, [](CodeMax &editor) { editor.copy(); }},
        {AddNextOccurrence,
         [](CodeMax &editor) {
             editor.perform([&] {
                 // The engine searches where the last replacement was made.
                 editor.m_engine.send(SCI_TARGETWHOLEDOCUMENT);
                 editor.m_engine.send(SCI_MULTIPLESELECTADDNEXT);
             });
         }},
        {FindPrevious, [](CodeMax &editor) { editor.findNext(true); }},
        {FindWord, [](CodeMax &editor) { static_cast<void>(editor.search().findWord(false)); }},
        {FindWordBefore, [](CodeMax &editor) { static_cast<void>(editor.search().findWord(true)); }},
        {ToggleBookmark,
         [](CodeMax &editor) { editor.m_margins->toggleBookmark(editor.m_engine.lineOf(editor.m_engine.caret())); }},
        {NextBookmark, [](CodeMax &editor) { editor.goToBookmark(false); }},
        {PreviousBookmark, [](CodeMax &editor) { editor.goToBookmark(true); }},
        {ClearBookmarks, [](CodeMax &editor) { editor.m_engine.send(SCI_MARKERDELETEALL, bookmarkMarker); }},
        {ToggleOvertype, [](CodeMax &editor) { editor.setOvertype(!editor.overtype()); }},
        {ToggleFold, [](CodeMax &editor) { editor.toggleFold(); }},
        {ToggleAllFolds,
         [](CodeMax &editor) {
             editor.m_colouring->colourAll();
             editor.m_engine.send(SCI_FOLDALL, SC_FOLDACTION_TOGGLE);
         }},
        {GoToMatchingBrace, [](CodeMax &editor) { editor.goToMatchingBrace(false); }},
        {SelectToMatchingBrace, [](CodeMax &editor) { editor.goToMatchingBrace(true); }},
        {ResetZoom, [](CodeMax &editor) { editor.m_engine.send(SCI_SETZOOM, 0); }},
        {UndoText, [](CodeMax &editor) { editor.undo(); }},
        {RedoText, [](CodeMax &editor) { editor.redo(); }},
        {CopyText, [](CodeMax &editor) { editor.copy(); }},
        {PasteText, [](CodeMax &editor) { editor.paste(); }},
        {DeleteText, [](CodeMax &editor) { editor.deleteForward(); }},
    };
    const auto row = std::ranges::find(rows, static_cast<EditorCommand>(command), &Row::command);
    if (row != std::end(rows))
        row->run(*this);
}

void CodeMax::ExecuteCmd(int command, const QVariant &argument)
{
    bool isNumber = false;
    const int number = argument.toInt(&isNumber);
    executeCmd(command, isNumber ? number : -1);
}

void CodeMax::goToLine(int argument)
{
    if (argument >= 0) {
        goToPosition(m_engine.lineStart(std::min<qsizetype>(argument, m_engine.lineCount() - 1)));
        return;
    }
    if (!m_goToDialog) {
        m_goToDialog = new GoToDialog(dialogOwner(this));
        connect(m_goToDialog, &GoToDialog::chosen, this, [this](int line) { goToLine(line - 1); });
    }
    const CodeMaxRange at = selection(false);
    m_goToDialog->ask(at.EndLineNo + 1, lineCount());
}

void CodeMax::goToPosition(qsizetype position)
{
    perform([&] {
        m_engine.send(SCI_ENSUREVISIBLE, m_engine.lineOf(position));
        m_engine.send(SCI_GOTOPOS, position);
        m_engine.send(SCI_CHOOSECARETX);
    });
}

void CodeMax::showFindDialog(bool replacing)
{
    if (!m_findDialog)
        m_findDialog = new FindDialog(search(), this);
    m_findDialog->bring(replacing && !isReadOnly());
}

void CodeMax::findNext(bool backward)
{
    if (!search().hasPattern()) {
        showFindDialog(false);
        return;
    }
    const SearchOutcome outcome = search().find(backward);
    if (outcome.found)
        return;
    showFindDialog(false);
    m_findDialog->showOutcome(outcome);
}

void CodeMax::showProperties()
{
    // It stands in front of the modal form that opens it, and not behind one because it was opened before.
    if (QWidget *owner = dialogOwner(this);
        !m_properties || (owner != m_properties && owner != m_properties->parent())) {
        delete m_properties;
        m_properties = new PropertiesDialog(*this, owner);
    }
    m_properties->bring();
}

void CodeMax::printContents(int, int)
{
    printer().print();
}

void CodeMax::toggleFold()
{
    qsizetype line = m_engine.lineOf(m_engine.caret());
    m_colouring->colourTo(m_engine.lineEnd(line));
    if (!(m_engine.send(SCI_GETFOLDLEVEL, line) & SC_FOLDLEVELHEADERFLAG))
        line = m_engine.send(SCI_GETFOLDPARENT, line);
    if (line < 0)
        return;
    m_engine.send(SCI_TOGGLEFOLD, line);
    if (!m_engine.send(SCI_GETLINEVISIBLE, m_engine.lineOf(m_engine.caret())))
        goToPosition(m_engine.lineStart(line));
}

void CodeMax::goToBookmark(bool backward)
{
    const qsizetype line = m_margins->bookmarkFrom(m_engine.lineOf(m_engine.caret()), backward);
    if (line >= 0)
        goToPosition(m_engine.lineStart(line));
}

void CodeMax::goToMatchingBrace(bool selecting)
{
    m_colouring->colourTo(m_engine.lineEnd(m_engine.lineOf(m_engine.caret())));
    const auto pair = m_braces->pairAt(m_engine.caret());
    if (!pair)
        return;
    if (!selecting) {
        goToPosition(pair->secondStart);
        return;
    }
    perform([&] {
        m_engine.send(SCI_SETSEL, std::min(pair->firstStart, pair->secondStart),
                      std::max(pair->firstEnd, pair->secondEnd));
        m_engine.send(SCI_CHOOSECARETX);
    });
}

} // namespace zephira
