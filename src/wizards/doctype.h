// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class doctype;
}

/// Puts a document type line at the start of the document. Caret and selection stay where they are in the text.
class doctype final : public QDialog
{
    Q_OBJECT

public:
    doctype(const AppContext &context, QWidget *owner);
    ~doctype() override;

private:
    void insertLine();

    const std::unique_ptr<Ui::doctype> m_ui;
    const AppContext m_context;
};

} // namespace zephira
