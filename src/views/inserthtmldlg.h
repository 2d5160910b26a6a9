// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class InsertHTMLDlg;
}

struct AppContext;
class Designer;

/// Asks the user for markup and pastes it over the designer's selection.
class InsertHTMLDlg final : public QDialog
{
    Q_OBJECT

public:
    InsertHTMLDlg(const AppContext &context, QWidget *owner);
    ~InsertHTMLDlg() override;

private:
    void paste();

    const std::unique_ptr<Ui::InsertHTMLDlg> m_ui;
    Designer &m_designer;
};

} // namespace zephira
