// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmvbwiz;
}

/// Inserts an If statement into a page's script.
class frmvbwiz final : public QDialog
{
    Q_OBJECT

public:
    frmvbwiz(const AppContext &context, QWidget *owner);
    ~frmvbwiz() override;

private:
    void insertStatement();

    const std::unique_ptr<Ui::frmvbwiz> m_ui;
    const AppContext m_context;
};

} // namespace zephira
