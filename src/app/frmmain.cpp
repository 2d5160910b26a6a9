// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/frmmain.h"

#include "app/documenttree.h"
#include "app/filepanecommands.h"
#include "app/sidelists.h"
#include "app/statuspanels.h"
#include "app/viewswitch.h"
#include "app/visualtools.h"
#include "app/windowtabs.h"
#include "commands/commandrouter.h"
#include "commands/designerbar.h"
#include "commands/icons.h"
#include "commands/menus.h"
#include "commands/palette.h"
#include "commands/toolbars.h"
#include "commands/toolbartable.h"
#include "commands/variablebox.h"
#include "core/inserttext.h"
#include "core/quickviewer.h"
#include "desktop/keyboardlocks.h"
#include "desktop/modalformopener.h"
#include "document/languages.h"
#include "document/recoverykeeper.h"
#include "editor/codemax.h"
#include "panes/droppedfile.h"
#include "panes/filepane.h"
#include "panes/selectorlist.h"
#include "panes/sidepane.h"
#include "panes/sidetabbar.h"
#include "ui_frmmain.h"

#include <QCloseEvent>
#include <QComboBox>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int sidePaneWidth = 250;

void addTabs(QTabBar &bar, std::span<const WindowTab> tabs)
{
    for (const WindowTab &tab : tabs) {
        const int index = bar.addTab(iconFor(tab.icon), tab.caption.toString());
        bar.setTabData(index, tab.key.toString());
        bar.setTabToolTip(index, tab.tip.toString());
        bar.setAccessibleTabName(index, tab.tip.toString());
    }
    bar.updateGeometry(); // A bar that does not show yet keeps its new size to itself.
}

} // namespace

frmmain::frmmain(const WindowServices &services, QWidget *parent)
    : QMainWindow(parent), m_services(services), m_ui(std::make_unique<Ui::frmmain>()), m_commonDialog(this)
{
    m_ui->setupUi(this);
    m_commonDialog.setObjectName(u"CM"_s);
    m_rt = new CodeMax({services.files, services.recovery, services.prompts}, this);
    m_rt->setObjectName(u"rt"_s);
    m_rt->setAccessibleName(u"Source of the document"_s);

    m_inserter = std::make_unique<TextInserter>(*m_rt, m_designer);
    m_forms = std::make_unique<ModalFormOpener>(services.catalogue, this);
    m_context = std::make_unique<const AppContext>(
        AppContext{*m_rt, *m_inserter, m_designer, *this, services.configuration, services.settings, services.files,
                   services.prompts, services.shell, services.clipboard, services.clock, *m_forms, services.appPath});
    m_forms->setContext(*m_context);
    m_document = std::make_unique<Document>(*m_context, m_commonDialog, *this);
    m_router = std::make_unique<CommandRouter>(*m_context, *this);
    m_recoveryKeeper = std::make_unique<RecoveryKeeper>(services.recovery, *m_rt, m_designer, *m_document);

    m_panels = new StatusPanels(*m_ui->stBar, services.clock);
    m_panels->setLit(StatusPanels::CapsLock, false);
    m_panels->setLit(StatusPanels::NumLock, false);
    buildBars();
    buildSidePane();
    buildWorkspace();
    connectEditor();
    connectCommands();
    m_rt->setFocus();
}

frmmain::~frmmain() = default;

void frmmain::buildBars()
{
    m_menus = new Menus(m_ui->menubar, this);

    m_standardBar = new CommandToolBar(standardToolBar(), this);
    m_formattingBar = new CommandToolBar(formattingToolBar(), this);
    m_languages = new QComboBox(m_standardBar);
    m_languages->setObjectName(u"cboLang"_s);
    m_languages->setToolTip(u"Language of the document"_s);
    m_languages->setAccessibleName(u"Language of the document"_s);
    m_languages->setFocusPolicy(Qt::TabFocus);
    for (const LanguageRow &row : languageRows())
        m_languages->addItem(QStringView(row.text).toString());
    m_standardBar->addSeparator();
    m_standardBar->addWidget(m_languages);
    addToolBar(m_standardBar);
    addToolBar(m_formattingBar);

    auto *paletteBar = new QToolBar(u"Tool palette"_s, this);
    paletteBar->setObjectName(u"paletteBar"_s);
    m_palette = new Palette(paletteBar);
    paletteBar->addWidget(m_palette);
    addToolBarBreak();
    addToolBar(paletteBar);

    addToolBarBreak();
    m_designerBar = new DesignerBar(this);
    addToolBar(m_designerBar);
    m_designerBar->hide();
    for (QToolBar *bar : {static_cast<QToolBar *>(m_standardBar), static_cast<QToolBar *>(m_formattingBar), paletteBar,
                          static_cast<QToolBar *>(m_designerBar)})
        bar->setMovable(false);

    m_selectorList = new SelectorList(*m_context, m_ui->centralwidget);
    m_selectorList->hide();
    addVariableBoxes(*m_palette, *m_rt);
}

void frmmain::buildSidePane()
{
    m_sidePane = new SidePane(m_services.prompts, m_ui->mainSplitter);
    m_ui->mainSplitter->insertWidget(0, m_sidePane);
    addTabs(*m_sidePane->tabs(), sideTabs());
    m_filePane = new FilePane(m_services.prompts, m_sidePane);
    m_sidePane->setPage(u"fileman"_s, m_filePane);

    m_sideLists = std::make_unique<SideLists>(*m_context, *m_menus, *m_sidePane);
    addDocumentTree(*m_sidePane, *m_rt, *this);

    m_ui->mainSplitter->setSizes({sidePaneWidth, width() - sidePaneWidth});
    m_ui->mainSplitter->setStretchFactor(1, 1);
    new FilePaneCommands(*m_context,
                         {*m_document, *this, *m_sidePane->tabs(), *m_filePane, *m_menus,
                          [this](const QString &path) {
                              if (QuickViewer *viewer = quickViewer())
                                  viewer->showFile(path);
                          }},
                         this);
}

void frmmain::buildWorkspace()
{
    addTabs(*m_ui->workspace, workspaceTabs());
    m_ui->views->addWidget(m_rt);
    m_viewSwitch = new ViewSwitch(
        *m_context, {*m_document, *this, *m_ui->workspace, *m_ui->views, *m_designerBar, *m_menus, m_designer},
        m_services.webViews, this);
    m_visualTools = new VisualTools(*m_context, *m_designerBar, *m_menus, this);
    connect(m_visualTools, &VisualTools::finished, m_viewSwitch, &ViewSwitch::focusView);
    connect(m_visualTools, &VisualTools::displayChanged, m_recoveryKeeper.get(), &RecoveryKeeper::textChanged);
}

void frmmain::connectEditor()
{
    connect(m_rt, &CodeMax::Change, this, [this] {
        m_document->textChanged();
        m_recoveryKeeper->textChanged();
    });
    connect(m_rt, &CodeMax::SelChange, this, &frmmain::selectionChanged);
    m_rt->installEventFilter(this);
    connect(m_rt, &CodeMax::OvertypeChanged, this,
            [this](bool on) { m_panels->setText(StatusPanels::Insert, on ? u"OVR"_s : u"INS"_s); });
}

void frmmain::connectCommands()
{
    connect(m_languages, &QComboBox::currentIndexChanged, this, &frmmain::languageChanged);
    // Choosing the row that is selected already runs the handler too.
    connect(m_languages, &QComboBox::activated, this, &frmmain::languageChanged);
    connect(m_menus, &Menus::triggered, this, [this](const QString &name) { m_router->menu(name); });
    connect(m_standardBar, &CommandToolBar::buttonClicked, this, [this](const QString &key) { m_router->tBar(key); });
    connect(m_formattingBar, &CommandToolBar::buttonClicked, this,
            [this](const QString &key) { m_router->toolbar1(key); });
    connect(m_formattingBar, &CommandToolBar::pullDownClicked, this,
            [this](const QString &key) { m_router->pullDown(key); });
    connect(m_palette, &Palette::clicked, this,
            [this](int index, const QString &key, int position) { m_router->palette(index, key, position); });
    connect(m_palette, &Palette::headingClicked, this, [this](int size) { m_router->heading(size); });
    connect(m_palette, &Palette::tabClicked, this, [this] { setSelectorListVisible(false); });
    connect(m_selectorList, &SelectorList::finished, this, [this] { setSelectorListVisible(false); });
    m_menus->applyAvailability(*m_forms);
    m_standardBar->applyAvailability(*m_forms);
    m_formattingBar->applyAvailability(*m_forms);
    m_palette->applyAvailability(*m_forms);
}

bool frmmain::FileExists(const QString &path) const
{
    return m_services.files.FileExists(path);
}

void frmmain::languageChanged(int row)
{
    if (row < 0 || row >= languageCount)
        return;
    const LanguageRow &language = languageRows()[size_t(row)];
    m_formattingBar->setMarkupOpen(language.markupTools);
    // In visual mode the menu stays closed, since it writes into the source. Its entry in the menu bar follows.
    m_menus->menu(u"Tags"_s)->setEnabled(language.markupTools && !m_designer.isShowing());
    m_rt->setLanguage(QStringView(language.editorLanguage).toString());
}

void frmmain::selectionChanged()
{
    selRange = m_rt->selection(true);
    showLinePanels();
    if (modes.highlight == 1)
        m_rt->setHighlightedLine(selRange.EndLineNo);
}

void frmmain::showLinePanels()
{
    m_panels->setText(StatusPanels::TotalLines, QString::number(m_rt->lineCount()));
    m_panels->setText(StatusPanels::Line, QString::number(selRange.EndLineNo + 1));
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
    if (!m_document->askToClose()) {
        event->ignore();
        return;
    }
    unload();
    event->accept();
    endProcess();
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
    // The designer's work belongs to the page from before, so that it goes back to that one first.
    m_document->flushDesigner();
    m_document->openFileOrImage(path);
    selectCodeTab();
}

} // namespace zephira
