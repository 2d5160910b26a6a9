// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/commandparts.h"
#include "plugins/extensionfolder.h"
#include "plugins/extensionrun.h"

#include <functional>

class QAction;
class QWidget;

namespace zephira {

struct AppContext;
class FileListBox;
class Menus;

/// The menu of plug-ins: its entries, and the run of the one that is chosen.
class PluginMenu final : public PluginCommands
{
public:
    /// Creates the file list `filePlugin`, which the window owns.
    PluginMenu(const AppContext &context, Menus &menus, QWidget *window);

    /// Looks for plug-ins and gives each of them an entry. Until one is found, the first entry says that there is none.
    /// If the search ended early, the menu's status tip says why.
    void scan();
    /// Ends the runs without a result: the window is closing.
    void abandon() { m_run.abandon(); }
    /// How many entries have been added.
    int count() const { return m_count; }

    /// Told of each new entry and the name of its plug-in.
    std::function<void(QAction *, const QString &)> added;

    // PluginCommands
    void runPlugin(int entry) override;

private:
    void addEntry(const QString &caption, const QString &tag);

    const AppContext &m_context;
    Menus &m_menus;
    FileListBox *m_files;
    ExtensionFolder m_folder;
    ExtensionRun m_run;
    int m_count = 0;
    /// Title, version and description of the plug-in that was looked at last, or the text of the last run. Nothing
    /// shows it.
    QString m_text;
};

} // namespace zephira
