// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmiframe.h"

#include "core/pasteitem.h"
#include "ui_frmiframe.h"
#include "widgets/fieldlookups.h"
#include "wizards/elementmarkup.h"
#include "wizards/longfields.h"

namespace zephira {

frmiframe::frmiframe(const AppContext &context, QWidget *owner, const std::shared_ptr<FileLookup> &lookup)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmiframe>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    offerFiles(m_ui->browseSource, m_ui->source, m_context, lookup);
    // The alignment is empty until one is chosen.
    m_ui->fralign->setCurrentIndex(-1);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmiframe::insertFrame);
}

frmiframe::~frmiframe() = default;

void frmiframe::insertFrame()
{
    pasteBehindSelection(m_context,
                         inlineFrameMarkup({
                             .source = m_ui->source->text(),
                             .name = m_ui->frname->text(),
                             .width = m_ui->frwidth->text(),
                             .height = m_ui->frheight->text(),
                             .marginWidth = m_ui->frmw->text(),
                             .marginHeight = m_ui->frmh->text(),
                             .alignment = m_ui->fralign->currentText(),
                             .scrolling = m_ui->frscroll->currentText(),
                             .border = m_ui->frborder->currentText(),
                         }));
    accept();
}

} // namespace zephira
