// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QObject>

#include <functional>

class QPoint;

namespace zephira {

class Document;
class DocumentWindow;
class FilePane;
class Menus;
class SideTabBar;

/// What the file manager does with the document: a double click opens a file, the list's menu shows one, links to one or
/// changes the filters, and a file dropped on the side pane's strip becomes the document.
class FilePaneCommands : public QObject
{
public:
    struct Parts {
        Document &document;
        DocumentWindow &window;
        SideTabBar &tabs;
        FilePane &pane;
        Menus &menus;
        /// Shows a file in the quick view, by its full path.
        std::function<void(const QString &)> quickView;
    };

    FilePaneCommands(const AppContext &context, const Parts &parts, QObject *owner);

private:
    void openListedFile();
    void showMenu(const QPoint &place);
    void run(const QString &entry);
    void openDroppedFile(const QString &path);

    void showInQuickView();
    void insertLink();
    void editFilters();

    const AppContext &m_context;
    const Parts m_parts;
};

} // namespace zephira
