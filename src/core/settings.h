// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zephira {

class Configuration;
class UserSettings;

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

/// When the program reads a value, and so when a new one takes effect.
enum class SettingApplies {
    AtStart, ///< at the next start, unless whoever writes the value also applies it to the running program
    AtUse,   ///< whenever it is next used
};

/// One setting of the installation.
struct SettingRow {
    Setting setting;
    QString section;
    QString key;
    SettingKind kind;
    SettingApplies applies;
    QString shipped;         ///< value in the installed zephira.ini
    bool isRequired = false; ///< the program doesn't start without a valid value
    QString fallback = {};   ///< what a missing or empty value counts as
};

/// All settings, in the order of Setting; the 54 colours and styles come last.
const std::vector<SettingRow> &settingRows();
const SettingRow &settingRow(Setting setting);

/// The setting for the file name of a custom tab, 1 to 6.
Setting customTabSetting(int tab);

enum class ColourPart { Background, Foreground, FontStyle };

/// A value to write, as it is to be stored.
struct SettingChange {
    Setting setting;
    QString value;

    friend bool operator==(const SettingChange &, const SettingChange &) = default;
};

/// The setting for a part of one of appearanceRows; `row` is 0-based.
Setting colourSetting(int row, ColourPart part);

// A value as its kind says. Reading or writing it as another kind is a mistake in the program and raises
// std::logic_error. The functions that write return false if the store couldn't be written; the others that take a value
// return it as it is to be written together with more.

/// Whether a switch is exactly "1".
bool isSwitchedOn(const Configuration &configuration, Setting setting);
bool writeSwitch(Configuration &configuration, Setting setting, bool on);
SettingChange switchChange(Setting setting, bool on);
/// Whether a truth is "True", without regard to case.
bool isTrue(const Configuration &configuration, Setting setting);
bool writeTruth(Configuration &configuration, Setting setting, bool value);
SettingChange truthChange(Setting setting, bool value);
/// A measure; 0 if it isn't a number.
double measure(const Configuration &configuration, Setting setting);
bool writeMeasure(Configuration &configuration, Setting setting, double value);
SettingChange measureChange(Setting setting, double value);
/// A number, colour or font style, or a switch whose values other than 0 and 1 matter. If it is missing or not a 32-bit
/// integer, it counts as 0; where the row says that it is required, HandlerError is raised with a sentence that names
/// key, section and file.
int wholeNumber(const Configuration &configuration, Setting setting, const QString &file);
/// A number, colour or font style.
SettingChange numberChange(Setting setting, int number);

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
    SpellingDictionary,
    MenuKeys,
    Breadcrumb,
    CommandUses,
    SearchHistory,
    ReplacementHistory,
    CompleteWhileTyping,
    AutoClose,
    ColourSwatches,
    MarkProblems,
};

/// One value of the per-user store.
struct UserSettingRow {
    UserSetting setting;
    QString branch;
    QString section; ///< empty where each form, or each project folder, has a section of its own, named after it
    QString key;     ///< empty where each command has a value of its own, named after it
    SettingKind kind;
    QString fallback = {}; ///< what a missing value counts as
};

/// All values, in the order of UserSetting.
const std::vector<UserSettingRow> &userSettingRows();
const UserSettingRow &userSettingRow(UserSetting setting);

// The same for the per-user store.

/// A number, or a switch whose values other than 0 and 1 matter; 0 if it isn't a 32-bit integer.
int wholeNumber(const UserSettings &settings, UserSetting setting);
void writeSwitch(UserSettings &settings, UserSetting setting, bool on);
/// A number that each form has. A missing or malformed one counts as `fallback`.
int wholeNumber(const UserSettings &settings, UserSetting setting, const QString &form, int fallback);
void writeNumber(UserSettings &settings, UserSetting setting, const QString &form, int number);

} // namespace zephira
