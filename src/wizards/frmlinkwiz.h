// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmlinkwiz;
}

class FileLookup;

/// Inserts a link in the active view.
class frmlinkwiz final : public QDialog
{
    Q_OBJECT

public:
    frmlinkwiz(const AppContext &context, QWidget *owner, const std::shared_ptr<FileLookup> &lookup);
    ~frmlinkwiz() override;

private:
    void putPrefix();
    void insertLink();

    const std::unique_ptr<Ui::frmlinkwiz> m_ui;
    const AppContext m_context;
    /// A choice of another entry is reported twice, first as a change of the index. Whether the prefix was inserted then.
    bool m_isPrefixPut = false;
};

} // namespace zephira
