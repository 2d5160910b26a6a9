// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmwizMarquee;
}

struct MarqueeFields;

/// Inserts scrolling text, as a tag or as a statement of a script that writes it.
class frmwizMarquee final : public QDialog
{
    Q_OBJECT

public:
    frmwizMarquee(const AppContext &context, QWidget *owner);
    ~frmwizMarquee() override;

private:
    MarqueeFields fields() const;
    void insertMarquee();

    const std::unique_ptr<Ui::frmwizMarquee> m_ui;
    const AppContext m_context;
};

} // namespace zephira
