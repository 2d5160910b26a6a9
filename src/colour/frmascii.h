// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmascii;
}

/// Shows the code of a single key in three notations. It has nothing to do with the document.
class frmascii final : public QDialog
{
    Q_OBJECT

public:
    frmascii(const AppContext &context, QWidget *owner);
    ~frmascii() override;

    /// The binary digits of a code, at least eight.
    Q_INVOKABLE QString binary(int code) const;

private:
    void showCode(char32_t code);

    const std::unique_ptr<Ui::frmascii> m_ui;
};

} // namespace zephira
