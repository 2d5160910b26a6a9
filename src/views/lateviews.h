// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/browser.h"
#include "core/designer.h"

namespace zephira {

/// A stand-in that exists from the program's start, while the real designer is created at its first use. Until then it
/// behaves like a designer that isn't showing and is empty.
class LateDesigner final : public Designer
{
public:
    /// Forwards everything to the real designer from now on; it must outlive this object.
    void attach(Designer &designer);
    bool isAttached() const { return m_designer != &m_none; }

    /// Whether the window is in visual mode, even if the designer isn't visible at the moment.
    bool isShowing() const override { return m_isShowing; }
    void setShowing(bool showing) { m_isShowing = showing; }
    bool isDirty() const override { return m_designer->isDirty(); }
    QString documentHtml() override { return m_designer->documentHtml(); }
    TextChanges documentChanges() const override { return m_designer->documentChanges(); }
    WholePage wholePage() const override { return m_designer->wholePage(); }
    bool showPlace(qsizetype position, DesignerPlace what) override { return m_designer->showPlace(position, what); }
    std::optional<qsizetype> caretPlace() override { return m_designer->caretPlace(); }
    void setDocumentHtml(const QString &html) override { m_designer->setDocumentHtml(html); }
    void loadDocument(const QString &path) override { m_designer->loadDocument(path); }
    QString baseFile() const override { return m_designer->baseFile(); }
    void setBaseFile(const QString &path) override { m_designer->setBaseFile(path); }
    void pasteHtml(const QString &html) override { m_designer->pasteHtml(html); }
    QVariant execCommand(DesignerCommand command, DesignerPrompting prompting, const QVariant &argument) override
    {
        return m_designer->execCommand(command, prompting, argument);
    }
    int queryStatus(DesignerCommand command) const override { return m_designer->queryStatus(command); }
    QString selectionType() const override { return m_designer->selectionType(); }
    bool showBorders() const override { return m_designer->showBorders(); }
    void setShowBorders(bool on) override { m_designer->setShowBorders(on); }
    bool showDetails() const override { return m_designer->showDetails(); }
    void setShowDetails(bool on) override { m_designer->setShowDetails(on); }
    bool browseMode() const override { return m_designer->browseMode(); }
    void setBrowseMode(bool on) override { m_designer->setBrowseMode(on); }
    bool snapToGrid() const override { return m_designer->snapToGrid(); }
    void setSnapToGrid(bool on) override { m_designer->setSnapToGrid(on); }
    void setContextMenu(const QStringList &entries, const QList<DesignerMenuState> &states) override
    {
        m_designer->setContextMenu(entries, states);
    }
    /// Handlers that were set before the real designer existed are passed on to it.
    void setEvents(DesignerEvents events) override;
    void finishLeaving() override;
    /// What finishLeaving() does from now on.
    void setLeaving(std::function<void()> finish) { m_finishLeaving = std::move(finish); }
    void setProjectFolder(const QString &folder) override { m_designer->setProjectFolder(folder); }
    void setRemoteAllowed(bool allowed) override { m_designer->setRemoteAllowed(allowed); }

private:
    NoDesigner m_none;
    Designer *m_designer = &m_none;
    DesignerEvents m_events;
    std::function<void()> m_finishLeaving;
    bool m_isShowing = false;
};

/// The same for the browser. Until the real one exists it shows nothing, so navigation can be ignored.
class LateBrowser final : public Browser
{
public:
    void attach(Browser &browser);
    bool isAttached() const { return m_browser != nullptr; }

    void navigate(const QString &address) override;
    void goBack() override;
    void goForward() override;
    void goHome() override;
    void refresh() override;
    void stop() override;
    QString locationUrl() const override;
    void setHome(const QString &address, FileKind kind) override;
    void onNavigateComplete(std::function<void()> handler) override;
    void onProcessLost(std::function<void()> handler) override;
    void setProjectFolder(const QString &folder) override;
    void setRemoteAllowed(bool allowed) override;
    void onRemoteRefused(std::function<void(const QStringList &hosts)> handler) override;

private:
    Browser *m_browser = nullptr;
    std::function<void()> m_navigateComplete;
    std::function<void()> m_processLost;
    std::function<void(const QStringList &hosts)> m_remoteRefused;
};

} // namespace zephira
