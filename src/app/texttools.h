// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/texthelpers.h"
#include "commands/commandparts.h"

class QBoxLayout;
class QMainWindow;

namespace zephira {

class Breadcrumb;
class CommandPalette;
class FocusRing;
class LiveDock;
class Menus;
class ToolPanel;
class WindowKeys;

/// What the window offers around the text: the helpers, the panel below it, and their commands in the text's context menu
/// and on keys.
class TextTools final : public TextCommands
{
public:
    struct Parts {
        QMainWindow &window;
        CodeMax &rt;
        const AppContext &context;
        Menus &menus;
        WindowKeys &keys;
        /// Has the views of the document; what is shown below them goes to its end.
        QBoxLayout &document;
        CommandPalette &commands;
        ViewTabs &views;
        LiveDock &live;
        TextServices services = {};
    };

    explicit TextTools(const Parts &parts);
    ~TextTools() override;

    /// Makes the menus and starts the helpers, which the first picture doesn't need.
    void start();
    /// Lets the ring of keys reach the panel.
    void attach(FocusRing &ring);

    TextHelpers &helpers() { return m_helpers; }
    ToolPanel &panel() { return *m_panel; }
    /// Opens the panel's page that searches the project.
    void findInProject();
    /// The text is in another language now.
    void languageChanged();

    // TextCommands
    void runTextCommand(TextCommand command) override;

private:
    void showCode();
    void showBreadcrumb(bool on);
    /// Sets the check marks of the menus.
    void showSwitches();

    const Parts m_parts;
    FocusRing *m_ring = nullptr;
    /// Exists from when the line is first shown.
    Breadcrumb *m_breadcrumb = nullptr;
    ToolPanel *m_panel;
    TextHelpers m_helpers;
};

} // namespace zephira
