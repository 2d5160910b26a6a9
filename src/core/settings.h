// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zephira {

class Configuration;

/// The settings of the installation, kept in zephira.ini. Those of colours come from colourSetting(), those of custom
/// tabs from customTabSetting().
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

/// The type of a value. All values are stored as text.
enum class SettingKind {
    Switch,    ///< "1" or "0"
    Truth,     ///< "True" or "False"
    Number,    ///< a whole number
    Measure,   ///< a number with or without a fraction
    Colour,    ///< decimal, red in the lowest byte; -1 for no colour of its own
    FontStyle, ///< 0 normal, 1 bold, 2 italic, 3 both, 4 underlined
    Text,
    Patterns, ///< file name patterns, separated by semicolons
    Path,
};

/// When a new value takes effect.
enum class SettingApplies {
    AtStart,  ///< the next start of the program
    InEditor, ///< at once if the writer also applies it to the editing control, otherwise at the next start
    AtUse,    ///< whenever it is next used
};

/// One setting of the installation.
struct SettingRow {
    Setting setting;
    QString section;
    QString key;
    SettingKind kind;
    SettingApplies applies;
    QString shipped;         ///< value in the installed zephira.ini
    bool isRequired = false; ///< the program doesn't start without it
    QString fallback = {};   ///< value of a missing key
};

/// All settings, in the order of Setting; the 54 colours and styles come last.
const std::vector<SettingRow> &settingRows();
const SettingRow &settingRow(Setting setting);

/// The setting for the file name of a custom tab, 1 to 6.
Setting customTabSetting(int tab);

enum class ColourPart { Background, Foreground, FontStyle };

/// The setting for a part of one of appearanceRows; `row` is 0-based.
Setting colourSetting(int row, ColourPart part);

/// Whether the value is exactly "1".
bool isSwitchedOn(const Configuration &configuration, Setting setting);
bool writeSwitch(Configuration &configuration, Setting setting, bool on);
/// Whether the value is "True", without regard to case.
bool isTrue(const Configuration &configuration, Setting setting);
bool writeTruth(Configuration &configuration, Setting setting, bool value);
/// A number without which the program can't start. If it is missing or not a 32-bit integer, raises HandlerError with a
/// sentence that names key, section and file.
int requiredNumber(const Configuration &configuration, Setting setting, const QString &file);

/// The values of the per-user store.
enum class UserSetting : int {
    ShowTips,
    ProgramFolder,
    ProgramVersion,
    WindowShowState,
    WindowTop,
    WindowLeft,
    WindowHeight,
    WindowWidth,
    RemoteContent,
};

/// One value of the per-user store.
struct UserSettingRow {
    UserSetting setting;
    QString branch;
    QString section; ///< empty where each form, or each project folder, has a section of its own, named after it
    QString key;
    SettingKind kind;
    SettingApplies applies;
    QString fallback = {}; ///< value of a missing key
};

/// All values, in the order of UserSetting.
const std::vector<UserSettingRow> &userSettingRows();
const UserSettingRow &userSettingRow(UserSetting setting);

} // namespace zephira
