// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class FormWizard;
}

class FileLookup;

/// Inserts a form with some text fields and its two buttons.
class FormWizard final : public QDialog
{
    Q_OBJECT

public:
    FormWizard(const AppContext &context, QWidget *owner, const std::shared_ptr<FileLookup> &lookup);
    ~FormWizard() override;

private:
    void insertForm();

    const std::unique_ptr<Ui::FormWizard> m_ui;
    const AppContext m_context;
};

} // namespace zephira
