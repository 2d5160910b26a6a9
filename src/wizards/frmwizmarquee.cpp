// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmwizmarquee.h"

#include "core/pasteitem.h"
#include "core/prompts.h"
#include "ui_frmwizmarquee.h"
#include "widgets/fieldlookups.h"
#include "wizards/elementmarkup.h"
#include "wizards/longfields.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The caption of the option that is chosen; one always is.
QString checkedCaption(std::initializer_list<const QRadioButton *> options)
{
    const auto *const chosen = std::ranges::find_if(options, &QRadioButton::isChecked);
    return chosen == options.end() ? QString() : (*chosen)->text();
}

} // namespace

frmwizMarquee::frmwizMarquee(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmwizMarquee>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmwizMarquee::insertMarquee);
    connect(m_ui->Command3, &QPushButton::clicked, this, &frmwizMarquee::reject);
    offerColours(m_ui->swatch, m_ui->Text7, m_context);
}

frmwizMarquee::~frmwizMarquee() = default;

MarqueeFields frmwizMarquee::fields() const
{
    return {
        .text = m_ui->Text1->text(),
        .alignment = checkedCaption({m_ui->Option3_0, m_ui->Option3_1, m_ui->Option3_2}),
        .behaviour = checkedCaption({m_ui->Option2_0, m_ui->Option2_1, m_ui->Option2_2}),
        .background = m_ui->Text7->text(),
        .direction = checkedCaption({m_ui->Option1_0, m_ui->Option1_1}),
        .amount = m_ui->Text3->text(),
        .delay = m_ui->Text2->text(),
        .width = m_ui->Text4->text(),
        .height = m_ui->Text5->text(),
        .responseWrite = m_ui->Check4->isChecked(),
    };
}

void frmwizMarquee::insertMarquee()
{
    if (m_ui->Text1->text().isEmpty()) {
        m_context.prompts.tell(u"Fill in some text to scoll"_s);
        m_ui->Text1->setFocus();
        return;
    }
    pasteBehindSelection(m_context, marqueeMarkup(fields()));
    accept();
}

} // namespace zephira
