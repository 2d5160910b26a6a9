// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmRedirect;
}

/// Redirects to another page: by a tag in the page, or by a statement in its script.
class frmRedirect final : public QDialog
{
    Q_OBJECT

public:
    frmRedirect(const AppContext &context, QWidget *owner);
    ~frmRedirect() override;

private:
    void insertRefresh();
    void insertStatement();
    /// Return presses the button of the group that has the focus.
    void followFocus(const QWidget *old, QWidget *now);

    const std::unique_ptr<Ui::frmRedirect> m_ui;
    const AppContext m_context;
};

} // namespace zephira
