// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmdropdown.h"

#include "core/formopener.h"
#include "core/pasteitem.h"
#include "core/prompts.h"
#include "ui_frmdropdown.h"
#include "wizards/formmarkup.h"
#include "wizards/longfields.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

enum Column { TextColumn, SelectedColumn, ValueColumn };

/// What the list shows for an initially selected choice.
constexpr QStringView yes = u"Yes";

} // namespace

frmdropdown::frmdropdown(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmdropdown>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    m_ui->ListView1->setHeaderLabels({u"Choice"_s, u"Selected"_s, u"Value"_s});
    for (const int column : {TextColumn, SelectedColumn})
        m_ui->ListView1->setColumnWidth(
            column, qMax(m_ui->ListView1->columnWidth(column), m_ui->ListView1->header()->sectionSizeHint(column)));
    connect(m_ui->Command1, &QPushButton::clicked, this,
            [this] { m_context.forms.openModal(u"frmaddchoice"_s, this); });
    connect(m_ui->Command4, &QPushButton::clicked, this, [this] { moveSelected(-1); });
    connect(m_ui->Command5, &QPushButton::clicked, this, [this] { moveSelected(1); });
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
    connect(m_ui->Command7, &QPushButton::clicked, this, &frmdropdown::insertMenu);
    connect(m_ui->Command6, &QPushButton::clicked, this, &frmdropdown::reject);
}

frmdropdown::~frmdropdown() = default;

void frmdropdown::addChoice(const MenuChoice &choice)
{
    new QTreeWidgetItem(m_ui->ListView1, {choice.text, choice.selected ? yes.toString() : u"No"_s, choice.value});
}

MenuFields frmdropdown::fields() const
{
    MenuFields fields{
        .name = m_ui->Text1->text(),
        .height = m_ui->Text2->text(),
        .multiple = m_ui->Check1->isChecked(),
        .tabOrder = m_ui->Text19->text(),
        .asp = m_ui->Check2->isChecked(),
        .responseWrite = m_ui->Check3->isChecked(),
    };
    for (int row = 0; row < m_ui->ListView1->topLevelItemCount(); ++row) {
        const QTreeWidgetItem &item = *m_ui->ListView1->topLevelItem(row);
        fields.choices.append({item.text(TextColumn), item.text(SelectedColumn) == yes, item.text(ValueColumn)});
    }
    return fields;
}

void frmdropdown::moveSelected(int by)
{
    QTreeWidget &list = *m_ui->ListView1;
    const QList<QTreeWidgetItem *> selected = list.selectedItems();
    if (selected.isEmpty())
        return;
    const int row = list.indexOfTopLevelItem(selected.first());
    if (row + by < 0 || row + by >= list.topLevelItemCount())
        return;
    QTreeWidgetItem *const item = list.takeTopLevelItem(row);
    list.insertTopLevelItem(row + by, item);
    list.setCurrentItem(item);
}

void frmdropdown::insertMenu()
{
    if (m_ui->Text1->text().isEmpty()) {
        m_context.prompts.tell(u"You must fill in name of dropdown"_s);
        m_ui->Text1->setFocus();
        return;
    }
    pasteBehindSelection(m_context, menuMarkup(fields()));
    accept();
}

} // namespace zephira
