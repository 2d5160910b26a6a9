// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/filenumber.h"

namespace zephira {

struct AppContext;
class AspTagTree;
class CustomTabs;
class Menus;
class ScriptLibrary;
class SidePane;
class TagTree;

/// The lists of tags, codes and scripts whose items are pasted: makes them and gives each its tab of the side pane. The
/// start fills those that come from files; the custom tabs fill at each click.
class SideLists
{
public:
    /// The menus own the pop-up of the custom tabs. All lists belong to the pane.
    SideLists(const AppContext &context, const Menus &menus, SidePane &pane);

    TagTree &tags() const { return *m_tags; }
    AspTagTree &aspTags() const { return *m_aspTags; }
    ScriptLibrary &scripts() const { return *m_scripts; }
    CustomTabs &customTabs() const { return *m_custom; }
    /// The file number of the lists, which the start reads through as well.
    FileNumber &fileNumber() { return m_fileNumber; }

private:
    FileNumber m_fileNumber;
    TagTree *m_tags;
    AspTagTree *m_aspTags;
    ScriptLibrary *m_scripts;
    CustomTabs *m_custom;
};

} // namespace zephira
