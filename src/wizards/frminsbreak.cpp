// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frminsbreak.h"

#include "core/pasteitem.h"
#include "ui_frminsbreak.h"
#include "wizards/elementmarkup.h"

namespace zephira {

frminsbreak::frminsbreak(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frminsbreak>()), m_context(context)
{
    m_ui->setupUi(this);
    connect(m_ui->Command1, &QPushButton::clicked, this, &frminsbreak::insertBreak);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frminsbreak::reject);
}

frminsbreak::~frminsbreak() = default;

LineBreak frminsbreak::chosen() const
{
    if (m_ui->Option1_0->isChecked())
        return LineBreak::Normal;
    if (m_ui->Option1_1->isChecked())
        return LineBreak::ClearRight;
    if (m_ui->Option1_2->isChecked())
        return LineBreak::ClearLeft;
    return m_ui->Option1_3->isChecked() ? LineBreak::ClearBoth : LineBreak::Unchosen;
}

void frminsbreak::insertBreak()
{
    pasteBehindSelection(m_context, breakMarkup(chosen()));
    accept();
}

} // namespace zephira
