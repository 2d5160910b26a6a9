// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/filenumber.h"

namespace zephira {

struct AppContext;
class AspTagTree;
class CustomTabs;
class LateParts;
class Menus;
class ScriptLibrary;
class SidePane;
class TagTree;

/// Creates the lists of tags, codes and scripts from which items are inserted, as late parts of the window, each on its
/// tab of the side pane. Lists that are read from files are filled at the start; the custom tabs are filled at each click.
class SideLists
{
public:
    /// `menus` owns the pop-up menu of the custom tabs; the pane owns all lists.
    SideLists(const AppContext &context, const Menus &menus, SidePane &pane, LateParts &late);

    // These three are there for late parts that are added behind them.
    TagTree &tags() const { return *m_tags; }
    AspTagTree &aspTags() const { return *m_aspTags; }
    ScriptLibrary &scripts() const { return *m_scripts; }
    CustomTabs &customTabs();
    /// The file number of the lists, which the load handler also uses for reading.
    FileNumber &fileNumber() { return m_fileNumber; }

private:
    void makeTagLists();
    void makeScripts();
    void makeCustomTabs();

    const AppContext &m_context;
    const Menus &m_menus;
    SidePane &m_pane;
    LateParts &m_late;
    FileNumber m_fileNumber;
    TagTree *m_tags = nullptr;
    AspTagTree *m_aspTags = nullptr;
    ScriptLibrary *m_scripts = nullptr;
    CustomTabs *m_custom = nullptr;
};

} // namespace zephira
