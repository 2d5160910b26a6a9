// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmaddchoice;
}

/// Adds a choice to the drop-down wizard that owns this form.
class frmaddchoice final : public QDialog
{
    Q_OBJECT

public:
    frmaddchoice(const AppContext &context, QWidget *owner);
    ~frmaddchoice() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void applyOwnValue(bool on);
    void addChoice();

    const std::unique_ptr<Ui::frmaddchoice> m_ui;
    const AppContext m_context;
};

} // namespace zephira
