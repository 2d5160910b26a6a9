// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

namespace zephira {

struct CommandParts;

// The commands that aren't an operation of one of the other parts. The tables of menus and toolbars refer to them.

/// Inserts the time and the date after the code view's selection, in the system's short formats.
void insertTimeAndDate(const AppContext &context);
/// Asks for the code view's font and saves the choice.
void chooseFont(const AppContext &context);
/// Opens the FTP window without presetting its local folder.
void openFtpClient(const AppContext &context);
/// Writes the document to the file that the form about its size reads, and opens that form.
void weighDocument(const AppContext &context);
/// Inserts a button into the designer's page.
void insertFormButton(const AppContext &context);
/// Undo and redo of the standard toolbar. In visual mode both undo; only the menu entry redoes.
void undoFromToolbar(const AppContext &context);
void redoFromToolbar(const AppContext &context);
/// Removes the code view's selection, whichever view is visible.
void deleteSelectedText(const AppContext &context);

void toggleHighlightedLines(const CommandParts &parts);
void toggleTips(const CommandParts &parts);
void showPreview(const CommandParts &parts);
void showQuickTags(const CommandParts &parts);

} // namespace zephira
