// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/frmmain.h"

#include "app/commandpalette.h"
#include "app/documentcontrols.h"
#include "app/documentsurface.h"
#include "app/documenttree.h"
#include "app/editorfont.h"
#include "app/filepanecommands.h"
#include "app/focusring.h"
#include "app/livedock.h"
#include "app/pluginmenu.h"
#include "app/recoverybar.h"
#include "app/sidecommands.h"
#include "app/sidelists.h"
#include "app/spellingmenu.h"
#include "app/statuspanels.h"
#include "app/texttools.h"
#include "app/viewswitch.h"
#include "app/visualtools.h"
#include "app/windowend.h"
#include "app/windowkeys.h"
#include "app/windowtabs.h"
#include "commands/commandrouter.h"
#include "commands/designerbar.h"
#include "commands/icons.h"
#include "commands/menus.h"
#include "commands/menutable.h"
#include "commands/palette.h"
#include "commands/toolbars.h"
#include "commands/toolbartable.h"
#include "commands/variablebox.h"
#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/inserttext.h"
#include "core/languages.h"
#include "desktop/keyboardlocks.h"
#include "desktop/modalformopener.h"
#include "document/recoverykeeper.h"
#include "editor/codemax.h"
#include "editor/editorappearance.h"
#include "files/crashreports.h"
#include "files/leftcopies.h"
#include "files/recoverycopies.h"
#include "handbook/helpkey.h"
#include "panes/filepane.h"
#include "panes/selectorlist.h"
#include "panes/sidepane.h"
#include "panes/sidetabbar.h"
#include "tools/spelling/spellcheck.h"
#include "ui_frmmain.h"
#include "views/previewpane.h"
#include "widgets/droppedfile.h"
#include "widgets/tabstrip.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int sidePaneWidth = 250;
constexpr int lowestPane = 96;
constexpr int lowestView = 30;

void addTabs(TabStrip &bar, std::span<const WindowTab> tabs)
{
    bar.fill([&] {
        for (const WindowTab &tab : tabs) {
            const int index = bar.addTab(iconFor(tab.icon), tab.caption.toString());
            bar.setTabData(index, tab.key.toString());
            bar.setTabToolTip(index, tab.tip.toString());
            bar.setAccessibleTabName(index, tab.tip.toString());
        }
    });
}

} // namespace

frmmain::frmmain(const WindowServices &services, QWidget *parent)
    : QMainWindow(parent)
    , m_services(services)
    , m_late(*this, services.hiddenParts)
    , m_ui(std::make_unique<Ui::frmmain>())
    , m_commonDialog(this)
{
    m_ui->setupUi(this);
    m_commonDialog.setObjectName(u"CM"_s);
    buildDocument();
    buildBars();
    buildSidePane();
    buildWorkspace();
    buildCommands();
    offerLeftCopies();
    connectEditor();
    connectCommands();
    auto *ring = new FocusRing(*this,
                               {{m_ui->views, [this] { m_viewSwitch->focusView(); }},
                                {m_palette},
                                {m_sidePane},
                                {m_documentControls->languages()},
                                {m_ui->workspace}});
    m_textTools->attach(*ring);
    new HelpKey(*m_context, this);
    m_sidePane->prepare = [this] { m_late.finish(); };
    m_rt->setFocus();
}

frmmain::~frmmain()
{
    // It loses the focus when the parts that would hide it are gone.
    if (m_selectorList)
        m_selectorList->disconnect(this);
}

/// Creates the document and what it depends on.
void frmmain::buildDocument()
{
    m_rt = new CodeMax({m_services.files, m_services.recovery, m_services.prompts,
                        editorFont(m_services.configuration, EditorLooks().font), &m_services.settings},
                       this);
    m_rt->setObjectName(u"rt"_s);
    m_rt->setAccessibleName(u"Source of the document"_s);
    m_panels = new StatusPanels(*m_ui->stBar, m_services.clock);
    m_panels->setLit(StatusPanels::CapsLock, false);
    m_panels->setLit(StatusPanels::NumLock, false);
    m_filePane = new FilePane(m_services.prompts, this);
    m_documentControls = new DocumentControls(m_commonDialog, *m_filePane, this);

    m_inserter = std::make_unique<TextInserter>(*m_rt, m_designer);
    m_forms = std::make_unique<ModalFormOpener>(m_services.catalogue, this);
    m_keys = std::make_unique<WindowKeys>(m_services.settings);
    m_context = std::make_unique<const AppContext>(
        AppContext{*m_rt, *m_inserter, m_designer, *m_documentControls, m_services.configuration, m_services.settings,
                   m_services.files, m_services.prompts, m_services.shell, m_services.clipboard, m_services.clock,
                   *m_forms, *m_keys, m_services.appPath});
    m_forms->setContext(*m_context);
    m_surface = std::make_unique<DocumentSurface>(
        DocumentSurface::Parts{*this, *m_panels, *m_filePane, m_services.files, *m_forms, m_services.fileUsed});
    m_document = std::make_unique<Document>(*m_context, m_commonDialog, *m_surface);
    m_documentControls->attach(*m_document);
    m_recoveryKeeper = std::make_unique<RecoveryKeeper>(m_services.recovery, *m_rt, m_designer, *m_document);
}

void frmmain::buildBars()
{
    m_menus = new Menus(m_ui->menubar, this);

    m_standardBar = new CommandToolBar(standardToolBar(), this);
    m_formattingBar = new CommandToolBar(formattingToolBar(), this);
    m_keys->attach(*m_menus, *m_standardBar, *m_rt);
    m_rt->namedKeys = [this](EditorCommand command, const QKeySequence &first) {
        return m_keys->namedKeys(command, first);
    };
    m_standardBar->addSeparator();
    m_standardBar->addWidget(m_documentControls->languages());
    addToolBar(m_standardBar);
    addToolBar(m_formattingBar);

    auto *paletteBar = new QToolBar(u"Tool palette"_s, this);
    paletteBar->setObjectName(u"paletteBar"_s);
    m_palette = new Palette(paletteBar, Palette::Contents::Later);
    m_late.add([this] { m_palette->build(); });
    paletteBar->addWidget(m_palette);
    addToolBarBreak();
    addToolBar(paletteBar);

    addToolBarBreak();
    m_designerBar = new DesignerBar(this, DesignerBar::Contents::Later);
    m_late.add([this] { m_designerBar->build(); });
    addToolBar(m_designerBar);
    m_designerBar->hide();
    for (QToolBar *bar : {static_cast<QToolBar *>(m_standardBar), static_cast<QToolBar *>(m_formattingBar), paletteBar,
                          static_cast<QToolBar *>(m_designerBar)})
        bar->setMovable(false);

    m_late.add([this] { makeSelectorList(); });
    m_late.add([this] { addVariableBoxes(*m_palette, *m_rt); });
}

void frmmain::makeSelectorList()
{
    m_selectorList = new SelectorList(*m_context, m_ui->centralwidget);
    m_selectorList->hide();
    connect(m_selectorList, &SelectorList::finished, this, [this] { m_sideCommands->setSelectorListVisible(false); });
}

SelectorList &frmmain::selectorList()
{
    if (!m_selectorList)
        m_late.finish();
    return *m_selectorList;
}

void frmmain::buildSidePane()
{
    m_sidePane = new SidePane(m_services.prompts, m_ui->mainSplitter);
    m_ui->mainSplitter->insertWidget(0, m_sidePane);
    addTabs(*m_sidePane->tabs(), sideTabs());
    m_sidePane->setPage(u"fileman"_s, m_filePane);
    m_sideLists = std::make_unique<SideLists>(*m_context, *m_menus, *m_sidePane, m_late);
    m_late.add([this] {
        addDocumentTree(*m_sidePane, *m_rt, *m_surface,
                        [this](qsizetype position) { return m_viewSwitch->showInDesigner(position); });
    });
    // On a low screen the pane and the views shrink, so that the status bar stays visible.
    m_sidePane->setMinimumHeight(lowestPane);
    m_ui->views->setMinimumHeight(lowestView);
    m_ui->mainSplitter->setSizes({sidePaneWidth, width() - sidePaneWidth});
    m_ui->mainSplitter->setStretchFactor(1, 1);
}

void frmmain::buildWorkspace()
{
    addTabs(*m_ui->workspace, workspaceTabs());
    m_recoveryBar = new RecoveryBar(m_ui->documentPane);
    m_ui->documentLayout->insertWidget(m_ui->documentLayout->indexOf(m_ui->views), m_recoveryBar);
    m_ui->views->addWidget(m_rt);
    m_viewSwitch = new ViewSwitch(
        *m_context, {*m_document, *m_surface, *m_ui->workspace, *m_ui->views, *m_designerBar, *m_menus, m_designer},
        [this] {
            m_late.finish(); // A view has its tools.
            return m_services.webViews();
        },
        this);
    m_viewSwitch->preview().editsText = [this](const QKeySequence &keys) { return m_keys->editsText(keys); };
    m_surface->attach(*m_viewSwitch, *m_recoveryKeeper);
    m_visualTools = new VisualTools(*m_context, *m_designerBar, *m_menus, this);
    connect(m_visualTools, &VisualTools::finished, m_viewSwitch, &ViewSwitch::focusView);
    connect(m_visualTools, &VisualTools::processLost, m_viewSwitch, &ViewSwitch::designerLost);
    connect(m_visualTools, &VisualTools::displayChanged, this, [this] {
        m_recoveryKeeper->textChanged();
        m_surface->showModified(m_document->docModified() || m_document->holdsDesignersWork());
    });
}

/// Creates the commands and the parts that they work on.
void frmmain::buildCommands()
{
    m_filePaneCommands = new FilePaneCommands(
        *m_context, {*m_document, *m_viewSwitch, *m_sidePane->tabs(), *m_filePane, *m_menus, *m_forms}, this);
    m_sideCommands = std::make_unique<SideCommands>(SideCommands::Parts{
        *m_context, *m_sidePane, *m_sideLists, *m_palette, [this]() -> SelectorList & { return selectorList(); }, *m_rt,
        *m_forms, m_services.spelling});
    m_plugins = std::make_unique<PluginMenu>(*m_context, *m_menus, this);
    m_plugins->added = [this](QAction *entry, const QString &plugin) { m_keys->addPlugin(entry, plugin); };
    m_end = std::make_unique<WindowEnd>(*this, m_services, *m_recoveryKeeper);
    m_commandPalette = std::make_unique<CommandPalette>(CommandPalette::Parts{
        *this, *m_context, *m_menus, *m_standardBar, *m_formattingBar, *m_palette, *m_designerBar, *m_rt});
    m_commandPalette->update = [this] {
        m_late.finish();
        m_filePaneCommands->updateMenu();
        if (m_designer.isShowing())
            m_visualTools->updateMenus();
    };
    m_live = std::make_unique<LiveDock>(LiveDock::Parts{*this, *m_rt, *m_context, *m_menus, m_services.webViews,
                                                        [this] { return m_viewSwitch->permissions(); },
                                                        [this] { m_viewSwitch->allowRemote(); }});
    TextServices text = m_services.text;
    text.notice = [this](const QString &sentence) { m_panels->notice(sentence); };
    m_textTools =
        std::make_unique<TextTools>(TextTools::Parts{*this, *m_rt, *m_context, *m_menus, *m_keys, *m_ui->documentLayout,
                                                     *m_commandPalette, *m_viewSwitch, *m_live, std::move(text)});
    m_late.add([this] { m_textTools->start(); });
    m_router = std::make_unique<CommandRouter>(CommandParts{*m_context, *m_document, *m_viewSwitch, *m_menus,
                                                            *m_sideCommands, *m_filePaneCommands, *m_end,
                                                            m_visualTools->tools(), *m_plugins, *m_textTools});
}

/// Offers unsaved texts of earlier runs, and the reports of their crashes, in a bar above the text.
void frmmain::offerLeftCopies()
{
    connect(m_recoveryBar, &RecoveryBar::showWanted, this,
            [this](const LeftCopy &copy) { m_document->openRecovered(copy.path, copy.name); });
    connect(m_recoveryBar, &RecoveryBar::showReportWanted, this,
            [this](const CrashReport &report) { openInCodeView(report.path); });
    // What another window has dealt with meanwhile is answered, too.
    const auto answered = [this](const auto &item, const Result<void> &done) {
        if (done || !m_services.files.signature(item.path).exists)
            m_recoveryBar->answered(item);
        else
            tellError(m_services.prompts, done.error());
    };
    const auto keep = [answered](const auto &item) { answered(item, putAside(item)); };
    const auto remove = [this, answered](const auto &item) { answered(item, m_services.files.remove(item.path)); };
    connect(m_recoveryBar, &RecoveryBar::keepWanted, this, keep);
    connect(m_recoveryBar, &RecoveryBar::deleteWanted, this, remove);
    connect(m_recoveryBar, &RecoveryBar::keepReportWanted, this, keep);
    connect(m_recoveryBar, &RecoveryBar::deleteReportWanted, this, remove);
    const QString folder = m_services.recovery.folder();
    m_recoveryBar->setContents(leftCopies(folder), crashReports(folder));
}

void frmmain::connectEditor()
{
    connect(m_rt, &CodeMax::Change, this, [this] {
        m_document->textChanged();
        m_recoveryKeeper->textChanged();
    });
    connect(m_rt, &CodeMax::SelChange, this, &frmmain::selectionChanged);
    connect(m_rt, &CodeMax::CaretLineChosen, this, [this](bool on, bool *handled) {
        *handled = true;
        // The program switches this with its menu entry.
        if (m_menus->isChecked(menuname::highlightedLines) != on)
            m_menus->action(menuname::highlightedLines)->trigger();
        if (on)
            m_rt->setHighlightedLine(m_rt->selection(true).EndLineNo);
    });
    new SpellingMenu(*m_menus->menu(menuname::suggestions), *m_rt, m_services.spelling.lexicon(), this);
    m_rt->installEventFilter(this);
    connect(m_rt, &CodeMax::OvertypeChanged, this,
            [this](bool on) { m_panels->setText(StatusPanels::Insert, on ? u"OVR"_s : u"INS"_s); });
}

void frmmain::connectCommands()
{
    connect(m_documentControls, &DocumentControls::languageSet, this, &frmmain::languageSet);
    connect(m_documentControls, &DocumentControls::fileWanted, this, &frmmain::openInCodeView);
    const auto run = [this](const Command &command) { m_router->run(command); };
    connect(m_menus, &Menus::chosen, this, run);
    connect(m_standardBar, &CommandToolBar::chosen, this, run);
    connect(m_formattingBar, &CommandToolBar::chosen, this, run);
    connect(m_palette, &Palette::clicked, this, [this](const QuickTag &tag) { m_router->runTag(tag); });
    connect(m_palette, &Palette::headingClicked, this, [this](int size) { m_router->heading(size); });
    connect(m_palette, &Palette::tabClicked, this, [this] { m_sideCommands->setSelectorListVisible(false); });
}

void frmmain::InsertAtCaret(const QString &text)
{
    m_inserter->InsertAtCaret(text);
}

QString frmmain::designerBase() const
{
    return m_viewSwitch->designerBase();
}

bool frmmain::designerReady() const
{
    return m_visualTools->designerReady();
}

bool frmmain::FileExists(const QString &path) const
{
    return m_services.files.FileExists(path);
}

void frmmain::languageSet(int row)
{
    if (row < 0 || row >= languageCount)
        return;
    const LanguageRow &language = languageRows()[static_cast<std::size_t>(row)];
    m_formattingBar->setMet(Need::Markup, language.markupTools);
    // In visual mode the menu stays disabled, because it inserts into the source.
    m_menus->setMet(Need::QuickTags, language.markupTools && !m_designer.isShowing());
    m_rt->setLanguage(QStringView(language.editorLanguage).toString());
    m_textTools->languageChanged();
}

void frmmain::selectionChanged()
{
    m_state.selection = m_rt->selection(true);
    showLinePanels();
    if (m_state.modes.highlight == 1)
        m_rt->setHighlightedLine(m_state.selection.EndLineNo);
}

void frmmain::showLinePanels()
{
    m_panels->setText(StatusPanels::TotalLines, QString::number(m_rt->lineCount()));
    m_panels->setText(StatusPanels::Line, QString::number(m_state.selection.EndLineNo + 1));
}

void frmmain::showKeyboardLocks()
{
    const KeyboardLocks locks = keyboardLocks().value_or(KeyboardLocks());
    m_panels->setLit(StatusPanels::CapsLock, locks.caps);
    m_panels->setLit(StatusPanels::NumLock, locks.num);
}

bool frmmain::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        showKeyboardLocks();
    return QMainWindow::event(event);
}

bool frmmain::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyRelease) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_CapsLock || key == Qt::Key_NumLock)
            showKeyboardLocks();
    }
    return QMainWindow::eventFilter(watched, event);
}

void frmmain::closeEvent(QCloseEvent *event)
{
    event->setAccepted(m_end->close());
}

void frmmain::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void frmmain::dropEvent(QDropEvent *event)
{
    const QString path = droppedFile(event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    openInCodeView(path);
}

void frmmain::openInCodeView(const QString &path)
{
    // Changes in the designer belong to the current page, so they are carried back before another one is opened.
    m_document->flushDesigner();
    m_document->openFileOrImage(path);
    m_surface->selectCodeTab();
}

} // namespace zephira
