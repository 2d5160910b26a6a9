// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmcsv.h"

#include "core/inserter.h"
#include "ui_frmcsv.h"
#include "wizards/servervariables.h"

#include <QKeyEvent>

namespace zephira {

frmcsv::frmcsv(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmcsv>()), m_context(context)
{
    m_ui->setupUi(this);
    m_ui->Combo1->addItems(serverVariables());
    m_ui->Combo1->setCurrentIndex(-1);
}

frmcsv::~frmcsv() = default;

void frmcsv::done(int result)
{
    const QString name = m_ui->Combo1->currentText();
    if (!name.isEmpty())
        m_context.inserter.InsertAtCaret(name);
    QDialog::done(result);
}

void frmcsv::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        accept();
    else
        QDialog::keyPressEvent(event);
}

} // namespace zephira
