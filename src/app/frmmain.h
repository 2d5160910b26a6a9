// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/colourtable.h"
#include "app/windowservices.h"
#include "commands/windowcommands.h"
#include "core/appcontext.h"
#include "core/documenthost.h"
#include "core/editingcontrol.h"
#include "document/commondialog.h"
#include "document/document.h"
#include "document/documentwindow.h"
#include "views/lateviews.h"

#include <QMainWindow>

#include <memory>

class QComboBox;

namespace zephira {

class CodeMax;
class CommandRouter;
class CommandToolBar;
class DesignerBar;
class FilePane;
class Menus;
class ModalFormOpener;
class Palette;
class QuickViewer;
class RecoveryKeeper;
class SelectorList;
class SideLists;
class SidePane;
class StatusPanels;
class ViewSwitch;
class VisualTools;

namespace Ui {
class frmmain;
}

/// The main window: one document under its menus, toolbars, panes and views. The window holds the parts and connects
/// them; what they do is theirs.
class frmmain : public QMainWindow, public DocumentHost, public DocumentWindow, public WindowCommands
{
    Q_OBJECT
    Q_PROPERTY(bool docModified READ docModified)
    Q_PROPERTY(bool docHasFile READ docHasFile)
    Q_PROPERTY(QString docTitle READ docTitle)
    Q_PROPERTY(QString docPath READ docPath)
    Q_PROPERTY(QString previewTarget READ previewTarget)
    Q_PROPERTY(QString designerBase READ designerBase)
    Q_PROPERTY(bool designerReady READ designerReady)
    Q_PROPERTY(bool rootSelect MEMBER rootSelect)
    Q_PROPERTY(QString AppPath READ appPath)
    Q_PROPERTY(QStringList startSteps MEMBER startSteps)
    Q_PROPERTY(int highlightMode READ highlightMode)
    Q_PROPERTY(int lineNumberMode READ lineNumberMode)
    Q_PROPERTY(int leftMarginMode READ leftMarginMode)
    Q_PROPERTY(int whitespaceMode READ whitespaceMode)
    Q_PROPERTY(int selBoundsMode READ selBoundsMode)

public:
    /// The five display options of the configuration, kept for the life of the process.
    struct DisplayModes {
        int highlight = 0;
        int lineNumber = 0;
        int leftMargin = 0;
        int whitespace = 0;
        int selBounds = 0;
    };

    explicit frmmain(const WindowServices &services, QWidget *parent = nullptr);
    ~frmmain() override;

    bool docModified() const { return m_document->docModified(); }
    bool docHasFile() const { return m_document->docHasFile(); }
    QString docTitle() const { return m_document->docTitle(); }
    QString docPath() const { return m_document->docPath(); }
    QString previewTarget() const { return m_document->previewTarget(); }
    QString designerBase() const;
    bool designerReady() const;
    QString appPath() const { return m_services.appPath; }
    int highlightMode() const { return modes.highlight; }
    int lineNumberMode() const { return modes.lineNumber; }
    int leftMarginMode() const { return modes.leftMargin; }
    int whitespaceMode() const { return modes.whitespace; }
    int selBoundsMode() const { return modes.selBounds; }

    // The document's operations by name; Document tells what they do.
    Q_INVOKABLE void doNew() { m_document->doNew(); }
    Q_INVOKABLE bool doSave() { return m_document->doSave(); }
    Q_INVOKABLE bool DoSaveAs() { return m_document->DoSaveAs(); }
    Q_INVOKABLE void OpenAFile() { m_document->OpenAFile(); }
    Q_INVOKABLE void SetSyntax() { m_document->SetSyntax(); }
    Q_INVOKABLE bool FileExists(const QString &path) const;
    /// The one way for text into the document: see Inserter.
    Q_INVOKABLE void InsertAtCaret(const QString &text);

    // The parts, for the start that fills them.
    const WindowServices &services() const { return m_services; }
    const AppContext &context() const { return *m_context; }
    Document &document() { return *m_document; }
    CodeMax &rt() { return *m_rt; }
    Menus &menus() { return *m_menus; }
    SidePane &sidePane() { return *m_sidePane; }
    FilePane &filePane() { return *m_filePane; }
    DesignerBar &designerBar() { return *m_designerBar; }
    StatusPanels &panels() { return *m_panels; }
    SelectorList &selectorList() { return *m_selectorList; }
    SideLists &sideLists() { return *m_sideLists; }
    ModalFormOpener &forms() { return *m_forms; }

    /// Panels 2 and 4: the selection's end line, and the line count.
    void showLinePanels();

    bool rootSelect = false;
    DisplayModes modes;
    ColourTable clrTable;
    CodeMaxRange selRange;
    /// Names of the start's steps, in the order in which they ran.
    QStringList startSteps;

    // DocumentHost
    int languageRow() const override;
    QString languageText() const override;
    void setLanguageRow(int row) override;
    QString projectPath() const override;
    void setProjectPath(const QString &path) override;
    QString commonDialogFile() const override { return m_commonDialog.fileName; }

    // DocumentWindow
    void setCaption(const QString &caption) override;
    void setCountPanel(int characters) override;
    void setPathPanel(const QString &text) override;
    void notice(const QString &sentence) override;
    void selectCodeTab() override;
    void documentSettled() override;
    void keepUnsavedText() override;
    void showTemplateChooser() override;
    QString listedFile() const override;
    QString listedFolder() const override;
    Result<QSize> pictureSize(const QString &path) const override;
    Result<void> showPicture(const QString &path) override;

    // WindowCommands
    void newDocument() override { m_document->newDocument(); }
    void newFromTemplate() override { m_document->newFromTemplate(); }
    void newWindow() override;
    void openDocument() override { m_document->open(); }
    void saveDocument() override { m_document->save(); }
    void saveDocumentAs() override { m_document->saveAs(); }
    void saveAsTemplate() override { m_document->saveAsTemplate(); }
    void printDocument() override { m_document->print(); }
    void clearClipboard() override { m_document->clearClipboard(); }
    void exitNow() override;
    void updateProgram() override;
    void revert() override { m_document->revert(); }
    void nextView() override;
    void selectView(int tab) override;
    void selectSideTab(int tab) override;
    void setSelectorListVisible(bool visible) override;
    bool isChecked(const QString &name) const override;
    void setChecked(const QString &name, bool checked) override;
    void setHighlightMode(int mode) override { modes.highlight = mode; }
    void showReadme() override;
    void showFtp() override;
    void openTagEditor(int page) override;
    void checkSpelling() override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void buildBars();
    void buildSidePane();
    void buildWorkspace();
    void connectEditor();
    void connectCommands();
    void languageChanged(int row);
    void selectionChanged();
    void showKeyboardLocks();
    QuickViewer *quickViewer();
    void unload();
    void endProcess();

    const WindowServices m_services;
    std::unique_ptr<Ui::frmmain> m_ui;
    CommonDialog m_commonDialog;
    LateDesigner m_designer;
    CodeMax *m_rt = nullptr;
    QComboBox *m_languages = nullptr;
    SidePane *m_sidePane = nullptr;
    FilePane *m_filePane = nullptr;
    DesignerBar *m_designerBar = nullptr;
    ViewSwitch *m_viewSwitch = nullptr;
    VisualTools *m_visualTools = nullptr;
    StatusPanels *m_panels = nullptr;
    SelectorList *m_selectorList = nullptr;
    Menus *m_menus = nullptr;
    CommandToolBar *m_standardBar = nullptr;
    CommandToolBar *m_formattingBar = nullptr;
    Palette *m_palette = nullptr;
    std::unique_ptr<Inserter> m_inserter;
    std::unique_ptr<ModalFormOpener> m_forms;
    std::unique_ptr<const AppContext> m_context;
    std::unique_ptr<Document> m_document;
    std::unique_ptr<SideLists> m_sideLists;
    std::unique_ptr<CommandRouter> m_router;
    std::unique_ptr<RecoveryKeeper> m_recoveryKeeper;
};

} // namespace zephira
