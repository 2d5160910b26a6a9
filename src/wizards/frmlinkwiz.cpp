// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmlinkwiz.h"

#include "core/pasteitem.h"
#include "ui_frmlinkwiz.h"
#include "widgets/fieldlookups.h"
#include "wizards/linkmarkup.h"
#include "wizards/longfields.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

frmlinkwiz::frmlinkwiz(const AppContext &context, QWidget *owner, const std::shared_ptr<FileLookup> &lookup)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmlinkwiz>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    m_ui->Combo3->addItems(linkPrefixes());
    m_ui->Combo3->setCurrentIndex(-1);
    connect(m_ui->Combo3, &QComboBox::currentIndexChanged, this, [this] {
        putPrefix();
        m_isPrefixPut = true;
    });
    // Choosing the current entry again doesn't change the index, but is still a choice.
    connect(m_ui->Combo3, &QComboBox::activated, this, [this] {
        if (!std::exchange(m_isPrefixPut, false))
            putPrefix();
    });
    offerFiles(m_ui->Command1, m_ui->text5, m_context, lookup);
    connect(m_ui->OKButton, &QPushButton::clicked, this, &frmlinkwiz::insertLink);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &frmlinkwiz::reject);
}

frmlinkwiz::~frmlinkwiz() = default;

void frmlinkwiz::putPrefix()
{
    m_ui->text5->setText(withPrefix(m_ui->Combo3->currentText(), m_ui->text5->text()));
}

void frmlinkwiz::insertLink()
{
    pasteBehindSelection(m_context,
                         linkMarkup({
                             .address = m_ui->text5->text(),
                             .text = m_ui->Text4->text(),
                             .target = m_ui->Combo1->currentText(),
                             .statusText = m_ui->Text1->text(),
                             .title = m_ui->Text2->text(),
                             .name = m_ui->Text3->text(),
                         }));
    accept();
}

} // namespace zephira
