// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/article/articlemodule.h"

#include <QApplication>

namespace zephira {

ArticleWizard::~ArticleWizard()
{
    delete m_form.data();
}

int ArticleWizard::WizardStart()
{
    if (!m_asked) {
        m_asked = true;
        m_form = new ArticleForm(QApplication::activeWindow());
        connect(m_form, &QDialog::accepted, this, [this] { m_page = articlePage(m_form->article()); });
        m_form->show();
    }
    return m_form && m_form->isVisible() ? ZephiraStart::Working : ZephiraStart::Done;
}

} // namespace zephira
