// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designer.h"
#include "web/designer/designerquestions.h"
#include "web/designer/designerstate.h"
#include "web/designer/pagemerge.h"
#include "web/designer/pageroundtrip.h"

#include <QWebEngineProfile>
#include <QWidget>

#include <memory>
#include <optional>
#include <utility>

class QMenu;
class QWebEngineView;

namespace zephira {

class DesignerHandles;
class DesignerPage;
class FileStore;

/// The visual designer as a widget that contains its web view. Its operations can be called by name. What is often
/// needed (statuses, the dirty flag) is kept up to date in advance; the rest waits for the page, up to a time limit. If
/// the page's process dies, its last known state is loaded again; if that happens repeatedly, it isn't, but the text is
/// still available.
class DesignerWidget final : public QWidget, public Designer
{
    Q_OBJECT
    Q_PROPERTY(QString DocumentHTML READ documentHtml WRITE setDocumentHtml)
    Q_PROPERTY(bool IsDirty READ isDirty)
    Q_PROPERTY(QString BaseFile READ baseFile WRITE setBaseFile)
    Q_PROPERTY(bool ShowBorders READ showBorders WRITE setShowBorders)
    Q_PROPERTY(bool ShowDetails READ showDetails WRITE setShowDetails)
    Q_PROPERTY(bool BrowseMode READ browseMode WRITE setBrowseMode)
    Q_PROPERTY(bool SnapToGrid READ snapToGrid WRITE setSnapToGrid)
    Q_PROPERTY(QString selectionType READ selectionType)

public:
    /// `files` and `prompts` must outlive the widget, which is hidden at first.
    DesignerWidget(const FileStore &files, Prompts &prompts, QWidget *parent = nullptr);
    ~DesignerWidget() override;

    /// Loads a file. If it can't be read, nothing changes.
    Q_INVOKABLE void LoadDocument(const QString &path);
    /// The argument of InsertTable may be a map with NumRows, NumCols, TableAttrs, CellAttrs and Caption.
    Q_INVOKABLE QVariant ExecCommand(int command, int prompting = 0, const QVariant &argument = {});
    Q_INVOKABLE int QueryStatus(int command) const { return queryStatus(DesignerCommand{command}); }
    Q_INVOKABLE void pasteHTML(const QString &html) { pasteHtml(html); }
    /// States: 0 unchecked, 1 checked, 2 greyed.
    Q_INVOKABLE void SetContextMenu(const QStringList &entries, const QVariantList &states);

    bool isShowing() const override { return !isHidden(); }
    bool isDirty() const override;
    QString documentHtml() override;
    TextChanges documentChanges() const override { return m_written.changes; }
    WholePage wholePage() const override { return m_written.whole; }
    bool showPlace(qsizetype position, DesignerPlace what) override;
    std::optional<qsizetype> caretPlace() override;
    void setDocumentHtml(const QString &html) override;
    void loadDocument(const QString &path) override;
    QString baseFile() const override { return m_baseFile; }
    void setBaseFile(const QString &path) override { m_baseFile = path; }
    void pasteHtml(const QString &html) override;
    QVariant execCommand(DesignerCommand command, DesignerPrompting prompting, const QVariant &argument) override;
    int queryStatus(DesignerCommand command) const override;
    QString selectionType() const override { return m_state.selectionType; }
    bool showBorders() const override { return m_looks.value(QStringLiteral("borders")).toBool(); }
    void setShowBorders(bool on) override { setLook(QStringLiteral("borders"), on); }
    bool showDetails() const override { return m_looks.value(QStringLiteral("details")).toBool(); }
    void setShowDetails(bool on) override { setLook(QStringLiteral("details"), on); }
    bool browseMode() const override { return m_looks.value(QStringLiteral("browseMode")).toBool(); }
    void setBrowseMode(bool on) override { setLook(QStringLiteral("browseMode"), on); }
    bool snapToGrid() const override { return m_looks.value(QStringLiteral("snapToGrid")).toBool(); }
    void setSnapToGrid(bool on) override { setLook(QStringLiteral("snapToGrid"), on); }
    void setContextMenu(const QStringList &entries, const QList<DesignerMenuState> &states) override;
    void setEvents(DesignerEvents events) override;
    /// Does nothing: the change of view belongs to the window, and LateDesigner forwards the call to it.
    void finishLeaving() override {}
    void setProjectFolder(const QString &folder) override;
    void setRemoteAllowed(bool allowed) override;

    /// The time limit in milliseconds for finding the smallest changes of the source; after that, and with 0 always, the
    /// whole page is written.
    void setMergePatience(int patience) { m_mergePatience = patience; }

    QWebEngineView &view() { return *m_view; }
    DesignerPage &page() { return *m_page; }
    const DesignerHandles &handles() const { return *m_handles; }

Q_SIGNALS:
    void DocumentComplete();
    void DisplayChanged();
    /// Requests a context menu at a position in screen coordinates.
    void ShowContextMenu(int x, int y);
    void ContextMenuAction(int index);
    void ProcessLost();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectPage();
    void hear(const QVariantMap &report);
    void takeComplete(const QVariantMap &state);
    void takeState(const QVariantMap &report);
    void takePlace(const QVariantMap &report);
    void takeCopyReport(const QVariantMap &report);
    void takeCommand(const QVariantMap &report);
    void takeText(const QString &source);
    void sendPlace();
    QVariantList placeForPage(qsizetype position, DesignerPlace what) const;
    void open();
    void write(bool ready);
    void lookForPage(int load, int look);
    void complete(const QVariantMap &state);
    void takeLoss();
    bool isGivenUp() const;
    bool waitUntilComplete();
    QVariant ask(const QString &function, const QVariantList &arguments = {}) const;
    QVariant takeAnswer(const QVariant &answer) const;
    bool takeReport(const QVariantMap &report) const;
    void takeCopy(const DesignerCopy &copy);
    void takeWritten(const DesignerCopy &copy);
    std::optional<TextChanges> mergedChanges(const DesignerCopy &copy);
    bool awaitAlignment();
    void announceDisplay();
    void awaitKeys() const;
    void setLook(const QString &name, bool on);
    void runFromPage(const QVariantMap &report);
    void requestContextMenu(const QPoint &place);

    /// How a command is executed.
    struct Road {
        DesignerCommand command;
        QVariant (DesignerWidget::*run)(DesignerPrompting prompting, const QVariant &argument);
    };
    static const Road roads[8];

    QVariant runWith(DesignerCommand command, const QVariant &argument);
    QVariant insertTable(DesignerPrompting prompting, const QVariant &argument);
    QVariant copy(DesignerPrompting prompting, const QVariant &argument);
    QVariant cut(DesignerPrompting prompting, const QVariant &argument);
    QVariant paste(DesignerPrompting prompting, const QVariant &argument);
    QVariant askPicture(DesignerPrompting prompting, const QVariant &argument);
    QVariant askLink(DesignerPrompting prompting, const QVariant &argument);
    QVariant find(DesignerPrompting prompting, const QVariant &argument);
    QVariant chooseFont(DesignerPrompting prompting, const QVariant &argument);

    const FileStore &m_files;
    DesignerQuestions m_questions;
    /// Represents the host whose handlers setEvents() has connected to the signals.
    std::unique_ptr<QObject> m_host;
    QWebEngineProfile m_profile;
    /// Deleted before the profile, which must outlive its page.
    std::unique_ptr<QWebEngineView> m_view;
    DesignerPage *m_page = nullptr;
    DesignerHandles *m_handles = nullptr;
    QMenu *m_menu = nullptr;

    /// The text that documentHtml() returned last, and what makes it of the source.
    struct Written {
        /// DesignerState::changes, or -1 if no text of the page has been written.
        qint64 pageChanges = -1;
        QString text = {};
        TextChanges changes = {};
        WholePage whole = WholePage::No;
    };

    PageRoundTrip m_text;
    Written m_written;
    /// The source and the page as it was loaded; made when it is first needed.
    std::shared_ptr<PageAlignment> m_alignment;
    int m_mergePatience = 300;
    QString m_baseFile;
    /// A position of the source that is to be shown when the page is there.
    std::optional<std::pair<qsizetype, DesignerPlace>> m_placeToShow;
    QVariantMap m_looks;
    /// The last reported state; reading it may have to wait for keys that the page hasn't handled yet.
    mutable DesignerState m_state;
    mutable int m_keysSent = 0;
    /// The last known text of the page.
    DesignerCopy m_copy;
    bool m_isComplete = false;
    /// Waiting for the page to load has exceeded the time limit.
    bool m_isLate = false;
    /// The page was lost and loaded again, and had changes before.
    bool m_hasLostChanges = false;
    int m_losses = 0;
    /// Identifies a load, to ignore answers to older ones.
    int m_load = 0;
};

} // namespace zephira
