// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/frmtip.h"

#include "core/filestore.h"
#include "core/usersettings.h"
#include "files/textfile.h"
#include "settings/tips.h"
#include "ui_frmtip.h"
#include "widgets/formroom.h"

#include <QPushButton>
#include <QRandomGenerator>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace zephira {

frmTip::frmTip(const AppContext &context, QWidget *owner)
    : frmTip(context, owner, [] { return QRandomGenerator::global()->generateDouble(); })
{}

frmTip::frmTip(const AppContext &context, QWidget *owner, Random random)
    : QDialog(owner), m_context(context), m_random(std::move(random)), m_ui(std::make_unique<Ui::frmTip>())
{
    m_ui->setupUi(this);
    const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    const QIcon hint = QIcon::fromTheme(u"help-hint"_s, style()->standardIcon(QStyle::SP_MessageBoxInformation));
    m_ui->picTip->setPixmap(hint.pixmap(QSize(side, side), devicePixelRatioF()));
    m_ui->tipFrame->setBackgroundRole(QPalette::Base);

    m_ui->chkLoadTipsAtStartup->setChecked(wholeNumber(context.settings, UserSetting::ShowTips) != 0);

    connect(m_ui->chkLoadTipsAtStartup, &QCheckBox::clicked, this, &frmTip::saveSwitch);
    connect(m_ui->cmdNextTip, &QPushButton::clicked, this, &frmTip::showNextTip);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmTip::accept);
    loadTips();
}

frmTip::~frmTip() = default;

void frmTip::loadTips()
{
    Result<QByteArray> bytes = m_context.files.read(m_context.appPath + u"/TIPOFDAY.TXT"_s);
    if (!bytes) {
        m_ui->lblTipText->setText(tipInstructions());
        return;
    }
    m_tips = tipLines(QString::fromUtf8(decodeText(std::move(bytes).value()).utf8));
    showNextTip();
}

void frmTip::showNextTip()
{
    if (m_tips.isEmpty())
        return;
    m_ui->lblTipText->setText(m_tips.at(drawTip(m_random(), static_cast<int>(m_tips.size())) - 1));
    // The next tip may be longer.
    if (isVisible())
        giveRoom(*this);
}

void frmTip::saveSwitch(bool ticked)
{
    writeSwitch(m_context.settings, UserSetting::ShowTips, ticked);
}

} // namespace zephira
