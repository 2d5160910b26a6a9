// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmloadtags;
}

/// Loads saved texts into the meta tag wizard that owns this form.
class frmloadtags final : public QDialog
{
    Q_OBJECT

public:
    frmloadtags(const AppContext &context, QWidget *owner);
    ~frmloadtags() override;

private:
    void load();

    const std::unique_ptr<Ui::frmloadtags> m_ui;
    const AppContext m_context;
};

} // namespace zephira
