// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/inserthtmldlg.h"

#include "core/appcontext.h"
#include "core/designer.h"
#include "core/errorstyles.h"
#include "ui_inserthtmldlg.h"

namespace zephira {

InsertHTMLDlg::InsertHTMLDlg(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::InsertHTMLDlg>()), m_designer(context.designer)
{
    m_ui->setupUi(this);
    connect(m_ui->CmdOK, &QPushButton::clicked, this, &InsertHTMLDlg::paste);
    connect(m_ui->CmdCancel, &QPushButton::clicked, this, &InsertHTMLDlg::reject);
}

InsertHTMLDlg::~InsertHTMLDlg() = default;

void InsertHTMLDlg::paste()
{
    endingQuietly([&] { m_designer.pasteHtml(m_ui->HTMLText->toPlainText()); });
    accept();
}

} // namespace zephira
