// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plugins/article/articleform.h"
#include "plugins/zephiraplugin.h"

#include <QPointer>

namespace zephira {

/// The start wizard that makes an article page. It works as long as its form is open.
class ArticleWizard final : public ZephiraWizard
{
    Q_OBJECT

public:
    ~ArticleWizard() override;

    QString wizardid() const override { return QStringLiteral("Article Page"); }
    int WizardStart() override;
    QString strReturn() const override { return m_page; }
    int wizardlang() const override { return ZephiraLanguage::Html; }

private:
    /// Gone if the window over which it stands is gone.
    QPointer<ArticleForm> m_form;
    bool m_asked = false;
    QString m_page;
};

/// The module of the wizard.
class ArticleModule final : public ZephiraModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZephiraModule_iid)

public:
    QObject *create(const QString &name) override
    {
        return name == QStringLiteral("article.Main") ? new ArticleWizard : nullptr;
    }
};

} // namespace zephira
