// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>
#include <QStringList>

#include <functional>
#include <memory>

namespace zephira {

namespace Ui {
class frmTip;
}

/// Shows a random tip from the tip file, and has the switch for tips at the start.
class frmTip : public QDialog
{
    Q_OBJECT

public:
    /// Returns random numbers in [0, 1).
    using Random = std::function<double()>;

    frmTip(const AppContext &context, QWidget *owner);
    frmTip(const AppContext &context, QWidget *owner, Random random);
    ~frmTip() override;

private:
    void loadTips();
    void showNextTip();
    void saveSwitch(bool ticked);

    const AppContext &m_context;
    Random m_random;
    QStringList m_tips;
    std::unique_ptr<Ui::frmTip> m_ui;
};

} // namespace zephira
