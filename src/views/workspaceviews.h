// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/browser.h"
#include "core/designer.h"
#include "core/textchange.h"

#include <QSet>
#include <QString>

#include <optional>

namespace zephira {

/// The three views of the document, in the order of their tabs.
enum class WorkspaceView { Code, Preview, Visual };

/// The operations of the window that a change of view needs.
class WorkspaceWindow
{
public:
    virtual ~WorkspaceWindow() = default;

    virtual bool docModified() const = 0;
    virtual void markModified() = 0;
    virtual bool doSave() = 0;
    virtual void setPreviewTarget(const QString &target) = 0;
    /// The user's own folder for temporary files, without a trailing separator.
    virtual QString scratchFolder() const = 0;
    /// Distinguishes a document without a file from the next one.
    virtual int documentNumber() const = 0;
    /// The document's page may load from other hosts, which the user can take back, or it may not.
    virtual void showRemoteAllowed(bool allowed) = 0;
    /// Shows a problem without interrupting the user.
    virtual void notice(const QString &sentence) = 0;

    /// Creates the view's widgets at their first use. Returns false, after telling the user, if that fails.
    virtual bool prepare(WorkspaceView view) = 0;
    /// Shows the view's controls instead of those of the others.
    virtual void showControls(WorkspaceView view) = 0;
    /// Enables or disables the menus that work on the document's source.
    virtual void setSourceMenusEnabled(bool enabled) = 0;
    /// While the designer's text is being carried back, whatever the user does has to come after it: each such act calls
    /// WorkspaceViews::finishLeaving() first.
    virtual void setWaiting(bool waiting) = 0;
    /// Enables or disables the five menus of the designer.
    virtual void setVisualMenusEnabled(bool enabled) = 0;
    /// Selects a view's tab, which selects the view.
    virtual void selectTab(WorkspaceView view) = 0;
};

/// Switches between the views of the document and transfers its text. The code view always holds the document: the
/// designer's text is brought back when visual mode is left, and the preview shows a copy.
class WorkspaceViews
{
public:
    WorkspaceViews(const AppContext &context, Browser &browser, WorkspaceWindow &window);

    /// A tab was selected. Selecting the preview again reloads the document; selecting another view again does nothing.
    void select(WorkspaceView view);
    WorkspaceView current() const { return m_current; }

    /// Carries the designer's text back and goes on to the view for which visual mode is being left. Does nothing if it
    /// isn't being left.
    void finishLeaving();

    /// The user lets the document's page load from other hosts. If the document is in the project, this holds for all its
    /// pages from now on; otherwise for this document while the program runs. The preview is reloaded.
    void allowRemote();
    /// What the document's page may load: the folder of the project, or empty, and whether it may load from other hosts.
    std::pair<QString, bool> permissions() const;
    /// Takes that permission back and reloads the preview.
    void forbidRemote();

    /// Restores the designer's text from before visual mode.
    void reset();

    /// The project folder at the time when the designer last loaded a file.
    QString designerBase() const { return m_designerBase; }

    /// The designer's process has ended, and its page was loaded again: tells the user.
    void designerLost();

private:
    void prepareLoad();
    QString permittedProject() const;
    QString documentKey() const;
    bool isRemoteAllowed() const;
    void selectCode();
    void selectPreview();
    void selectVisual();
    bool carryBack(WorkspaceView next);
    void takeText(const QString &text, const TextChanges &changes);
    void tellOfWholePage(WholePage whole);
    void takeCaret();
    void showCaretInDesigner();
    void wait(std::optional<WorkspaceView> next);
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
    /// Identifies a change of view, to detect others that happen while it waits for the designer.
    int m_change = 0;
    /// The view for which visual mode is being left just now.
    std::optional<WorkspaceView> m_leavingFor;
    QString m_designerBase;
    /// Where the caret goes in the code view, if it was moved in the designer.
    std::optional<qsizetype> m_caret;
    /// Documents outside of the project whose pages may load from other machines.
    QSet<QString> m_permittedDocuments;
};

/// Name of a document's copy for display: in the same folder, so that relative links work, with the same extension.
///
///     previewCopyName("/site/page.html") == "/site/page.htmltemp.html"
QString previewCopyName(const QString &name);

/// Address at which a server delivers a file in its root folder.
///
///     serverAddress("http://localhost", "a b.asp") == "http://localhost/a%20b.asp"
QString serverAddress(const QString &server, const QString &fileName);

} // namespace zephira
