// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/frmconnect.h"

#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/itemroles.h"
#include "core/prompts.h"
#include "core/vbtext.h"
#include "ftp/ftpclient.h"
#include "ftp/ftpconnection.h"
#include "ftp/ftpdesk.h"
#include "ftp/siteprofile.h"
#include "ui_frmconnect.h"
#include "widgets/fileicons.h"
#include "widgets/fileimages.h"
#include "widgets/themeicon.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

const QString anonymousPassword = u"anonymous@example.com"_s;
const QString rootKey = u"r"_s;
const QString applicationTitle = u"Zephira"_s;

constexpr qsizetype shortestServer = 7;

/// Sets a check box or radio button without triggering the effects of a click.
void setQuietly(QAbstractButton *button, bool checked)
{
    const QSignalBlocker quiet(button);
    button->setChecked(checked);
}

} // namespace

FrmConnect::FrmConnect(FtpClient &client, FtpDesk &desk, const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::FrmConnect>()), m_client(client), m_desk(desk), m_context(context)
{
    m_ui->setupUi(this);
    m_ui->txtPass->setText(anonymousPassword);
    m_ui->Command3->setEnabled(desk.isThere());
    m_ui->File1->setPath(context.appPath);
    m_ui->File1->setPattern(u"*.ftp"_s);
    m_ui->TView1->installEventFilter(this);
    buildTree();
    connectControls();
}

FrmConnect::~FrmConnect() = default;

void FrmConnect::connectControls()
{
    connect(m_ui->Command1, &QPushButton::clicked, this, &FrmConnect::save);
    connect(m_ui->Command2, &QPushButton::clicked, this, &FrmConnect::startNew);
    connect(m_ui->Command3, &QPushButton::clicked, this, &FrmConnect::connectToSite);
    connect(m_ui->Command4, &QPushButton::clicked, this, &FrmConnect::reject);
    connect(m_ui->Command5, &QPushButton::clicked, this, &FrmConnect::deleteProfile);
    connect(m_ui->TView1, &QTreeWidget::itemClicked, this, &FrmConnect::load);
    connect(m_ui->TView1, &QTreeWidget::itemSelectionChanged, this,
            [this] { load(m_ui->TView1->selectedItems().value(0)); });

    connect(m_ui->Check1, &QCheckBox::toggled, this, &FrmConnect::setAnonymous);
    for (QAbstractButton *button : std::initializer_list<QAbstractButton *>{m_ui->Check2, m_ui->Option1, m_ui->Option2})
        connect(button, &QAbstractButton::toggled, this, &FrmConnect::noteChange);
    for (QLineEdit *box : {m_ui->txtUser, m_ui->txtPass})
        connect(box, &QLineEdit::textEdited, this, &FrmConnect::accountTyped);

    // The service is always FTP; these two buttons only change which values the fields propose.
    connect(m_ui->Option5, &QRadioButton::toggled, this, [this](bool set) {
        if (set) {
            m_ui->txtPort->setText(u"80"_s);
            m_ui->Label2->setText(u"HTTP://"_s);
        }
    });
    connect(m_ui->Option6, &QRadioButton::toggled, this, [this](bool set) {
        if (set) {
            m_ui->txtPort->setText(u"21"_s);
            m_ui->Label2->setText(u"FTP://"_s);
        }
    });
}

void FrmConnect::buildTree()
{
    QTreeWidget *tree = m_ui->TView1;
    tree->clear();
    auto *root = new QTreeWidgetItem(tree, {u"Profiles"_s});
    root->setData(0, KeyRole, rootKey);
    root->setIcon(0, themeIcon(u"folder-network"_s, QStyle::SP_DirOpenIcon));
    const QIcon picture = fileIcon(rootImage);
    const QStringList files = m_ui->File1->entries();
    for (const QString &file : files) {
        auto *item = new QTreeWidgetItem(root, {file});
        item->setIcon(0, picture);
    }
    root->setExpanded(true);
}

void FrmConnect::load(const QTreeWidgetItem *item)
{
    if (!item)
        return;
    m_chosen = item->text(0);
    if (item->data(0, KeyRole).toString() == rootKey) {
        m_ui->Command5->setEnabled(false);
        return;
    }
    showProfile(readSiteProfile(m_context.appPath + u'/' + m_chosen));
    m_ui->Command5->setEnabled(true);
}

/// Fills fields and boxes from the file without the effects of typing or ticking.
void FrmConnect::showProfile(const SiteProfile &profile)
{
    m_ui->txtSiteName->setText(profile.siteName);
    m_ui->txtServer->setText(profile.server);
    m_ui->txtUser->setText(profile.user);
    m_ui->txtPass->setText(profile.password);
    m_ui->txtPort->setText(profile.port);
    setQuietly(m_ui->Check1, profile.user == anonymousUser);
    setQuietly(m_ui->Check2, !profile.password.isEmpty());
}

SiteProfile FrmConnect::fields() const
{
    return {m_ui->txtSiteName->text(), m_ui->txtServer->text(), m_ui->txtUser->text(),
            m_ui->Check2->isChecked() ? m_ui->txtPass->text() : QString(), m_ui->txtPort->text()};
}

void FrmConnect::save()
{
    const SiteProfile profile = fields();
    if (profile.siteName.isEmpty() || profile.server.isEmpty()) {
        m_context.prompts.tell(u"Fill something in the first two text boxes!"_s, {}, Question::Icon::Exclamation);
        return;
    }
    // A profile that can't be written is ignored silently; the tree then shows no new entry.
    writeSiteProfile(profile, siteProfilePath(m_context.appPath, profile.siteName));
    buildTree();
    m_ui->Command5->setEnabled(false);
    m_context.prompts.tell(u"Profil Saved"_s);
}

void FrmConnect::startNew()
{
    m_ui->txtSiteName->clear();
    m_ui->txtServer->clear();
    setAnonymous(m_ui->Check1->isChecked());
    m_ui->txtPort->setText(u"21"_s);
}

void FrmConnect::connectToSite()
{
    if (m_ui->txtServer->text().size() < shortestServer) {
        m_context.prompts.tell(u"Wrong adress!"_s, {}, Question::Icon::None);
        return;
    }
    tellingErrors(
        m_context.prompts, objectName(), u"Command3_Click"_s, {[this] {
            m_desk.clearRemoteTree();
            m_desk.clearLog();
            FtpSession &session = m_client.session;
            session.ftpServer = m_ui->txtServer->text();
            session.ftpUser = m_ui->txtUser->text();
            session.ftpPassword = m_ui->txtPass->text();
            session.ftpPort = CInt(m_ui->txtPort->text());
            session.ftpRemoteFolder.clear();
            if (m_ui->txtSiteName->text().isEmpty())
                m_ui->txtSiteName->setText(applicationTitle);
            const ConnectRequest request{m_ui->txtSiteName->text(), m_ui->Option1->isChecked(),
                                         m_ui->Option3->isChecked()};
            if (FtpConnection(m_client, m_desk, m_context.prompts).connectToServer(request, [this] { hide(); }))
                accept();
        }});
}

void FrmConnect::deleteProfile()
{
    if (m_context.prompts.ask({u"Are you sure you want to delete this profile: "_s + m_chosen + u"?"_s,
                               {},
                               Question::Icon::None,
                               Question::Buttons::YesNo})
        != Answer::Yes)
        return;
    tellingErrors(m_context.prompts, objectName(), u"Command5_Click"_s, {[this] {
                      orRaise(m_context.files.remove(m_context.appPath + u'/' + m_chosen));
                      buildTree();
                      m_ui->Command5->setEnabled(false);
                  }});
}

void FrmConnect::setAnonymous(bool ticked)
{
    m_ui->txtUser->setText(ticked ? anonymousUser.toString() : QString());
    m_ui->txtPass->setText(ticked ? anonymousPassword : QString());
    noteChange();
}

/// Unticks the box as a click would, which empties both fields, including the typed character.
void FrmConnect::accountTyped()
{
    m_ui->Check1->setChecked(false);
}

/// The fields no longer match the chosen profile.
void FrmConnect::noteChange()
{
    m_ui->Command5->setEnabled(false);
}

bool FrmConnect::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Delete)
        return QDialog::eventFilter(watched, event);
    if (const QTreeWidgetItem *item = m_ui->TView1->selectedItems().value(0)) {
        m_chosen = item->text(0);
        deleteProfile();
    }
    return true;
}

} // namespace zephira
