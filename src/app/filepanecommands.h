// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/commandparts.h"
#include "core/appcontext.h"

#include <QObject>

class QPoint;

namespace zephira {

class Document;
class FilePane;
class Menus;
class ModalFormOpener;
class SideTabBar;

/// The file pane's commands: a double click opens a file; the list's menu shows a file, inserts a link to it, or
/// changes the filters; a file dropped on the side pane's tab bar is opened as the document.
class FilePaneCommands final : public QObject, public FileListCommands
{
public:
    struct Parts {
        Document &document;
        ViewTabs &views;
        SideTabBar &tabs;
        FilePane &pane;
        Menus &menus;
        ModalFormOpener &forms;
    };

    FilePaneCommands(const AppContext &context, const Parts &parts, QObject *owner);

    /// Brings the entries of the list's menu up to date without opening it.
    void updateMenu();

    // FileListCommands
    void showInQuickView() override;
    void insertLink() override;
    void editFilters() override;

private:
    void openListedFile();
    void showMenu(const QPoint &place);
    void openDroppedFile(const QString &path);

    const AppContext &m_context;
    const Parts m_parts;
};

} // namespace zephira
