// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/doctype.h"

#include "core/editingcontrol.h"
#include "ui_doctype.h"
#include "wizards/documenttypes.h"

using namespace Qt::StringLiterals;

namespace zephira {

doctype::doctype(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::doctype>()), m_context(context)
{
    m_ui->setupUi(this);
    QLineEdit *const boxes[] = {m_ui->Text1, m_ui->Text2, m_ui->Text3, m_ui->Text4, m_ui->Text5, m_ui->Text6};
    auto *const *box = boxes;
    for (const DocumentType &type : documentTypes()) {
        m_ui->Combo1->addItem(type.name.toString());
        if (!type.line.isEmpty())
            (*box++)->setText(type.line.toString());
    }
    m_ui->Combo1->setCurrentIndex(-1);
    connect(m_ui->OKButton, &QPushButton::clicked, this, &doctype::insertLine);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &doctype::reject);
}

doctype::~doctype() = default;

void doctype::insertLine()
{
    const int row = m_ui->Combo1->currentIndex();
    const QStringView line = row < 0 ? QStringView() : documentTypes()[static_cast<std::size_t>(row)].line;
    if (!line.isEmpty()) {
        CodeMaxRange place = m_context.editor.selection(false);
        m_context.editor.select({});
        m_context.editor.setSelText(line.toString() + u"\r\n"_s);
        ++place.StartLineNo;
        ++place.EndLineNo;
        m_context.editor.select(place);
    }
    accept();
}

} // namespace zephira
