// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmvbwiz.h"

#include "core/pasteitem.h"
#include "ui_frmvbwiz.h"
#include "wizards/longfields.h"
#include "wizards/scriptmarkup.h"

namespace zephira {

frmvbwiz::frmvbwiz(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmvbwiz>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmvbwiz::insertStatement);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmvbwiz::reject);
}

frmvbwiz::~frmvbwiz() = default;

void frmvbwiz::insertStatement()
{
    pasteBehindSelection(m_context,
                         ifMarkup({
                             .left = m_ui->Text1->text(),
                             .comparison = m_ui->Combo1->currentText(),
                             .right = m_ui->Text2->text(),
                             .thenStatement = m_ui->Text3->text(),
                             .elseStatement = m_ui->Text4->text(),
                         }));
    accept();
}

} // namespace zephira
