// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/textcommand.h"

#include <QString>

namespace zephira {

struct AppContext;
class DesignerTools;
class Document;
enum class WorkspaceView;

/// The tabs of the workspace.
class ViewTabs
{
public:
    virtual ~ViewTabs() = default;

    /// Selects the next view's tab; the first view follows the third.
    virtual void selectNext() = 0;
    /// Selects a view's tab, even if it is already selected.
    virtual void selectTab(WorkspaceView view) = 0;
};

/// The check marks of the menu entries, by name.
class CheckMarks
{
public:
    virtual ~CheckMarks() = default;

    virtual bool isChecked(QStringView entry) const = 0;
    virtual void setChecked(QStringView entry, bool checked) = 0;
};

/// The tabs of the side pane, with their published numbers.
enum class SideTab {
    FileManager = 1,
    AspTags,
    HtmlTags,
    InternetTags,
    DocumentTree,
    ScriptLibrary,
    Custom1,
    Custom2,
    Custom3,
    Custom4,
    Custom5,
    Custom6,
};

/// The panes beside the document, and the windows that belong to it.
class PaneCommands
{
public:
    virtual ~PaneCommands() = default;

    virtual void selectSideTab(SideTab tab) = 0;
    /// Adds an entry to the custom tab that was right-clicked last.
    virtual void addCustomEntry() = 0;
    /// The list of style selectors above the palette, and the state of the palette's button for it.
    virtual void setSelectorListVisible(bool visible) = 0;
    virtual bool isSelectorPressed() const = 0;
    virtual void setSelectorPressed(bool pressed) = 0;
    /// Shows the readme in the quick view.
    virtual void showReadme() = 0;
    /// Opens the FTP window; its local folder is preset to the project folder if one is set.
    virtual void showFtp() = 0;
    /// Checks the spelling of the selection, or of the whole text.
    virtual void checkSpelling() = 0;
};

/// The pop-up menu of the file list. The first two work on the selected file.
class FileListCommands
{
public:
    virtual ~FileListCommands() = default;

    virtual void showInQuickView() = 0;
    virtual void insertLink() = 0;
    virtual void editFilters() = 0;
};

/// The commands of the main window itself.
class WindowCommands
{
public:
    virtual ~WindowCommands() = default;

    /// Starts another instance of the program.
    virtual void newWindow() = 0;
    /// Ends the process without a question.
    virtual void exitNow() = 0;
    /// Starts the updater and closes.
    virtual void updateProgram() = 0;
    /// 1: the caret's line is drawn in the highlight colour from the next selection change on; 0: it is not
    /// highlighted.
    virtual void setHighlightMode(int mode) = 0;
};

/// The menu of plug-ins.
class PluginCommands
{
public:
    virtual ~PluginCommands() = default;

    /// Runs the plug-in of an entry, counted from 0, and inserts its text. Returns when it has ended.
    virtual void runPlugin(int entry) = 0;
};

/// What helps with writing in the code view.
class TextCommands
{
public:
    virtual ~TextCommands() = default;

    virtual void runTextCommand(TextCommand command) = 0;
};

/// The parts that commands work on. All outlive the commands.
struct CommandParts {
    const AppContext &context;
    Document &document;
    ViewTabs &views;
    CheckMarks &marks;
    PaneCommands &panes;
    FileListCommands &files;
    WindowCommands &window;
    DesignerTools &designer;
    PluginCommands &plugins;
    TextCommands &text;
};

} // namespace zephira
