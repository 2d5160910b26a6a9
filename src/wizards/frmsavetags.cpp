// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmsavetags.h"

#include "core/errorstyles.h"
#include "ui_frmsavetags.h"
#include "wizards/frmmeta.h"
#include "wizards/longfields.h"
#include "wizards/savedtags.h"

namespace zephira {

frmsavetags::frmsavetags(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmsavetags>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmsavetags::save);
}

frmsavetags::~frmsavetags() = default;

void frmsavetags::save()
{
    if (const auto *wizard = qobject_cast<const frmMeta *>(parentWidget())) {
        const auto saved = saveTags(wizard->facts(), savedTagsFolder(m_context.appPath), m_ui->Text1->text());
        if (!saved) {
            tellError(m_context.prompts, saved.error(), windowTitle());
            m_ui->Text1->setFocus();
            return;
        }
    }
    accept();
}

} // namespace zephira
