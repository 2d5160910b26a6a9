// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/gotodialog.h"

#include "ui_gotodialog.h"

namespace zephira {

GoToDialog::GoToDialog(QWidget *owner) : QDialog(owner), m_ui(std::make_unique<Ui::GoToDialog>())
{
    m_ui->setupUi(this);
    connect(m_ui->buttons, &QDialogButtonBox::accepted, this, &GoToDialog::accept);
    connect(m_ui->buttons, &QDialogButtonBox::rejected, this, &GoToDialog::reject);
}

GoToDialog::~GoToDialog() = default;

void GoToDialog::ask(int currentLine, int lineCount)
{
    m_lineCount = lineCount;
    m_ui->lblLine->setText(tr("&Line number (1 to %1):").arg(lineCount));
    m_ui->txtLine->setText(QString::number(currentLine));
    m_ui->txtLine->selectAll();
    m_ui->txtLine->setFocus();
    m_ui->lblMessage->clear();
    QDialog::open();
}

void GoToDialog::accept()
{
    bool isNumber = false;
    const int line = m_ui->txtLine->text().trimmed().toInt(&isNumber);
    if (!isNumber || line < 1 || line > m_lineCount) {
        m_ui->lblMessage->setText(tr("Please enter a number from 1 to %1.").arg(m_lineCount));
        m_ui->txtLine->selectAll();
        m_ui->txtLine->setFocus();
        return;
    }
    QDialog::accept();
    Q_EMIT chosen(line);
}

} // namespace zephira
