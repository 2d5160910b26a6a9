// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zephira {

/// What the command line requests. The arguments are compared as one string.
enum class StartArgument { None, NoDialog, FileTransfer, File };

StartArgument startArgument(const QString &argument);

/// What is shown after the window, in order.
enum class StartAction {
    ShowStartDialog,        ///< frmselprj, modal over the main window
    ShowTip,                ///< frmTip, modal over the main window
    ShowTipOverStartDialog, ///< frmTip, modal over the loaded but hidden frmselprj
    CheckViewTip,           ///< checks the menu entry for the tips
    ShowFileTransfer,       ///< the FTP window, beside the main window
};

/// @param showTips  the setting as a number; only 1 shows tips
/// @param selprj    the setting as a string; only "1" shows the start dialog
std::vector<StartAction> startActions(StartArgument argument, int showTips, const QString &selprj);

} // namespace zephira
