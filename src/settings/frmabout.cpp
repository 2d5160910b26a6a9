// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/frmabout.h"

#include "core/errorstyles.h"
#include "core/prompts.h"
#include "core/shell.h"
#include "settings/systeminformation.h"
#include "ui_frmabout.h"

#include <QIcon>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int pictureSide = 96;

/// A label with a sentence that ends in a link.
struct Credit {
    QStringView name;
    QStringView sentence;
    QStringView link;
    QStringView address;
};

constexpr Credit credits[] = {
    {u"lblLicence", u"Free software under the", u"GNU General Public License, version 3 or later",
     u"https://www.gnu.org/licenses/gpl-3.0.html"},
    {u"lblQt", u"Windows, dialogs and pages by", u"Qt", u"https://www.qt.io/"},
    {u"lblQScintilla", u"The code view is based on", u"QScintilla",
     u"https://www.riverbankcomputing.com/software/qscintilla/"},
    {u"lblTidy", u"Pages are checked with", u"HTML Tidy", u"https://www.html-tidy.org/"},
};

} // namespace

frmAbout::frmAbout(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_context(context), m_ui(std::make_unique<Ui::frmAbout>())
{
    m_ui->setupUi(this);
    m_ui->lblVersion->setText(u"Version "_s + QStringLiteral(ZEPHIRA_VERSION));
    m_ui->picIcon->setPixmap(windowIcon().pixmap(QSize(pictureSide, pictureSide), devicePixelRatioF()));
    addCredits();

    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmAbout::accept);
    connect(m_ui->cmdSysInfo, &QPushButton::clicked, this, &frmAbout::StartSysInfo);
}

frmAbout::~frmAbout() = default;

void frmAbout::addCredits()
{
    QWidget *before = m_ui->picIcon;
    for (const Credit &credit : credits) {
        const QString sentence = credit.sentence.toString();
        const QString link = credit.link.toString();
        const QString address = credit.address.toString();
        auto *label = new QLabel(u"%1 <a href=\"%2\">%3</a>"_s.arg(sentence, address, link), this);
        label->setObjectName(credit.name);
        label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
        label->setAccessibleName(sentence + u' ' + link);
        label->setToolTip(address);
        connect(label, &QLabel::linkActivated, this, &frmAbout::openLink);
        m_ui->creditLayout->addWidget(label);
        setTabOrder(before, label);
        before = label;
    }
    setTabOrder(before, m_ui->cmdSysInfo);
    setTabOrder(m_ui->cmdSysInfo, m_ui->cmdOK);
    m_ui->cmdOK->setFocus();
}

void frmAbout::openLink(const QString &address)
{
    if (const Result<void> opened = m_context.shell.open(address); !opened)
        tellError(m_context.prompts, opened.error(), windowTitle());
}

void frmAbout::StartSysInfo()
{
    const auto tool = systemInformationTool(m_context.files);
    if (!tool || !m_context.shell.start(tool->program, tool->arguments))
        m_context.prompts.tell(u"System Information Is Unavailable At This Time"_s, {}, Question::Icon::None);
}

} // namespace zephira
