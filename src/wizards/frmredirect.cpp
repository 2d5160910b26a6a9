// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmredirect.h"

#include "core/pasteitem.h"
#include "ui_frmredirect.h"
#include "wizards/elementmarkup.h"
#include "wizards/longfields.h"
#include "wizards/scriptmarkup.h"

#include <QApplication>

namespace zephira {

frmRedirect::frmRedirect(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmRedirect>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmRedirect::insertRefresh);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmRedirect::reject);
    connect(m_ui->Command3, &QPushButton::clicked, this, &frmRedirect::insertStatement);
    connect(m_ui->Command4, &QPushButton::clicked, this, &frmRedirect::reject);
    connect(qApp, &QApplication::focusChanged, this, &frmRedirect::followFocus);
}

frmRedirect::~frmRedirect()
{
    // The base class's destructor takes the focus away. Its signal must not reach this part, which is gone by then.
    disconnect(qApp, nullptr, this, nullptr);
}

void frmRedirect::insertRefresh()
{
    pasteBehindSelection(m_context, refreshMarkup({.address = m_ui->Text1->text(), .delay = m_ui->Text2->text()}));
    accept();
}

void frmRedirect::insertStatement()
{
    pasteBehindSelection(m_context, redirectStatement(m_ui->Text3->text()));
    accept();
}

void frmRedirect::followFocus(const QWidget *, QWidget *now)
{
    if (!now || now->window() != this)
        return;
    QPushButton *const button = m_ui->Frame2->isAncestorOf(now) ? m_ui->Command3 : m_ui->Command1;
    button->setDefault(true);
}

} // namespace zephira
