// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmsavetags;
}

/// Saves the texts of the meta tag wizard that owns this form under a name.
class frmsavetags final : public QDialog
{
    Q_OBJECT

public:
    frmsavetags(const AppContext &context, QWidget *owner);
    ~frmsavetags() override;

private:
    void save();

    const std::unique_ptr<Ui::frmsavetags> m_ui;
    const AppContext m_context;
};

} // namespace zephira
