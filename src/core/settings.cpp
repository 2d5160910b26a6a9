// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/settings.h"

#include "core/configuration.h"
#include "core/editoritems.h"
#include "core/errorstyles.h"
#include "core/languages.h"
#include "core/usersettings.h"
#include "core/vbtext.h"

#include <algorithm>
#include <initializer_list>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int customTabCount = static_cast<int>(Setting::LastCustomTab) - static_cast<int>(Setting::FirstCustomTab) + 1;
constexpr int partsOfColour = 3;

Setting settingAfter(Setting first, int places)
{
    return static_cast<Setting>(static_cast<int>(first) + places);
}

void addCustomTabs(std::vector<SettingRow> &rows)
{
    const QString files[customTabCount] = {u"css.txt"_s,     u"atrules.txt"_s, u"html.txt"_s,
                                           u"scripts.txt"_s, u"aria.txt"_s,    u"entities.txt"_s};
    for (int tab = 1; tab <= customTabCount; ++tab) {
        rows.push_back({customTabSetting(tab), u"ctab"_s, QString::number(tab), SettingKind::Path,
                        SettingApplies::AtUse, files[tab - 1]});
    }
}

void addColours(std::vector<SettingRow> &rows)
{
    for (int row = 0; row < std::ssize(appearanceRows); ++row) {
        const AppearanceRow &shipped = appearanceRows[static_cast<std::size_t>(row)];
        const auto add = [&](ColourPart part, QStringView end, SettingKind kind, int value) {
            rows.push_back({colourSetting(row, part), u"Colors"_s, u"clr%1%2"_s.arg(row).arg(end), kind,
                            SettingApplies::AtStart, QString::number(value), true});
        };
        add(ColourPart::Background, u"bg", SettingKind::Colour, static_cast<qint32>(shipped.shippedBackground));
        add(ColourPart::Foreground, u"fr", SettingKind::Colour, static_cast<qint32>(shipped.shippedForeground));
        add(ColourPart::FontStyle, u"fnt", SettingKind::FontStyle, shipped.shippedFontStyle);
    }
}

/// The row, after a check that it is of one of the kinds as which the caller reads or writes it.
template<typename Row>
const Row &ofKind(const Row &row, std::initializer_list<SettingKind> kinds)
{
    if (std::ranges::find(kinds, row.kind) == kinds.end())
        throw std::logic_error("the setting " + row.key.toStdString() + " is of another kind");
    return row;
}

constexpr std::initializer_list<SettingKind> wholeKinds = {SettingKind::Switch, SettingKind::Number,
                                                           SettingKind::Colour, SettingKind::FontStyle};

QString switchText(bool on)
{
    return on ? u"1"_s : u"0"_s;
}

std::vector<SettingRow> makeSettingRows()
{
    using enum Setting;
    using enum SettingKind;
    using enum SettingApplies;
    // clang-format off: a row a line
    std::vector<SettingRow> rows = {
        {StartDialog, u"Startup"_s, u"selprj"_s, Switch, AtStart, u"1"_s},
        {RootSelection, u"startup"_s, u"rootsel"_s, Number, AtStart, u"2"_s, true},
        {HighlightLine, u"options"_s, u"highlight"_s, Switch, AtStart, u"1"_s, true},
        {LineNumbers, u"options"_s, u"linenumber"_s, Switch, AtStart, u"1"_s, true},
        {LeftMargin, u"options"_s, u"leftmargin"_s, Switch, AtStart, u"1"_s, true},
        {Whitespace, u"options"_s, u"whitespace"_s, Switch, AtStart, u"0"_s, true},
        {SelectionBounds, u"options"_s, u"selbounds"_s, Switch, AtStart, u"0"_s, true},
        {FontName, u"font"_s, u"name"_s, Text, AtStart, u"Liberation Mono"_s},
        {FontSize, u"font"_s, u"size"_s, Measure, AtStart, u"10"_s},
        {FontBold, u"font"_s, u"bold"_s, Truth, AtStart, u"False"_s},
        {FontItalic, u"font"_s, u"italic"_s, Truth, AtStart, u"False"_s},
        {FontStrikethrough, u"font"_s, u"strikethrough"_s, Truth, AtStart, u"False"_s},
        {FontUnderline, u"font"_s, u"underline"_s, Truth, AtStart, u"False"_s},
        {FileFilters, u"Filters"_s, u"Filters"_s, Patterns, AtStart, shippedFilters()},
    };
    addCustomTabs(rows);
    rows.insert(rows.end(),
                {
                    {BrowserPath, u"Paths"_s, u"IEPATH"_s, Path, AtUse, {}},
                    {ServerRoot, u"server"_s, u"root"_s, Path, AtUse, {}},
                    {ServerAddress, u"server"_s, u"url"_s, Text, AtUse, {}, false, u"http://localhost/"_s},
                });
    // clang-format on
    addColours(rows);
    return rows;
}

std::vector<UserSettingRow> makeUserSettingRows()
{
    using enum UserSetting;
    using enum SettingKind;
    // The branch of this executable, and the one shared by all copies of the program, whatever their executable's name.
    const QString own = u"zephira"_s;
    const QString shared = u"Zephira"_s;
    // clang-format off: a row a line
    return {
        {ShowTips, own, u"Options"_s, u"Show Tips at Startup"_s, Switch, u"1"_s},
        {ProgramFolder, shared, u"data"_s, u"apppath"_s, Path},
        {ProgramVersion, shared, u"data"_s, u"version"_s, Text},
        {WindowShowState, own, {}, u"WindowState"_s, Number},
        {WindowTop, own, {}, u"Top"_s, Number},
        {WindowLeft, own, {}, u"Left"_s, Number},
        {WindowHeight, own, {}, u"Height"_s, Number},
        {WindowWidth, own, {}, u"Width"_s, Number},
        {RemoteContent, own, {}, u"RemoteContent"_s, Switch},
        {SpellingDictionary, own, u"Spelling"_s, u"Dictionary"_s, Text},
        {MenuKeys, own, u"Keys"_s, {}, Text},
        {Breadcrumb, own, u"Text"_s, u"Breadcrumb"_s, Switch, u"0"_s},
        {CommandUses, own, u"CommandUses"_s, {}, Number},
        {SearchHistory, own, u"Search"_s, u"Searches"_s, Text},
        {ReplacementHistory, own, u"Search"_s, u"Replacements"_s, Text},
        {CompleteWhileTyping, own, u"Text"_s, u"CompleteWhileTyping"_s, Switch, u"1"_s},
        {AutoClose, own, u"Text"_s, u"AutoClose"_s, Switch, u"0"_s},
        {ColourSwatches, own, u"Text"_s, u"ColorSwatches"_s, Switch, u"1"_s},
        {MarkProblems, own, u"Text"_s, u"MarkProblems"_s, Switch, u"1"_s},
    };
    // clang-format on
}

} // namespace

const std::vector<SettingRow> &settingRows()
{
    static const std::vector<SettingRow> rows = makeSettingRows();
    return rows;
}

const SettingRow &settingRow(Setting setting)
{
    return settingRows().at(static_cast<std::size_t>(setting));
}

Setting customTabSetting(int tab)
{
    return settingAfter(Setting::FirstCustomTab, tab - 1);
}

Setting colourSetting(int row, ColourPart part)
{
    return settingAfter(Setting::FirstColour, row * partsOfColour + static_cast<int>(part));
}

bool isSwitchedOn(const Configuration &configuration, Setting setting)
{
    ofKind(settingRow(setting), {SettingKind::Switch});
    return configuration.value(setting) == u"1"_s;
}

bool writeSwitch(Configuration &configuration, Setting setting, bool on)
{
    return configuration.setValues({switchChange(setting, on)}).ok();
}

SettingChange switchChange(Setting setting, bool on)
{
    ofKind(settingRow(setting), {SettingKind::Switch});
    return {setting, switchText(on)};
}

bool isTrue(const Configuration &configuration, Setting setting)
{
    ofKind(settingRow(setting), {SettingKind::Truth});
    return configuration.value(setting).compare(u"True"_s, Qt::CaseInsensitive) == 0;
}

bool writeTruth(Configuration &configuration, Setting setting, bool value)
{
    return configuration.setValues({truthChange(setting, value)}).ok();
}

SettingChange truthChange(Setting setting, bool value)
{
    ofKind(settingRow(setting), {SettingKind::Truth});
    return {setting, value ? u"True"_s : u"False"_s};
}

double measure(const Configuration &configuration, Setting setting)
{
    ofKind(settingRow(setting), {SettingKind::Measure});
    return configuration.value(setting).toDouble();
}

bool writeMeasure(Configuration &configuration, Setting setting, double value)
{
    return configuration.setValues({measureChange(setting, value)}).ok();
}

SettingChange measureChange(Setting setting, double value)
{
    ofKind(settingRow(setting), {SettingKind::Measure});
    return {setting, QString::number(value)};
}

int wholeNumber(const Configuration &configuration, Setting setting, const QString &file)
{
    const SettingRow &row = ofKind(settingRow(setting), wholeKinds);
    const QString text = configuration.value(setting);
    int number = 0;
    if (endingQuietly([&] { number = CLng(text); }) || !row.isRequired)
        return number;
    const QString problem = text.isEmpty() ? u"is missing"_s : u"isn't a number (\"%1\")"_s.arg(text.left(80));
    throw HandlerError{
        u"Zephira can't start: the key \"%1\" in section [%2] of %3 %4."_s.arg(row.key, row.section, file, problem)};
}

SettingChange numberChange(Setting setting, int number)
{
    ofKind(settingRow(setting), {SettingKind::Number, SettingKind::Colour, SettingKind::FontStyle});
    return {setting, QString::number(number)};
}

const std::vector<UserSettingRow> &userSettingRows()
{
    static const std::vector<UserSettingRow> rows = makeUserSettingRows();
    return rows;
}

const UserSettingRow &userSettingRow(UserSetting setting)
{
    return userSettingRows().at(static_cast<std::size_t>(setting));
}

int wholeNumber(const UserSettings &settings, UserSetting setting)
{
    ofKind(userSettingRow(setting), wholeKinds);
    return settings.GetSetting(setting).toInt();
}

void writeSwitch(UserSettings &settings, UserSetting setting, bool on)
{
    ofKind(userSettingRow(setting), {SettingKind::Switch});
    settings.SaveSetting(setting, switchText(on));
}

int wholeNumber(const UserSettings &settings, UserSetting setting, const QString &form, int fallback)
{
    ofKind(userSettingRow(setting), {SettingKind::Number});
    bool converted = false;
    const int value = settings.GetSetting(setting, form, QString::number(fallback)).toInt(&converted);
    return converted ? value : fallback;
}

void writeNumber(UserSettings &settings, UserSetting setting, const QString &form, int number)
{
    ofKind(userSettingRow(setting), {SettingKind::Number});
    settings.SaveSetting(setting, form, QString::number(number));
}

} // namespace zephira
