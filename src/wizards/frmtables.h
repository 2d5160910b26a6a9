// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmTables;
}

/// The quick table wizard: a click on a grid of squares sets the size, everything else is fixed. The table is inserted
/// after the selection, which is kept.
class frmTables final : public QDialog
{
    Q_OBJECT

public:
    frmTables(const AppContext &context, QWidget *owner);
    ~frmTables() override;

    /// Inserts a table. One that is too large for a page is refused with a message; returns whether it was inserted.
    Q_INVOKABLE bool AddTable(qint32 columns, qint32 rows);
    /// Paints all squares in the background colour.
    Q_INVOKABLE void CleanUp();

private:
    /// Takes a size from the grid; rows and columns are counted from 1.
    void pick(int rows, int columns);
    void create();

    const std::unique_ptr<Ui::frmTables> m_ui;
    const AppContext m_context;
};

} // namespace zephira
