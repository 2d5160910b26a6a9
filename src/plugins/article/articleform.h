// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plugins/article/articlepage.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class ArticleForm;
}

/// Asks for title, language and description of an article. It can be accepted when the page can be made.
class ArticleForm final : public QDialog
{
    Q_OBJECT

public:
    explicit ArticleForm(QWidget *owner);
    ~ArticleForm() override;

    Article article() const;

private:
    std::unique_ptr<Ui::ArticleForm> m_ui;
};

} // namespace zephira
