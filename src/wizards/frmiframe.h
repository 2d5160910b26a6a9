// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmiframe;
}

class FileLookup;

/// Inserts an inline frame.
class frmiframe final : public QDialog
{
    Q_OBJECT

public:
    frmiframe(const AppContext &context, QWidget *owner, const std::shared_ptr<FileLookup> &lookup);
    ~frmiframe() override;

private:
    void insertFrame();

    const std::unique_ptr<Ui::frmiframe> m_ui;
    const AppContext m_context;
};

} // namespace zephira
