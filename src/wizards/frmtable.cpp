// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmtable.h"

#include "core/pasteitem.h"
#include "ui_frmtable.h"
#include "widgets/fieldlookups.h"
#include "wizards/longfields.h"
#include "wizards/tablemarkup.h"

namespace zephira {

frmTable::frmTable(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmTable>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    offerColours(m_ui->Text8Swatch, m_ui->Text8, m_context);
    offerColours(m_ui->bordercolSwatch, m_ui->bordercol, m_context);
    offerColours(m_ui->lightcolSwatch, m_ui->lightcol, m_context);
    offerColours(m_ui->darkcolSwatch, m_ui->darkcol, m_context);
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmTable::insertTable);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmTable::reject);
    connect(m_ui->Command3, &QPushButton::clicked, this, &frmTable::insertCell);
    // Only the script form has write statements, so ticking that box ticks the other, and unticking the other unticks
    // it.
    connect(m_ui->Check3, &QCheckBox::toggled, this, [this](bool on) {
        if (on)
            m_ui->Check2->setChecked(true);
    });
    connect(m_ui->Check2, &QCheckBox::toggled, this, [this](bool on) {
        if (!on)
            m_ui->Check3->setChecked(false);
    });
}

frmTable::~frmTable() = default;

bool frmTable::AddTable(qint32 columns, qint32 rows, const QString &width, const QString &background,
                        const QString &border, const QString &lightAndDark)
{
    return pasteOrTell(m_context,
                       plainTableMarkup({columns, rows}, tableFields(), {width, background, border, lightAndDark}),
                       windowTitle());
}

bool frmTable::AddTableAsp(qint32 columns, qint32 rows, const QString &width, const QString &background,
                           const QString &border, const QString &lightAndDark)
{
    return pasteOrTell(m_context,
                       aspTableMarkup({columns, rows}, tableFields(), {width, background, border, lightAndDark}),
                       windowTitle());
}

TableFields frmTable::tableFields() const
{
    return {
        .alignment = m_ui->Combo1->currentText(),
        .borderSize = m_ui->Text3->text(),
        .cellPadding = m_ui->Text4->text(),
        .cellSpacing = m_ui->Text5->text(),
        .hasWidth = m_ui->Check1->isChecked(),
        .width = m_ui->Text6->text(),
        .widthUnit = m_ui->Option1_0->isChecked() ? TableFields::WidthUnit::Pixels : TableFields::WidthUnit::Percent,
        .asp = m_ui->Check2->isChecked(),
        .responseWrite = m_ui->Check3->isChecked(),
        .backgroundColour = m_ui->Text8->text(),
        .borderColour = m_ui->bordercol->text(),
        .lightColour = m_ui->lightcol->text(),
        .darkColour = m_ui->darkcol->text(),
    };
}

CellFields frmTable::cellFields() const
{
    return {
        .span = m_ui->Combo4->currentText(),
        .spanCount = m_ui->Text7->text(),
        .horizontal = m_ui->Combo5->currentText(),
        .vertical = m_ui->Combo7->currentText(),
    };
}

std::optional<qint32> frmTable::countIn(QLineEdit *field)
{
    const std::optional<qint32> count = tableCount(field->text());
    if (!count) {
        field->setFocus();
        field->selectAll();
    }
    return count;
}

void frmTable::insertTable()
{
    const std::optional<qint32> columns = countIn(m_ui->Text1);
    if (!columns)
        return;
    const std::optional<qint32> rows = countIn(m_ui->Text2);
    if (!rows)
        return;
    const TableFields fields = tableFields();
    const auto [width, background, border, lightAndDark] = tableAttributes(fields);
    const auto add = fields.asp ? &frmTable::AddTableAsp : &frmTable::AddTable;
    if ((this->*add)(*columns, *rows, width, background, border, lightAndDark))
        accept();
}

void frmTable::insertCell()
{
    pasteBehindSelection(m_context, cellMarkup(cellFields()));
}

} // namespace zephira
