// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/options.h"

#include "core/configuration.h"
#include "core/editingcontrol.h"
#include "core/editoritems.h"
#include "core/fontsettings.h"
#include "core/usersettings.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using ColourPart::Background;
using ColourPart::Foreground;

/// A colour item of the editing control and the setting that keeps it.
struct KeptColour {
    ColourItem item;
    int row; ///< of appearanceRows
    ColourPart part;
};

/// In the order in which they are written. Both dividers are written to one key, which so keeps the colour of the
/// vertical ones; the key of the vertical ones is never written. Existing files rely on it.
// clang-format off: a row a line
constexpr KeptColour keptColours[] = {
    {CommentFore, 1, Foreground},
    {BookmarkFore, 0, Foreground},
    {BookmarkBack, 0, Background},
    {CommentBack, 1, Background},
    {LineDividerColour, 2, Foreground},
    {MarginDividerColour, 2, Foreground},
    {HighlightedLineColour, 4, Foreground},
    {KeywordFore, 5, Foreground},
    {KeywordBack, 5, Background},
    {LeftMarginColour, 6, Foreground},
    {LineNumberFore, 7, Foreground},
    {LineNumberBack, 7, Background},
    {NumberFore, 8, Foreground},
    {NumberBack, 8, Background},
    {OperatorFore, 9, Foreground},
    {OperatorBack, 9, Background},
    {ScopeKeywordFore, 10, Foreground},
    {ScopeKeywordBack, 10, Background},
    {StringFore, 11, Foreground},
    {StringBack, 11, Background},
    {TagAttributeFore, 14, Foreground},
    {TagAttributeBack, 14, Background},
    {TagElementFore, 12, Foreground},
    {TagElementBack, 12, Background},
    {TagEntityFore, 13, Foreground},
    {TagEntityBack, 13, Background},
    {TagTextFore, 15, Foreground},
    {TagTextBack, 15, Background},
    {TextFore, 16, Foreground},
    {TextBack, 16, Background},
    {WindowColour, 17, Foreground},
};
// clang-format on

/// A font style item of the editing control and the row of appearanceRows that keeps it.
struct KeptStyle {
    FontStyleItem item;
    int row;
};

/// In the order in which they are written.
// clang-format off: a row a line
constexpr KeptStyle keptStyles[] = {
    {CommentFont, 1},     {KeywordFont, 5},       {LineNumberFont, 7}, {NumberFont, 8},
    {OperatorFont, 9},    {ScopeKeywordFont, 10}, {StringFont, 11},    {TagAttributeFont, 14},
    {TagElementFont, 12}, {TagEntityFont, 13},    {TagTextFont, 15},   {TextFont, 16},
};
// clang-format on

/// A display option and its switch, in the order in which they are written.
struct KeptSwitch {
    Setting setting;
    bool Options::*value;
};

constexpr KeptSwitch displaySwitches[] = {
    {Setting::HighlightLine, &Options::highlightLine},     {Setting::LineNumbers, &Options::lineNumbers},
    {Setting::LeftMargin, &Options::leftMargin},           {Setting::Whitespace, &Options::whitespace},
    {Setting::SelectionBounds, &Options::selectionBounds},
};

/// The values of the setting for where the folder tree begins.
constexpr int atProject = 1;
constexpr int atRoot = 2;

int tabOf(std::size_t index)
{
    return static_cast<int>(index) + 1;
}

} // namespace

Options loadOptions(const Configuration &configuration, const UserSettings &settings)
{
    Options options;
    options.filters = configuration.value(Setting::FileFilters);
    for (const auto &[setting, value] : displaySwitches)
        options.*value = isSwitchedOn(configuration, setting);
    for (std::size_t i = 0; i < options.customTabs.size(); ++i)
        options.customTabs[i] = configuration.value(customTabSetting(tabOf(i)));
    options.browserPath = configuration.value(Setting::BrowserPath);
    options.serverRoot = configuration.value(Setting::ServerRoot);
    options.showTips = wholeNumber(settings, UserSetting::ShowTips) != 0;
    options.startDialog = isSwitchedOn(configuration, Setting::StartDialog);
    options.treeAtProject = configuration.value(Setting::RootSelection) == QString::number(atProject);
    return options;
}

std::vector<SettingChange> optionChanges(const Options &options, const EditingControl &editor)
{
    std::vector<SettingChange> changes;
    for (const auto &[item, row, part] : keptColours)
        changes.push_back(numberChange(colourSetting(row, part), static_cast<qint32>(editor.color(item))));
    const std::vector<SettingChange> font = fontChanges(editor.editorFont());
    changes.insert(changes.end(), font.begin(), font.end());
    for (const auto &[item, row] : keptStyles)
        changes.push_back(numberChange(colourSetting(row, ColourPart::FontStyle), editor.fontStyle(item)));
    for (const auto &[setting, value] : displaySwitches)
        changes.push_back(switchChange(setting, options.*value));
    changes.push_back({Setting::FileFilters, options.filters});
    for (std::size_t i = 0; i < options.customTabs.size(); ++i)
        changes.push_back({customTabSetting(tabOf(i)), options.customTabs[i]});
    changes.push_back({Setting::BrowserPath, options.browserPath});
    changes.push_back({Setting::ServerRoot, options.serverRoot});
    // The start dialog follows the tips.
    changes.push_back(switchChange(Setting::StartDialog, options.showTips));
    changes.push_back(numberChange(Setting::RootSelection, options.treeAtProject ? atProject : atRoot));
    return changes;
}

Result<void> saveOptions(const Options &options, EditingControl &editor, Configuration &configuration,
                         UserSettings &settings)
{
    if (const Result<void> written = configuration.setValues(optionChanges(options, editor)); !written)
        return written.error();
    writeSwitch(settings, UserSetting::ShowTips, options.showTips);
    editor.setDisplayWhitespace(options.whitespace);
    editor.setLineNumbering(options.lineNumbers);
    editor.setDisplayLeftMargin(options.leftMargin);
    editor.setSelBounds(options.selectionBounds);
    return {};
}

} // namespace zephira
