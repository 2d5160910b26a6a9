// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDate>
#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmwizcookie;
}

/// Inserts a script that sets a cookie. Its expiry date is typed or chosen from a calendar.
class frmwizcookie final : public QDialog
{
    Q_OBJECT

public:
    frmwizcookie(const AppContext &context, QWidget *owner);
    ~frmwizcookie() override;

private:
    void addCalendar();
    /// The date in the date box, or today's if there is none.
    QDate typedDay() const;
    void insertCookie();

    const std::unique_ptr<Ui::frmwizcookie> m_ui;
    const AppContext m_context;
};

} // namespace zephira
