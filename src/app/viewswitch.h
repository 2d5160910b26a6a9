// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/commandparts.h"
#include "core/webviews.h"
#include "views/lateviews.h"
#include "views/workspaceviews.h"

#include <QObject>

class QStackedWidget;
class QTabBar;
class QWidget;

namespace zephira {

class DesignerBar;
class Document;
class DocumentWindow;
class Menus;
class PreviewPane;

/// The tabs of the workspace and their views. The web engine's module is loaded when the preview or the designer is
/// first needed, or a moment earlier, when the pointer reaches the tabs.
class ViewSwitch final : public QObject, public WorkspaceWindow, public ViewTabs
{
    Q_OBJECT

public:
    struct Parts {
        Document &document;
        DocumentWindow &window;
        QTabBar &tabs;
        /// Contains the code view; the other views are added to it.
        QStackedWidget &pages;
        DesignerBar &designerBar;
        Menus &menus;
        LateDesigner &designer;
    };

    ViewSwitch(const AppContext &context, const Parts &parts, const WebViewsLoader &loadViews, QObject *owner);

    PreviewPane &preview() { return *m_preview; }
    /// In visual mode, brings the element whose tag contains this position of the text into sight. Returns false in other
    /// views, and if the page has no such element.
    bool showInDesigner(qsizetype position);
    /// Focuses the current view.
    void focusView();
    QString designerBase() const { return m_views.designerBase(); }
    /// See WorkspaceViews.
    std::pair<QString, bool> permissions() const { return m_views.permissions(); }
    void allowRemote() { m_views.allowRemote(); }
    void designerLost() { m_views.designerLost(); }

    // ViewTabs
    void selectNext() override;

    // WorkspaceWindow; selectTab() also belongs to ViewTabs
    bool docModified() const override;
    void markModified() override;
    bool doSave() override;
    void setPreviewTarget(const QString &target) override;
    QString scratchFolder() const override;
    int documentNumber() const override;
    void notice(const QString &sentence) override;
    bool prepare(WorkspaceView view) override;
    void showControls(WorkspaceView view) override;
    void setSourceMenusEnabled(bool enabled) override;
    void setWaiting(bool waiting) override;
    void showRemoteAllowed(bool allowed) override;
    void setVisualMenusEnabled(bool enabled) override;
    void selectTab(WorkspaceView view) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Result<void> make(WorkspaceView view);
    QWidget *page(WorkspaceView view) const;
    bool comesAfterLeaving(const QObject *watched, const QEvent &event) const;

    const AppContext m_context;
    const Parts m_parts;
    const WebViewsLoader m_loadViews;
    LateBrowser m_browser;
    WorkspaceViews m_views;
    PreviewPane *m_preview = nullptr;
    QWidget *m_designerWidget = nullptr;
    bool m_isWarm = false;
    bool m_isWaiting = false;
};

} // namespace zephira
