// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/output.h"

#include "tools/frmvalidate.h"
#include "ui_output.h"

#include <QFontDatabase>

namespace zephira {

output::output(const AppContext &, QWidget *owner) : QDialog(owner), m_ui(std::make_unique<Ui::output>())
{
    m_ui->setupUi(this);
    m_ui->text1->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    if (const auto *validator = qobject_cast<frmvalidate *>(owner))
        m_ui->text1->setPlainText(validator->cleanedText());
}

output::~output() = default;

} // namespace zephira
