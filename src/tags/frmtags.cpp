// SPDX-License-Identifier: GPL-3.0-or-later
#include "tags/frmtags.h"

#include "core/appcontext.h"
#include "core/editingcontrol.h"
#include "tags/tagpalette.h"
#include "ui_frmtags.h"

namespace zephira {

frmTags::frmTags(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmTags>()), m_editor(context.editor)
{
    m_ui->setupUi(this);
    // Each tag is inserted at the top, so that the last row of the table comes first.
    for (const PaletteTag &tag : paletteTags())
        m_ui->TagList->insertItem(0, tag.item.toString());
    // Return in the list triggers Command1, which is the default button.
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmTags::insertSelected);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmTags::reject);
    connect(m_ui->TagList, &QListWidget::itemDoubleClicked, this, &frmTags::insertSelected);
}

frmTags::~frmTags() = default;

void frmTags::insertSelected()
{
    const QList<QListWidgetItem *> selected = m_ui->TagList->selectedItems();
    for (const QListWidgetItem *item : selected) {
        const QStringView markup = paletteMarkup(item->text());
        if (!markup.isNull())
            m_editor.setSelText(markup.toString());
    }
}

} // namespace zephira
