// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/frmmainftp.h"

#include "core/appcontext.h"
#include "core/clock.h"
#include "core/errorstyles.h"
#include "core/formopener.h"
#include "core/prompts.h"
#include "ftp/ftpclient.h"
#include "ftp/ftpmenus.h"
#include "ftp/localpane.h"
#include "ftp/remotepane.h"
#include "ftp/sessionlogfile.h"
#include "ui_frmmainftp.h"
#include "widgets/dirlistbox.h"
#include "widgets/filelistview.h"
#include "widgets/menukey.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>

#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qint64 logPaintInterval = 50; // milliseconds
constexpr int logHeight = 110;          // pixels, until the bar is dragged

struct PanelRow {
    QStringView name;
    int stretch;
};

constexpr PanelRow panelRows[] = {{u"Status", 0}, {u"Last action", 1}, {u"Connection", 0}};

} // namespace

frmmainftp::frmmainftp(FtpClient &client, const AppContext &context, QWidget *owner)
    : QMainWindow(owner)
    , m_ui(std::make_unique<Ui::frmmainftp>())
    , m_client(client)
    , m_context(context)
    , m_connection(client, *this, context.prompts)
{
    m_ui->setupUi(this);
    m_sinceLogPainted.start();
    m_menus = new FtpMenus(*m_ui->menubar, *m_ui->Toolbar1, this);
    connect(m_menus, &FtpMenus::chosen, this, &frmmainftp::run);
    m_menus->entry(ftpname::properties).setEnabled(false);
    m_menus->entry(ftpname::toolBar).setChecked(true);
    markTransferType(true);
    markPassive(true);
    makePanels();
    makePanes();
    connectLocalPane();
    connectRemotePane();
    addHelpKeys();
    m_localPane->setFolder(context.appPath);
    m_local->refill();
    m_ui->ListView1->setFocus();
}

frmmainftp::~frmmainftp() = default;

void frmmainftp::makePanels()
{
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        auto *panel = new QLabel(this);
        panel->setObjectName(u"stBar_%1"_s.arg(i + 1));
        panel->setAccessibleName(panelRows[i].name.toString());
        panel->setTextFormat(Qt::PlainText);
        panel->setMargin(2);
        // A long path is cut off rather than widening the window.
        if (panelRows[i].stretch)
            panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        m_ui->stBar->addWidget(panel, panelRows[i].stretch);
        m_panels[i] = panel;
    }
    setPanel(1, u"FTP:"_s);
}

void frmmainftp::makePanes()
{
    // The splitters create the handles themselves.
    m_ui->panes->handle(1)->setObjectName(u"Picture1"_s);
    m_ui->panes->handle(1)->setAccessibleName(u"Bar between this computer and the server"_s);
    m_ui->panesAndLog->handle(1)->setObjectName(u"Picture2"_s);
    m_ui->panesAndLog->handle(1)->setAccessibleName(u"Bar between the panes and the log"_s);
    constexpr int folderShare = 2;
    constexpr int fileShare = 3;
    for (QSplitter *side : {m_ui->localLists, m_ui->remoteLists}) {
        side->setStretchFactor(0, folderShare);
        side->setStretchFactor(1, fileShare);
    }
    m_ui->panesAndLog->setStretchFactor(0, 1);
    m_ui->panesAndLog->setSizes({height() - logHeight, logHeight});

    m_localPane = new LocalPane({.drives = *m_ui->Drive1,
                                 .folders = *m_ui->Dir1,
                                 .names = *m_ui->File1,
                                 .list = *m_ui->ListView1,
                                 .path = *m_ui->Label1,
                                 .allFiles = m_menus->entry(ftpname::allLocalFiles),
                                 .definedTypes = m_menus->entry(ftpname::definedLocalFiles)},
                                this);
    m_local = std::make_unique<LocalCommands>(m_client, *this, *m_localPane, m_context);
    m_remotePane = new RemotePane({.tree = *m_ui->TView1,
                                   .list = *m_ui->ListView2,
                                   .path = *m_ui->Label3,
                                   .allFiles = m_menus->entry(ftpname::allRemoteFiles),
                                   .definedTypes = m_menus->entry(ftpname::definedRemoteFiles)},
                                  this);
    m_remote = std::make_unique<RemoteCommands>(m_client, *this, *m_remotePane, m_context);
}

void frmmainftp::connectLocalPane()
{
    FileListView *list = m_ui->ListView1;
    connect(list, &FileListView::listClicked, this, [this, list] {
        if (!list->selected().empty())
            m_menus->entry(ftpname::properties).setEnabled(true);
        m_local->showSummary();
    });
    connect(list, &FileListView::opened, this,
            [this] { guard(u"zOpenFile_Click"_s, [this] { m_local->openFile(); }); });
    connect(list, &FileListView::deletePressed, this,
            [this] { guard(u"zLokDS_Click"_s, [this] { m_local->deleteFiles(); }); });
    connect(list, &FileListView::renamePressed, this,
            [this] { guard(u"zLokRS_Click"_s, [this] { m_local->rename(); }); });
    const auto popUp = [this](const QPoint &place) { m_menus->menu(ftpname::localMenu).popup(place); };
    connect(list, &FileListView::popupRequested, this, popUp);
    onMenuKey(*m_ui->Dir1, popUp);
    connect(list, &FileListView::editStarted, this, [this](const QString &name) { m_local->renameStarted(name); });
    list->setRenaming([this](const QString &oldName, const QString &newName) {
        bool stays = false;
        guard(u"ListView1_AfterLabelEdit"_s, [&] { stays = m_local->renameEnded(oldName, newName); });
        return stays;
    });
    connect(m_localPane, &LocalPane::driveChosen, this,
            [this](const QString &drive) { guard(u"Drive1_Change"_s, [&] { m_local->chooseDrive(drive); }); });
    connect(m_localPane, &LocalPane::folderChosen, this, [this] { m_local->refill(); });
    connect(m_localPane, &LocalPane::drivesClicked, this,
            [this] { setPanel(textPanel, u"Local: Chose local disk"_s); });
    connect(m_localPane, &LocalPane::foldersClicked, this,
            [this] { setPanel(textPanel, u"Local: Doudle click folder for retreiving files"_s); });
    connect(m_ui->Dir1, &DirListBox::deletePressed, this,
            [this] { guard(u"zLokDF_Click"_s, [this] { m_local->removeFolder(); }); });
}

void frmmainftp::connectRemotePane()
{
    FileListView *list = m_ui->ListView2;
    connect(list, &FileListView::listClicked, this, [this] { m_remote->showSummary(); });
    connect(list, &FileListView::deleteReleased, this,
            [this] { guard(u"zRemDS_Click"_s, [this] { m_remote->deleteFiles(); }); });
    connect(list, &FileListView::renamePressed, this,
            [this] { guard(u"zRemRS_Click"_s, [this] { m_remote->rename(); }); });
    const auto popUp = [this](const QPoint &place) { m_menus->menu(ftpname::remoteMenu).popup(place); };
    connect(list, &FileListView::popupRequested, this, popUp);
    onMenuKey(*m_ui->TView1, popUp);
    connect(list, &FileListView::editStarted, this, [this](const QString &name) { m_remote->renameStarted(name); });
    list->setRenaming(
        [this](const QString &oldName, const QString &newName) { return m_remote->renameEnded(oldName, newName); });
    connect(m_remotePane, &RemotePane::nodeChosen, this, [this](const RemoteNode &node) { m_remote->openNode(node); });
    connect(m_remotePane, &RemotePane::deletePressed, this,
            [this] { guard(u"zRemDF_Click"_s, [this] { m_remote->removeFolder(); }); });
}

void frmmainftp::addHelpKeys()
{
    auto *help = new QAction(u"Help"_s, this);
    help->setShortcut(Qt::CTRL | Qt::Key_F1); // F1 alone opens the handbook, as in every window.
    connect(help, &QAction::triggered, this, &frmmainftp::Help);
    auto *about = new QAction(u"About"_s, this);
    about->setShortcut(QKeySequence::WhatsThis);
    connect(about, &QAction::triggered, this, &frmmainftp::About);
    addActions({help, about});
}

/// Runs each kind of effect. No row is without one.
class frmmainftp::EffectRunner
{
public:
    explicit EffectRunner(frmmainftp &window) : m_window(window) {}

    void operator()(std::monostate) const {}
    void operator()(void (LocalCommands::*run)()) const { (m_window.m_local.get()->*run)(); }
    void operator()(void (RemoteCommands::*run)()) const { (m_window.m_remote.get()->*run)(); }
    void operator()(void (FtpConnection::*run)()) const { (m_window.m_connection.*run)(); }
    void operator()(void (FtpWindowCommands::*run)()) const { (m_window.*run)(); }
    void operator()(const ShowsFiles &effect) const { (m_window.*effect.show)(effect.view); }
    void operator()(const SetsTransferType &effect) const { m_window.m_connection.setTransferType(effect.binary); }

private:
    frmmainftp &m_window;
};

void frmmainftp::run(const FtpMenuItem &item)
{
    guard(item.name.toString() + u"_Click"_s, [&] { std::visit(EffectRunner(*this), item.effect); });
}

void frmmainftp::guard(const QString &procedure, const std::function<void()> &body)
{
    tellingErrors(m_context.prompts, objectName(), procedure, {body});
}

QString frmmainftp::localFolder() const
{
    return m_client.session.ftpLocalFolder;
}

void frmmainftp::setLocalFolder(const QString &folder)
{
    endingQuietly([&] { m_local->moveTo(folder); });
}

void frmmainftp::openLogs()
{
    m_local->moveTo(logFolder(m_context));
}

void frmmainftp::saveLog()
{
    saveSessionLog(m_context, m_ui->txtInfo->toPlainText().replace(u'\n', u"\r\n"_s));
}

void frmmainftp::chooseSite()
{
    openModal(u"FrmConnect"_s);
}

void frmmainftp::closeWindow()
{
    close();
}

void frmmainftp::togglePassive()
{
    markPassive(!m_menus->entry(ftpname::passive).isChecked());
}

void frmmainftp::toggleToolBar()
{
    QAction &entry = m_menus->entry(ftpname::toolBar);
    entry.setChecked(!entry.isChecked());
    m_ui->Toolbar1->setVisible(entry.isChecked());
}

void frmmainftp::showLocalFiles(FileListMode view)
{
    m_ui->ListView1->setView(view);
}

void frmmainftp::showRemoteFiles(FileListMode view)
{
    m_ui->ListView2->setView(view);
}

void frmmainftp::Help()
{
    m_context.prompts.tell(u"Try to do that the same way couple of times,\r\nThen click on help."_s, u"Help"_s);
}

void frmmainftp::About()
{
    openModal(u"frmAbout"_s);
}

void frmmainftp::log(LogEntry entry, const QStringList &parts)
{
    m_comingLog += logText(entry, m_context.clock.now(), parts);
    showLog();
}

void frmmainftp::logSoon(LogEntry entry, const QStringList &parts)
{
    m_comingLog += logText(entry, m_context.clock.now(), parts);
    if (m_sinceLogPainted.hasExpired(logPaintInterval))
        showLog();
}

void frmmainftp::showLog()
{
    if (m_comingLog.isEmpty())
        return;
    m_ui->txtInfo->insertPlainText(std::exchange(m_comingLog, {}));
    m_ui->txtInfo->ensureCursorVisible();
    // The next call to the server blocks, so the window must be painted now; but not for each line of a long log.
    if (m_sinceLogPainted.hasExpired(logPaintInterval)) {
        m_ui->txtInfo->viewport()->repaint();
        m_sinceLogPainted.restart();
    }
}

void frmmainftp::clearLog()
{
    m_comingLog.clear();
    m_ui->txtInfo->clear();
}

void frmmainftp::setPanel(int panel, const QString &text)
{
    QLabel &label = *m_panels[static_cast<std::size_t>(panel - 1)];
    if (label.text() != text)
        label.setText(text);
}

void frmmainftp::setBusy(bool busy)
{
    if (!busy) {
        unsetCursor();
        return;
    }
    setCursor(Qt::WaitCursor);
    m_ui->stBar->repaint();
}

void frmmainftp::markTransferType(bool binary)
{
    m_menus->entry(ftpname::binary).setChecked(binary);
    m_menus->entry(ftpname::ascii).setChecked(!binary);
}

void frmmainftp::markPassive(bool passive)
{
    m_menus->entry(ftpname::passive).setChecked(passive);
}

void frmmainftp::clearRemoteTree()
{
    m_remotePane->clearTree();
}

void frmmainftp::addRemoteRoot()
{
    m_remotePane->addRoot();
}

void frmmainftp::List()
{
    m_remote->list();
}

void frmmainftp::openModal(const QString &form)
{
    m_context.forms.openModal(form, this);
}

void frmmainftp::refreshLocal()
{
    m_local->refill();
}

void frmmainftp::refreshRemote()
{
    m_remote->refresh();
}

void frmmainftp::closeEvent(QCloseEvent *event)
{
    m_connection.closeHandles();
    event->accept();
}

} // namespace zephira
