// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/frmabout.h"

#include "core/clipboard.h"
#include "core/errorstyles.h"
#include "core/prompts.h"
#include "core/shell.h"
#include "settings/libraries.h"
#include "settings/systeminformation.h"
#include "ui_frmabout.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int pictureSide = 96;

/// The first of the credits, in the form of the others.
const Library licence{u"lblLicence", u"Free software under the", u"GNU General Public License, version 3 or later",
                      u"https://www.gnu.org/licenses/gpl-3.0.html"};

} // namespace

frmAbout::frmAbout(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_context(context), m_ui(std::make_unique<Ui::frmAbout>())
{
    m_ui->setupUi(this);
    m_ui->lblVersion->setText(u"Version "_s + QStringLiteral(ZEPHIRA_VERSION));
    m_ui->picIcon->setPixmap(windowIcon().pixmap(QSize(pictureSide, pictureSide), devicePixelRatioF()));
    addCredits();

    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmAbout::accept);
    connect(m_ui->cmdCopy, &QPushButton::clicked, this, &frmAbout::copyVersions);
    connect(m_ui->cmdSysInfo, &QPushButton::clicked, this, &frmAbout::StartSysInfo);
}

frmAbout::~frmAbout() = default;

void frmAbout::addCredits()
{
    QWidget *before = m_ui->picIcon;
    std::vector<Library> credits = libraries();
    credits.insert(credits.begin(), licence);
    for (const Library &credit : std::as_const(credits)) {
        const QString sentence = credit.sentence.toString();
        const QString link = credit.name.toString();
        const QString address = credit.address.toString();
        auto *label =
            new QLabel(u"%1 <a href=\"%2\">%3</a> %4"_s.arg(sentence, address, link, credit.version).trimmed(), this);
        label->setObjectName(credit.label);
        label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
        label->setAccessibleName((sentence + u' ' + link + u' ' + credit.version).trimmed());
        label->setToolTip(address);
        connect(label, &QLabel::linkActivated, this, &frmAbout::openLink);
        m_ui->creditLayout->addWidget(label);
        setTabOrder(before, label);
        before = label;
    }
    setTabOrder(before, m_ui->cmdSysInfo);
    setTabOrder(m_ui->cmdSysInfo, m_ui->cmdCopy);
    setTabOrder(m_ui->cmdCopy, m_ui->cmdOK);
    m_ui->cmdOK->setFocus();
}

void frmAbout::openLink(const QString &address)
{
    if (const Result<void> opened = m_context.shell.open(address); !opened)
        tellError(m_context.prompts, opened.error(), windowTitle());
}

void frmAbout::copyVersions()
{
    const QString desktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP", u"unknown"_s);
    m_context.clipboard.setText(
        versionReport(QStringLiteral(ZEPHIRA_VERSION), desktop + u" ("_s + QGuiApplication::platformName() + u')'));
}

void frmAbout::StartSysInfo()
{
    const auto tool = systemInformationTool(m_context.files);
    if (!tool || !m_context.shell.start(tool->program, tool->arguments))
        m_context.prompts.tell(u"System Information Is Unavailable At This Time"_s, {}, Question::Icon::None);
}

} // namespace zephira
