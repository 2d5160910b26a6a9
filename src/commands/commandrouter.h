// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/palettecommands.h"
#include "commands/sourceformatting.h"
#include "core/appcontext.h"

#include <QString>

namespace zephira {

class WindowCommands;

/// Where every command arrives: a menu entry by name, a toolbar button by key, a palette button by index and key or
/// position. Commands of the document, the views and the panes go on to the window; all others are done here. Names that
/// belong to someone else (the designer's menu arrays, plug-ins, pop-ups) are left alone.
class CommandRouter
{
public:
    CommandRouter(const AppContext &context, WindowCommands &window);

    void menu(const QString &name);
    /// The standard toolbar. Its editing buttons go to the code view in every view, unlike the menu entries.
    void tBar(const QString &key);
    /// The formatting toolbar, and an entry of one of its pull-downs.
    void toolbar1(const QString &key);
    void pullDown(const QString &key);
    /// @param index     toolbar, 0 to 11
    /// @param key       of toolbars 0 to 5
    /// @param position  in toolbars 6 to 11, the first is 1
    void palette(int index, const QString &key, int position) { m_palette.click(index, key, position); }
    /// Heading size 1 to 6 of the palette's pull-down.
    void heading(int size) { m_palette.heading(size); }
    /// The window is closing: commands that wait for something leave the document alone from now on.
    void abandon() { m_formatting.abandon(); }

private:
    struct OwnCommand;

    bool runWindowCommand(const QString &name);
    bool runEditingCommand(const QString &name);
    bool runCodeViewCommand(const QString &name);
    bool runOwnCommand(const QString &name);
    bool runTag(const QString &name);
    bool openFormOf(const QString &name);

    void undoFromToolbar();
    void redoFromToolbar();
    void insertTimeAndDate();
    void toggleHighlightedLines();
    void toggleTips();
    void chooseFont();
    void openHelp();
    void openWebsite();
    void openFtpClient();
    void showPreview();
    void showQuickTags();
    void weighDocument();
    void compactSource() { m_formatting.compact(); }
    void indentSource() { m_formatting.hierarchical(); }
    void simplifySource() { m_formatting.simple(); }
    void openTagEditor();
    void previewInNamedBrowser();
    void previewInDefaultBrowser();

    const AppContext m_context;
    WindowCommands &m_window;
    PaletteCommands m_palette;
    SourceFormatting m_formatting;
};

} // namespace zephira
