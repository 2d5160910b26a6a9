// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "views/designercontextmenu.h"
#include "views/designertools.h"

#include <QObject>

namespace zephira {

class DesignerBar;
class Menus;
struct MenuItem;

/// Connects the designer's toolbar and its five menus with the designer: clicks run commands, and the designer's state
/// is shown by the buttons, boxes and entries.
class VisualTools final : public QObject
{
    Q_OBJECT

public:
    VisualTools(const AppContext &context, DesignerBar &bar, Menus &menus, QObject *owner);

    DesignerTools &tools() { return m_tools; }
    /// Brings the entries of the designer's menus up to date without opening the menus.
    void updateMenus();
    bool designerReady() const { return m_tools.designerReady(); }

Q_SIGNALS:
    /// A command of the toolbar has finished: the page should get the focus again.
    void finished();
    /// The page, or its selection, may have changed.
    void displayChanged();
    /// The page's render process has ended unexpectedly, and the page was loaded again.
    void processLost();

private:
    void connectDesigner();
    void connectBar();
    void connectMenus();
    void documentComplete();
    void showState();
    void updateMenu(const MenuItem &menu);

    const AppContext m_context;
    DesignerBar &m_bar;
    Menus &m_menus;
    DesignerTools m_tools;
    DesignerContextMenu m_contextMenu;
};

} // namespace zephira
