// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frminsbreak;
}

enum class LineBreak;

/// Inserts a line break. The text after it may continue only where one or both margins are free.
class frminsbreak final : public QDialog
{
    Q_OBJECT

public:
    frminsbreak(const AppContext &context, QWidget *owner);
    ~frminsbreak() override;

private:
    LineBreak chosen() const;
    void insertBreak();

    const std::unique_ptr<Ui::frminsbreak> m_ui;
    const AppContext m_context;
};

} // namespace zephira
