// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmdropdown;
}

struct MenuChoice;
struct MenuFields;

/// Inserts a drop-down menu, in plain markup or for a server-side script.
class frmdropdown final : public QDialog
{
    Q_OBJECT

public:
    frmdropdown(const AppContext &context, QWidget *owner);
    ~frmdropdown() override;

    /// Adds a choice at the end of the list.
    void addChoice(const MenuChoice &choice);

private:
    MenuFields fields() const;
    /// Moves the selected choice. Does nothing at the ends of the list or if none is selected.
    void moveSelected(int by);
    void insertMenu();

    const std::unique_ptr<Ui::frmdropdown> m_ui;
    const AppContext m_context;
};

} // namespace zephira
