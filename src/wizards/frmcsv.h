// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmcsv;
}

/// A list of server variables. The chosen name replaces the selection when the form is closed, however that is done.
class frmcsv final : public QDialog
{
    Q_OBJECT

public:
    frmcsv(const AppContext &context, QWidget *owner);
    ~frmcsv() override;

    /// Inserts the name.
    void done(int result) override;

protected:
    /// There is no button that Return could press, so it closes the form itself.
    void keyPressEvent(QKeyEvent *event) override;

private:
    const std::unique_ptr<Ui::frmcsv> m_ui;
    const AppContext m_context;
};

} // namespace zephira
