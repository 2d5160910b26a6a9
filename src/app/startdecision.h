// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zephira {

class Configuration;

/// What the command line asks for. The whole argument string is compared as one string.
enum class StartArgument { None, NoDialog, File };

StartArgument startArgument(const QString &argument);

/// What appears once the window shows, in order.
enum class StartAction {
    ShowStartDialog,        ///< frmselprj, modal over the main window
    ShowTip,                ///< frmTip, modal over the main window
    ShowTipOverStartDialog, ///< frmTip, modal over the loaded but hidden frmselprj
    CheckViewTip,           ///< checks the menu entry of the tips
};

/// @param showTips  the setting as a number; only 1 shows tips
/// @param selprj    the setting as a string; only "1" shows the start dialog
std::vector<StartAction> startActions(StartArgument argument, int showTips, const QString &selprj);

/// A number of the configuration that the start can't do without. Raises HandlerError with a sentence that names key,
/// section and file if it is missing or not a whole number of 32 bits.
int requiredNumber(const Configuration &configuration, const QString &section, const QString &key, const QString &file);

} // namespace zephira
