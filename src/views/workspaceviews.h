// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/browser.h"

#include <QString>

namespace zephira {

/// The three views of the document, in the order of their tabs.
enum class WorkspaceView { Code, Preview, Visual };

/// What a change of view asks of the window.
class WorkspaceWindow
{
public:
    virtual ~WorkspaceWindow() = default;

    virtual bool docModified() const = 0;
    virtual void markModified() = 0;
    virtual bool doSave() = 0;
    virtual void setPreviewTarget(const QString &target) = 0;
    /// The user's own folder for temporary files, without a separator at its end.
    virtual QString scratchFolder() const = 0;
    /// Says something that went wrong without stopping the user.
    virtual void notice(const QString &sentence) = 0;

    /// Makes what the view is shown with, at its first use. False, after telling the user, where that can't be had.
    virtual bool prepare(WorkspaceView view) = 0;
    /// Shows the view's controls in the place of the others'.
    virtual void showControls(WorkspaceView view) = 0;
    /// The menus that work on the source of the document.
    virtual void setSourceMenusEnabled(bool enabled) = 0;
    /// The five menus of the designer.
    virtual void setVisualMenusEnabled(bool enabled) = 0;
    /// Selects a view's tab, which selects the view.
    virtual void selectTab(WorkspaceView view) = 0;
};

/// Goes from one view of the document to another, carrying its text along. The document's one home is the code view:
/// the designer's text comes back to it when visual mode is left, and the preview shows a copy of it.
class WorkspaceViews
{
public:
    WorkspaceViews(const AppContext &context, Browser &browser, WorkspaceWindow &window);

    /// A tab was selected. Selecting the preview again shows the document anew; selecting another view again does
    /// nothing.
    void select(WorkspaceView view);
    WorkspaceView current() const { return m_current; }

    /// Takes the designer back to the text from before visual mode.
    void reset();

    /// The project folder's text from when the designer last loaded a file.
    QString designerBase() const { return m_designerBase; }

private:
    void tellProjectFolder();
    void selectCode();
    void selectPreview();
    void selectVisual();
    bool carryBack(WorkspaceView next);
    void show(WorkspaceView view);

    void previewStyleSheet();
    void previewFile(FileKind kind);
    void previewThroughServer(const QString &name);
    void saveAndNavigate(const QString &file, const QString &address, FileKind kind = FileKind::ByName);
    QString temporaryFile(const QString &name) const;
    QString shippedPage(const QString &name) const;

    const AppContext m_context;
    Browser &m_browser;
    WorkspaceWindow &m_window;
    WorkspaceView m_current = WorkspaceView::Code;
    /// Tells a change of view from those that come while it waits for the designer.
    int m_change = 0;
    QString m_designerBase;
};

/// Name of the copy that is shown of a document: beside it, so that relative links work, with its own extension.
///
///     previewCopyName("/site/page.html") == "/site/page.htmltemp.html"
QString previewCopyName(const QString &name);

/// Address at which a server hands out a file of its root folder. An empty server is the one on this machine.
///
///     serverAddress("", "a b.asp") == "http://localhost/a%20b.asp"
QString serverAddress(const QString &server, const QString &fileName);

} // namespace zephira
