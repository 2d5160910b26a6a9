// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>
#include <optional>

class QLineEdit;

namespace zephira {

namespace Ui {
class frmTable;
}

struct CellFields;
struct TableFields;

/// The full table wizard: size, layout and colours of a table, in plain markup or for a server-side script, and single
/// cells that are inserted while the window stays open. Everything is inserted after the selection, which is kept.
class frmTable final : public QDialog
{
    Q_OBJECT

public:
    frmTable(const AppContext &context, QWidget *owner);
    ~frmTable() override;

    /// Inserts a table in plain markup or for a script. The four attributes are used as given; alignment, border size,
    /// padding and spacing come from the controls. A table that is too large for a page is refused with a message.
    /// Returns whether it was inserted.
    Q_INVOKABLE bool AddTable(qint32 columns, qint32 rows, const QString &width, const QString &background,
                              const QString &border, const QString &lightAndDark);
    Q_INVOKABLE bool AddTableAsp(qint32 columns, qint32 rows, const QString &width, const QString &background,
                                 const QString &border, const QString &lightAndDark);

private:
    TableFields tableFields() const;
    CellFields cellFields() const;
    /// The number in a field; if there is none, moves the focus to the field and returns nothing.
    std::optional<qint32> countIn(QLineEdit *field);
    void insertTable();
    void insertCell();

    const std::unique_ptr<Ui::frmTable> m_ui;
    const AppContext m_context;
};

} // namespace zephira
