// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/frmascii.h"

#include "colour/keynotations.h"
#include "ui_frmascii.h"

using namespace Qt::StringLiterals;

namespace zephira {

frmascii::frmascii(const AppContext &, QWidget *owner) : QDialog(owner), m_ui(std::make_unique<Ui::frmascii>())
{
    m_ui->setupUi(this);
    connect(m_ui->Text1, &KeyBox::keyTyped, this, &frmascii::showCode);
}

frmascii::~frmascii() = default;

QString frmascii::binary(int code) const
{
    return binaryDigits(static_cast<char32_t>(code));
}

void frmascii::showCode(char32_t code)
{
    m_ui->Label1->setText(u"Ascii: "_s + QString::number(code));
    m_ui->Label2->setText(u"Binary: "_s + binaryDigits(code));
    m_ui->Label3->setText(u"Hex: "_s + hexadecimalDigits(code));
}

} // namespace zephira
