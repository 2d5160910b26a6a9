// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class output;
}

/// Shows the cleaned text of the validator that owns this form.
class output final : public QDialog
{
    Q_OBJECT

public:
    output(const AppContext &context, QWidget *owner);
    ~output() override;

private:
    const std::unique_ptr<Ui::output> m_ui;
};

} // namespace zephira
