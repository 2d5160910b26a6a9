// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmaddchoice.h"

#include "core/prompts.h"
#include "ui_frmaddchoice.h"
#include "wizards/formmarkup.h"
#include "wizards/frmdropdown.h"
#include "wizards/longfields.h"

using namespace Qt::StringLiterals;

namespace zephira {

frmaddchoice::frmaddchoice(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmaddchoice>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    connect(m_ui->Text1, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (!m_ui->Check1->isChecked())
            m_ui->Text2->setText(text);
    });
    connect(m_ui->Check1, &QCheckBox::toggled, this, &frmaddchoice::applyOwnValue);
    applyOwnValue(false);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmaddchoice::addChoice);
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmaddchoice::reject);
}

frmaddchoice::~frmaddchoice() = default;

void frmaddchoice::applyOwnValue(bool on)
{
    m_ui->Text2->setEnabled(on);
    // Nothing but this color is its own, so that the others follow the desktop.
    QPalette colours;
    if (!on)
        colours.setColor(QPalette::Base, palette().color(QPalette::Window));
    m_ui->Text2->setPalette(colours);
}

void frmaddchoice::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyOwnValue(m_ui->Text2->isEnabled());
}

void frmaddchoice::addChoice()
{
    if (m_ui->Text1->text().isEmpty()) {
        m_context.prompts.tell(u"You must fill all fields"_s);
        m_ui->Text1->setFocus();
        return;
    }
    if (auto *menu = qobject_cast<frmdropdown *>(parentWidget())) {
        menu->addChoice({
            .text = m_ui->Text1->text(),
            .selected = m_ui->Option1_0->isChecked(),
            .value = m_ui->Check1->isChecked() ? m_ui->Text2->text() : MenuChoice::noValue.toString(),
        });
    }
    accept();
}

} // namespace zephira
