// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmMeta;
}

struct SiteFacts;

/// Writes four meta tags in place of the selection. Their texts can be saved and loaded through two small forms, which
/// work on the open wizard.
class frmMeta final : public QDialog
{
    Q_OBJECT

public:
    frmMeta(const AppContext &context, QWidget *owner);
    ~frmMeta() override;

    /// Line breaks in the texts are CR LF.
    SiteFacts facts() const;
    void setFacts(const SiteFacts &facts);

private:
    void insertTags();

    const std::unique_ptr<Ui::frmMeta> m_ui;
    const AppContext m_context;
};

} // namespace zephira
