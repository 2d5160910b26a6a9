// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmframeswiz.h"

#include "core/pasteitem.h"
#include "ui_frmframeswiz.h"
#include "widgets/fieldlookups.h"
#include "wizards/framesmarkup.h"
#include "wizards/longfields.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zephira {

frmFramesWiz::frmFramesWiz(const AppContext &context, QWidget *owner, const std::shared_ptr<FileLookup> &lookup)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmFramesWiz>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    offerFiles(m_ui->browseSource1, m_ui->Source1, m_context, lookup);
    offerFiles(m_ui->browseSource2, m_ui->Source2, m_context, lookup);
    offerFiles(m_ui->browseSource3, m_ui->Source3, m_context, lookup);
    offerFiles(m_ui->browseSource4, m_ui->Source4, m_context, lookup);
    connect(m_ui->optV, &QRadioButton::clicked, this, [this] { arm(FrameBars::Bar::Vertical); });
    connect(m_ui->optH, &QRadioButton::clicked, this, [this] { arm(FrameBars::Bar::Horizontal); });
    connect(m_ui->M, &FrameCanvas::mouseMoved, this, [this](double x, double y) {
        m_bars.moveTo(x, y);
        showBars();
    });
    connect(m_ui->M, &FrameCanvas::stepped, this, [this](int right, int down) {
        m_bars.moveBy(right, down);
        showBars();
    });
    connect(m_ui->M, &FrameCanvas::clicked, this, [this] {
        m_bars.click();
        showBars();
    });
    connect(m_ui->MSapmle, &FramePreview::paneClicked, this, &frmFramesWiz::choose);
    connect(m_ui->cmdBack, &QPushButton::clicked, this, &frmFramesWiz::back);
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmFramesWiz::next);
    connect(m_ui->cmdFinish, &QPushButton::clicked, this, [this] {
        BuildCode();
        accept();
    });
    showBars();
}

frmFramesWiz::~frmFramesWiz() = default;

void frmFramesWiz::BuildCode()
{
    pasteBehindSelection(m_context, framesMarkup(fields()));
}

FrameFields frmFramesWiz::frame(int group) const
{
    const auto text = [&](QLatin1StringView name) {
        return findChild<QLineEdit *>(name + QString::number(group))->text();
    };
    const auto isOn = [&](QLatin1StringView name) {
        return findChild<QCheckBox *>(name + QString::number(group))->isChecked();
    };
    return {
        .name = text("Name"_L1),
        .source = text("Source"_L1),
        .marginWidth = text("MW"_L1),
        .marginHeight = text("MH"_L1),
        .scrolling = findChild<QComboBox *>(u"CoS%1"_s.arg(group))->currentText(),
        .border = isOn("Border"_L1),
        .fixedSize = isOn("Resize"_L1),
    };
}

FramesFields frmFramesWiz::fields() const
{
    // The groups are numbered column by column.
    return {m_rowPercent, m_colPercent, {frame(1), frame(3), frame(2), frame(4)}};
}

void frmFramesWiz::arm(FrameBars::Bar bar)
{
    m_bars.arm(bar);
    showBars();
    // There the arrow keys move the bar that was just chosen.
    m_ui->M->setFocus();
}

void frmFramesWiz::showBars()
{
    m_ui->M->vertical().setPlace(m_bars.left());
    m_ui->M->vertical().setArmed(m_bars.TrackV());
    m_ui->M->horizontal().setPlace(m_bars.top());
    m_ui->M->horizontal().setArmed(m_bars.TrackH());
    m_ui->LBLv->setText(m_bars.verticalLabel());
    m_ui->LBLh->setText(m_bars.horizontalLabel());
}

void frmFramesWiz::next()
{
    m_ui->Command1->setEnabled(false);
    m_ui->cmdBack->setEnabled(true);
    m_ui->cmdBack->setText(u"&Back"_s);
    m_ui->cmdFinish->setEnabled(true);
    m_ui->cmdFinish->setDefault(true);
    showGroup(1);
    m_ui->MSapmle->divide(static_cast<int>(std::floor(m_bars.left())), static_cast<int>(std::floor(m_bars.top())));
    m_ui->pages->setCurrentWidget(m_ui->FrameTwo);
    m_colPercent = m_bars.colPercent();
    m_rowPercent = m_bars.rowPercent();
    m_ui->Name1->setFocus();
}

void frmFramesWiz::back()
{
    if (m_ui->cmdBack->text() != u"&Back") {
        reject();
        return;
    }
    m_ui->pages->setCurrentWidget(m_ui->FrameOne);
    m_ui->cmdBack->setText(u"&Cancel"_s);
    m_ui->cmdFinish->setEnabled(false);
    m_ui->Command1->setEnabled(true);
    m_ui->Command1->setDefault(true);
    // The button just pressed now closes the wizard; the Return key must not press it again.
    m_ui->M->setFocus();
}

void frmFramesWiz::choose(int group)
{
    if (!m_ui->MSapmle->isChosen(group))
        showGroup(group);
}

void frmFramesWiz::showGroup(int group)
{
    m_ui->MSapmle->choose(group);
    m_ui->groups->setCurrentWidget(findChild<QWidget *>(u"F%1"_s.arg(group)));
}

} // namespace zephira
