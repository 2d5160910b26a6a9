// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

namespace zephira {

struct CommandParts;

// The commands that are no operation of another part. The tables of menus and toolbars name them.

/// The time and the date behind the code view's selection, as the system writes them.
void insertTimeAndDate(const AppContext &context);
/// Asks for the code view's font and keeps it.
void chooseFont(const AppContext &context);
/// Opens the FTP window as it is.
void openFtpClient(const AppContext &context);
/// Writes the document for the form that weighs it, and opens that.
void weighDocument(const AppContext &context);
/// A form's button in the page of the designer.
void insertFormButton(const AppContext &context);
/// The standard toolbar's buttons. In visual mode both undo; only the menu entry redoes.
void undoFromToolbar(const AppContext &context);
void redoFromToolbar(const AppContext &context);
/// Removes the code view's selection, in every view.
void deleteSelectedText(const AppContext &context);

void toggleHighlightedLines(const CommandParts &parts);
void toggleTips(const CommandParts &parts);
void showPreview(const CommandParts &parts);
void showQuickTags(const CommandParts &parts);

} // namespace zephira
