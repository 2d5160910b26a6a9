// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmcsv;
}

/// A list of server variables. However the form is closed, the chosen name then replaces the selection.
class frmcsv final : public QDialog
{
    Q_OBJECT

public:
    frmcsv(const AppContext &context, QWidget *owner);
    ~frmcsv() override;

    /// Inserts the name.
    void done(int result) override;

protected:
    /// There is no default button, so Return closes the form directly.
    void keyPressEvent(QKeyEvent *event) override;

private:
    const std::unique_ptr<Ui::frmcsv> m_ui;
    const AppContext m_context;
};

} // namespace zephira
