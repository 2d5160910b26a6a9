// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/formwizard.h"

#include "core/pasteitem.h"
#include "ui_formwizard.h"
#include "widgets/fieldlookups.h"
#include "wizards/formmarkup.h"
#include "wizards/longfields.h"

namespace zephira {

FormWizard::FormWizard(const AppContext &context, QWidget *owner, const std::shared_ptr<FileLookup> &lookup)
    : QDialog(owner), m_ui(std::make_unique<Ui::FormWizard>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    offerFiles(m_ui->browseText8, m_ui->Text8, m_context, lookup);
    QFont large = m_ui->banner->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.4);
    m_ui->banner->setFont(large);
    connect(m_ui->Command10, &QPushButton::clicked, this, &FormWizard::insertForm);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &FormWizard::reject);
}

FormWizard::~FormWizard() = default;

void FormWizard::insertForm()
{
    const auto markup = formMarkup({
        .name = m_ui->Text6->text(),
        .action = m_ui->Text8->text(),
        .method = m_ui->Combo4->currentText(),
        .count = m_ui->Text7->text(),
    });
    if (pasteOrTell(m_context, markup, windowTitle()))
        accept();
}

} // namespace zephira
