// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class GoToDialog;
}

/// Asks for a line. Lines are 1-based here, as in the margin.
class GoToDialog : public QDialog
{
    Q_OBJECT
public:
    explicit GoToDialog(QWidget *owner);
    ~GoToDialog() override;

    /// Shows the dialog, which emits chosen() when the user confirms. It stays open until the number is a valid line.
    /// `currentLine` is 1-based.
    void ask(int currentLine, int lineCount);
    void accept() override;

Q_SIGNALS:
    /// A 1-based line number within the range.
    void chosen(int line);

private:
    std::unique_ptr<Ui::GoToDialog> m_ui;
    int m_lineCount = 1;
};

} // namespace zephira
