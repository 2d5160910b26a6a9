// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/lateparts.h"
#include "app/windowservices.h"
#include "app/windowstate.h"
#include "core/appcontext.h"
#include "core/inserter.h"
#include "document/commondialog.h"
#include "document/document.h"
#include "views/lateviews.h"

#include <QMainWindow>

#include <memory>

namespace zephira {

class CodeMax;
class CommandPalette;
class CommandRouter;
class CommandToolBar;
class DesignerBar;
class DocumentControls;
class DocumentSurface;
class FilePane;
class FilePaneCommands;
class LiveDock;
class Menus;
class ModalFormOpener;
class Palette;
class PluginMenu;
class RecoveryBar;
class RecoveryKeeper;
class SelectorList;
class SideCommands;
class SideLists;
class SidePane;
class StatusPanels;
class TextTools;
class ViewSwitch;
class VisualTools;
class WindowEnd;
class WindowKeys;

namespace Ui {
class frmmain;
}

/// The main window: one document with menus, toolbars, panes and views. The window creates and connects the parts,
/// which do the actual work.
class frmmain : public QMainWindow
{
    Q_OBJECT
    Q_PROPERTY(bool docModified READ docModified)
    Q_PROPERTY(bool docHasFile READ docHasFile)
    Q_PROPERTY(QString docTitle READ docTitle)
    Q_PROPERTY(QString docPath READ docPath)
    Q_PROPERTY(QString previewTarget READ previewTarget)
    Q_PROPERTY(QString designerBase READ designerBase)
    Q_PROPERTY(bool designerReady READ designerReady)
    Q_PROPERTY(bool rootSelect READ rootSelect)
    Q_PROPERTY(QString AppPath READ appPath)
    Q_PROPERTY(QStringList startSteps READ startSteps)
    Q_PROPERTY(int highlightMode READ highlightMode)
    Q_PROPERTY(int lineNumberMode READ lineNumberMode)
    Q_PROPERTY(int leftMarginMode READ leftMarginMode)
    Q_PROPERTY(int whitespaceMode READ whitespaceMode)
    Q_PROPERTY(int selBoundsMode READ selBoundsMode)

public:
    explicit frmmain(const WindowServices &services, QWidget *parent = nullptr);
    ~frmmain() override;

    bool docModified() const { return m_document->docModified(); }
    bool docHasFile() const { return m_document->docHasFile(); }
    QString docTitle() const { return m_document->docTitle(); }
    QString docPath() const { return m_document->docPath(); }
    QString previewTarget() const { return m_document->previewTarget(); }
    QString designerBase() const;
    bool designerReady() const;
    bool rootSelect() const { return m_state.rootSelect; }
    QString appPath() const { return m_services.appPath; }
    QStringList startSteps() const { return m_state.startSteps; }
    int highlightMode() const { return m_state.modes.highlight; }
    int lineNumberMode() const { return m_state.modes.lineNumber; }
    int leftMarginMode() const { return m_state.modes.leftMargin; }
    int whitespaceMode() const { return m_state.modes.whitespace; }
    int selBoundsMode() const { return m_state.modes.selBounds; }

    // The document's operations that are called by name; see Document.
    Q_INVOKABLE void doNew() { m_document->doNew(); }
    Q_INVOKABLE bool doSave() { return m_document->doSave(); }
    Q_INVOKABLE bool DoSaveAs() { return m_document->DoSaveAs(); }
    Q_INVOKABLE void OpenAFile() { m_document->OpenAFile(); }
    Q_INVOKABLE void SetSyntax() { m_document->SetSyntax(); }
    Q_INVOKABLE bool FileExists(const QString &path) const;
    /// Inserts text into the document; see Inserter.
    Q_INVOKABLE void InsertAtCaret(const QString &text);

    const WindowState &state() const { return m_state; }
    /// Records that a step of the start begins.
    void noteStartStep(const QString &name) { m_state.startSteps.append(name); }
    void setRootSelect(bool on) { m_state.rootSelect = on; }
    void setDisplayModes(const DisplayModes &modes) { m_state.modes = modes; }
    /// 1: the caret's line is highlighted from the next selection change on; 0: it isn't.
    void setHighlightMode(int mode) { m_state.modes.highlight = mode; }
    void setColours(const ColourTable &colours) { m_state.colours = colours; }
    void setSelection(const CodeMaxRange &range) { m_state.selection = range; }
    /// Updates status bar panels 2 and 4: the selection's end line and the line count.
    void showLinePanels();

    // The parts, for the code that runs at start and end.
    const WindowServices &services() const { return m_services; }
    const AppContext &context() const { return *m_context; }
    Document &document() { return *m_document; }
    CodeMax &rt() { return *m_rt; }
    Menus &menus() { return *m_menus; }
    SidePane &sidePane() { return *m_sidePane; }
    FilePane &filePane() { return *m_filePane; }
    DesignerBar &designerBar() { return *m_designerBar; }
    StatusPanels &panels() { return *m_panels; }
    SelectorList &selectorList();
    SideLists &sideLists() { return *m_sideLists; }
    ModalFormOpener &forms() { return *m_forms; }
    LateParts &late() { return m_late; }
    PluginMenu &plugins() { return *m_plugins; }
    CommandRouter &router() { return *m_router; }
    WindowEnd &windowEnd() { return *m_end; }

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void openInCodeView(const QString &path);
    void buildDocument();
    void buildBars();
    void buildSidePane();
    void makeSelectorList();
    void buildWorkspace();
    void buildCommands();
    void offerLeftCopies();
    void connectEditor();
    void connectCommands();
    void languageSet(int row);
    void selectionChanged();
    void showKeyboardLocks();

    const WindowServices m_services;
    LateParts m_late;
    WindowState m_state;
    std::unique_ptr<Ui::frmmain> m_ui;
    CommonDialog m_commonDialog;
    LateDesigner m_designer;
    CodeMax *m_rt = nullptr;
    DocumentControls *m_documentControls = nullptr;
    SidePane *m_sidePane = nullptr;
    FilePane *m_filePane = nullptr;
    DesignerBar *m_designerBar = nullptr;
    RecoveryBar *m_recoveryBar = nullptr;
    ViewSwitch *m_viewSwitch = nullptr;
    VisualTools *m_visualTools = nullptr;
    StatusPanels *m_panels = nullptr;
    SelectorList *m_selectorList = nullptr;
    Menus *m_menus = nullptr;
    CommandToolBar *m_standardBar = nullptr;
    CommandToolBar *m_formattingBar = nullptr;
    Palette *m_palette = nullptr;
    FilePaneCommands *m_filePaneCommands = nullptr;
    std::unique_ptr<Inserter> m_inserter;
    std::unique_ptr<ModalFormOpener> m_forms;
    std::unique_ptr<WindowKeys> m_keys;
    std::unique_ptr<const AppContext> m_context;
    std::unique_ptr<DocumentSurface> m_surface;
    std::unique_ptr<Document> m_document;
    std::unique_ptr<RecoveryKeeper> m_recoveryKeeper;
    std::unique_ptr<SideLists> m_sideLists;
    std::unique_ptr<SideCommands> m_sideCommands;
    std::unique_ptr<PluginMenu> m_plugins;
    std::unique_ptr<CommandPalette> m_commandPalette;
    std::unique_ptr<TextTools> m_textTools;
    std::unique_ptr<WindowEnd> m_end;
    std::unique_ptr<CommandRouter> m_router;
    /// The first part to go: its page may tell of itself until it is gone.
    std::unique_ptr<LiveDock> m_live;
};

} // namespace zephira
