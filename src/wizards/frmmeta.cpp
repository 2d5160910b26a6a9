// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmmeta.h"

#include "core/formopener.h"
#include "core/inserter.h"
#include "ui_frmmeta.h"
#include "widgets/selectonfocus.h"
#include "wizards/longfields.h"
#include "wizards/metamarkup.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The text as it was typed; toPlainText() would turn each non-breaking space into a plain one.
QString typedText(const QPlainTextEdit &box)
{
    QString text = box.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u"\r\n"_s);
    return text.replace(QChar::LineSeparator, u"\r\n"_s);
}

} // namespace

frmMeta::frmMeta(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmMeta>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    selectOnFocus(m_ui->txtDesc);
    selectOnFocus(m_ui->txtKeyWords);
    selectOnFocus(m_ui->txtAuthor);
    selectOnFocus(m_ui->txtCopy);
    connect(m_ui->Command4, &QPushButton::clicked, this, &frmMeta::insertTags);
    connect(m_ui->Command1, &QPushButton::clicked, this, [this] { m_context.forms.openModal(u"frmsavetags"_s, this); });
    connect(m_ui->Command2, &QPushButton::clicked, this, [this] { m_context.forms.openModal(u"frmloadtags"_s, this); });
    connect(m_ui->Command3, &QPushButton::clicked, this, &frmMeta::reject);
}

frmMeta::~frmMeta() = default;

SiteFacts frmMeta::facts() const
{
    return {
        .description = typedText(*m_ui->txtDesc),
        .keywords = typedText(*m_ui->txtKeyWords),
        .author = m_ui->txtAuthor->text(),
        .copyright = m_ui->txtCopy->text(),
    };
}

void frmMeta::setFacts(const SiteFacts &facts)
{
    m_ui->txtDesc->setPlainText(facts.description);
    m_ui->txtKeyWords->setPlainText(facts.keywords);
    m_ui->txtAuthor->setText(facts.author);
    m_ui->txtCopy->setText(facts.copyright);
}

void frmMeta::insertTags()
{
    m_context.inserter.InsertAtCaret(metaMarkup(facts()));
    accept();
}

} // namespace zephira
