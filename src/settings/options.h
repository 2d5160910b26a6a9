// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "core/settings.h"

#include <QString>

#include <array>
#include <vector>

namespace zephira {

class Configuration;
class EditingControl;
class UserSettings;

/// What the options dialog edits. Colours, font and font styles aren't in here: they are those of the editing control.
struct Options {
    bool highlightLine = false;
    bool lineNumbers = false;
    bool leftMargin = false;
    bool whitespace = false;
    bool selectionBounds = false;
    /// File name patterns, separated by semicolons.
    QString filters;
    /// The names of the files of the six custom tabs.
    std::array<QString, 6> customTabs;
    QString browserPath;
    QString serverRoot;
    bool showTips = false;
    /// Whether the start dialog is shown. It is read, and never written: the switch takes the value of showTips.
    bool startDialog = false;
    /// Whether the folder tree begins at the project's folder, instead of only selecting it.
    bool treeAtProject = false;

    friend bool operator==(const Options &, const Options &) = default;
};

Options loadOptions(const Configuration &configuration, const UserSettings &settings);

/// What saving writes to the configuration, in the order in which it is written: colours, font and font styles of the
/// editing control, then the options.
std::vector<SettingChange> optionChanges(const Options &options, const EditingControl &editor);

/// Writes all of it, then the user's switch for tips, and applies what takes effect at once to the editing control. If
/// the configuration can't be written, nothing changes.
Result<void> saveOptions(const Options &options, EditingControl &editor, Configuration &configuration,
                         UserSettings &settings);

} // namespace zephira
