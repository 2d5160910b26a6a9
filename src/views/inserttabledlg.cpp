// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/inserttabledlg.h"

#include "core/appcontext.h"
#include "core/designer.h"
#include "core/errorstyles.h"
#include "core/prompts.h"
#include "ui_inserttabledlg.h"
#include "views/tabledimension.h"

using namespace Qt::StringLiterals;

namespace zephira {

InsertTableDlg::InsertTableDlg(const AppContext &context, QWidget *owner)
    : QDialog(owner)
    , m_ui(std::make_unique<Ui::InsertTableDlg>())
    , m_designer(context.designer)
    , m_prompts(context.prompts)
{
    m_ui->setupUi(this);
    const InsertTableParam defaults;
    m_ui->Rows->setText(QString::number(defaults.rows));
    m_ui->Cols->setText(QString::number(defaults.columns));
    m_ui->TableAttrs->setText(defaults.tableAttributes);
    m_ui->TableAttrs->setCursorPosition(0);
    m_ui->CellAttrs->setText(defaults.cellAttributes);
    m_ui->TableCaption->setText(defaults.caption);
    connect(m_ui->OkCmd, &QPushButton::clicked, this, &InsertTableDlg::insert);
    connect(m_ui->CancelCmd, &QPushButton::clicked, this, &InsertTableDlg::reject);
}

InsertTableDlg::~InsertTableDlg() = default;

std::optional<int> InsertTableDlg::dimension(QLineEdit &box, const QString &message)
{
    const std::optional<int> number = tableDimension(box.text());
    if (!number) {
        m_prompts.tell(message, {}, Question::Icon::Critical);
        box.setFocus();
        box.selectAll();
    }
    return number;
}

void InsertTableDlg::insert()
{
    const auto rows = dimension(*m_ui->Rows, u"Please specify a positive integer for the number of table rows."_s);
    if (!rows)
        return;
    const auto columns =
        dimension(*m_ui->Cols, u"Please specify a positive integer for the number of table columns."_s);
    if (!columns)
        return;
    const InsertTableParam table{.rows = *rows,
                                 .columns = *columns,
                                 .tableAttributes = m_ui->TableAttrs->text(),
                                 .cellAttributes = m_ui->CellAttrs->text(),
                                 .caption = m_ui->TableCaption->text()};
    if (table.isTooLarge()) {
        m_prompts.tell(u"Please specify a table of no more than %1 cells."_s.arg(InsertTableParam::mostCells), {},
                       Question::Icon::Critical);
        m_ui->Rows->setFocus();
        m_ui->Rows->selectAll();
        return;
    }
    endingQuietly([&] {
        m_designer.execCommand(DesignerCommand::InsertTable, DesignerPrompting::DontPromptUser,
                               QVariant::fromValue(table));
    });
    accept();
}

} // namespace zephira
