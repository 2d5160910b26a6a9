// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <memory>
#include <optional>

class QLineEdit;

namespace zephira {

namespace Ui {
class InsertTableDlg;
}

struct AppContext;
class Designer;
class Prompts;

/// Asks for the size and the attributes of a table, and inserts it through the designer.
class InsertTableDlg final : public QDialog
{
    Q_OBJECT

public:
    InsertTableDlg(const AppContext &context, QWidget *owner);
    ~InsertTableDlg() override;

private:
    void insert();
    /// The number in a box; if there is none, shows the message, moves the focus to the box and returns nothing.
    std::optional<int> dimension(QLineEdit &box, const QString &message);

    const std::unique_ptr<Ui::InsertTableDlg> m_ui;
    Designer &m_designer;
    Prompts &m_prompts;
};

} // namespace zephira
