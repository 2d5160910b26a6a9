// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmChar;
}

/// The character map: collects characters in a text box, from which they go to the document as they are. Its window has
/// no owner, so the main window can cover it; it still ends with the main window.
class frmChar final : public QDialog
{
    Q_OBJECT

public:
    frmChar(const AppContext &context, QWidget *owner);
    ~frmChar() override;

    /// Hides the pointer over the grid, and shows it again.
    Q_INVOKABLE void makeCursorInvisible();
    Q_INVOKABLE void makeCursorVisible();
    /// Writes the collected characters into the document and closes: in visual mode as text in place of the designer's
    /// selection, otherwise behind the code view's.
    Q_INVOKABLE void inserttext();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void addCharacter();
    void copyText();
    void enlarge(int code, QPoint point);
    void hideEnlarged();
    void describe(int code);

    const std::unique_ptr<Ui::frmChar> m_ui;
    const AppContext m_context;
};

} // namespace zephira
