// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmtables.h"

#include "core/pasteitem.h"
#include "ui_frmtables.h"
#include "wizards/longfields.h"
#include "wizards/tablemarkup.h"
#include "wizards/windowdragger.h"

namespace zephira {

frmTables::frmTables(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmTables>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    new WindowDragger(m_ui->Frame1);
    connect(m_ui->Frame1, &SizePicker::picked, this, &frmTables::pick);
    connect(m_ui->cmdCreate, &QPushButton::clicked, this, &frmTables::create);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmTables::reject);
    pick(1, 1);
}

frmTables::~frmTables() = default;

bool frmTables::AddTable(qint32 columns, qint32 rows)
{
    return pasteOrTell(m_context, simpleTableMarkup({.columns = columns, .rows = rows}), windowTitle());
}

void frmTables::CleanUp()
{
    m_ui->Frame1->clear();
}

void frmTables::pick(int rows, int columns)
{
    m_ui->lblTable->setNum((rows - 1) * SizePicker::sideLength + columns);
    CleanUp();
    m_ui->Frame1->highlight(rows, columns);
    m_ui->txtRows->setText(QString::number(rows));
    m_ui->txtColls->setText(QString::number(columns));
}

void frmTables::create()
{
    // A text that isn't a number counts as 0. The text boxes decide, not the grid.
    const qint32 columns = tableCount(m_ui->txtColls->text()).value_or(0);
    const qint32 rows = tableCount(m_ui->txtRows->text()).value_or(0);
    if (AddTable(columns, rows))
        accept();
}

} // namespace zephira
