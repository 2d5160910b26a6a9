// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zephira {

class Configuration;

/// The settings of the installation, zephira.ini, each by its name. A colour's comes from colourSetting(), a custom tab's
/// from customTabSetting().
enum class Setting : int {
    StartDialog,
    RootSelection,
    HighlightLine,
    LineNumbers,
    LeftMargin,
    Whitespace,
    SelectionBounds,
    FontName,
    FontSize,
    FontBold,
    FontItalic,
    FontStrikethrough,
    FontUnderline,
    FileFilters,
    FirstCustomTab,
    LastCustomTab = FirstCustomTab + 5,
    BrowserPath,
    ServerRoot,
    ServerAddress,
    FirstColour,
};

/// What a value is. All are kept as text.
enum class SettingKind {
    Switch,    ///< "1" or "0"
    Truth,     ///< "True" or "False"
    Number,    ///< a whole number
    Measure,   ///< a number with or without a fraction
    Colour,    ///< decimal, red in the lowest byte; -1 for none of its own
    FontStyle, ///< 0 normal, 1 bold, 2 italic, 3 both, 4 underlined
    Text,
    Patterns, ///< patterns of file names, divided by semicolons
    Path,
};

/// From when on a value that was written is in effect.
enum class SettingApplies {
    AtStart,  ///< the next start of the program
    InEditor, ///< at once in the editing control, which who writes it tells; else the next start
    AtUse,    ///< read anew whenever it is needed
};

/// One setting of the installation.
struct SettingRow {
    Setting setting;
    QString section;
    QString key;
    SettingKind kind;
    SettingApplies applies;
    QString shipped;         ///< what the zephira.ini that is installed says
    bool isRequired = false; ///< the program doesn't start without it
    QString fallback = {};   ///< what a missing key counts as
};

/// All settings, in the order of Setting; the 54 colours and styles stand at the end.
const std::vector<SettingRow> &settingRows();
const SettingRow &settingRow(Setting setting);

/// The file name of a custom tab, 1 to 6.
Setting customTabSetting(int tab);

enum class ColourPart { Background, Foreground, FontStyle };

/// A part of one of appearanceRows, by the row's number.
Setting colourSetting(int row, ColourPart part);

/// Whether the value is exactly "1".
bool isSwitchedOn(const Configuration &configuration, Setting setting);
bool writeSwitch(Configuration &configuration, Setting setting, bool on);
/// Whether the value is "True", without regard to case.
bool isTrue(const Configuration &configuration, Setting setting);
bool writeTruth(Configuration &configuration, Setting setting, bool value);
/// A number that the start can't do without. Raises HandlerError with a sentence that names key, section and file if it is
/// missing or not a whole number of 32 bits.
int requiredNumber(const Configuration &configuration, Setting setting, const QString &file);

/// The values of the per-user store.
enum class UserSetting : int {
    ShowTips,
    ProgramFolder,
    ProgramVersion,
    WindowState,
    WindowTop,
    WindowLeft,
    WindowHeight,
    WindowWidth,
};

/// One value of the per-user store.
struct UserSettingRow {
    UserSetting setting;
    QString branch;
    QString section; ///< empty where each form has its own, under its name
    QString key;
    SettingKind kind;
    SettingApplies applies;
    QString fallback = {}; ///< what a missing key counts as
};

/// All values, in the order of UserSetting.
const std::vector<UserSettingRow> &userSettingRows();
const UserSettingRow &userSettingRow(UserSetting setting);

} // namespace zephira
