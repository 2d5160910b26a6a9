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

/// Creates the lists of tags, codes and scripts from which items are inserted, each on its tab of the side pane. Lists
/// that are read from files are filled at the start; the custom tabs are filled at each click.
class SideLists
{
public:
    /// `menus` owns the pop-up menu of the custom tabs; the pane owns all lists.
    SideLists(const AppContext &context, const Menus &menus, SidePane &pane);

    TagTree &tags() const { return *m_tags; }
    AspTagTree &aspTags() const { return *m_aspTags; }
    ScriptLibrary &scripts() const { return *m_scripts; }
    CustomTabs &customTabs() const { return *m_custom; }
    /// The file number of the lists, which the load handler also uses for reading.
    FileNumber &fileNumber() { return m_fileNumber; }

private:
    FileNumber m_fileNumber;
    TagTree *m_tags;
    AspTagTree *m_aspTags;
    ScriptLibrary *m_scripts;
    CustomTabs *m_custom;
};

} // namespace zephira
