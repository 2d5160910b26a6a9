// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

    /// From the third view back to the first.
    virtual void selectNext() = 0;
    /// Selects a view's tab, also the one that is selected already.
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

/// What stands beside the document, and the windows that belong to it.
class PaneCommands
{
public:
    virtual ~PaneCommands() = default;

    /// A tab of the side pane, 1 to 12; 7 is the first custom tab.
    virtual void selectSideTab(int tab) = 0;
    /// Adds an entry to the custom tab that was right-clicked last.
    virtual void addCustomEntry() = 0;
    /// The list of style selectors over the palette, and whether the palette's button for it is pressed.
    virtual void setSelectorListVisible(bool visible) = 0;
    virtual bool isSelectorPressed() const = 0;
    virtual void setSelectorPressed(bool pressed) = 0;
    /// The readme in the quick view.
    virtual void showReadme() = 0;
    /// The FTP window, its local folder preset from the project folder where one is set.
    virtual void showFtp() = 0;
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

/// What is the window's own.
class WindowCommands
{
public:
    virtual ~WindowCommands() = default;

    /// Starts the program once more.
    virtual void newWindow() = 0;
    /// Ends the process without a question.
    virtual void exitNow() = 0;
    /// Starts the updater and closes.
    virtual void updateProgram() = 0;
    /// 1: the caret's line is drawn in the highlight colour from the next selection change on; 0: it isn't.
    virtual void setHighlightMode(int mode) = 0;
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
};

} // namespace zephira
