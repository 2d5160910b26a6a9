// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

namespace zephira {

namespace Ui {
class frmAbout;
}

/// The program's information box.
class frmAbout : public QDialog
{
    Q_OBJECT

public:
    frmAbout(const AppContext &context, QWidget *owner);
    ~frmAbout() override;

private:
    void addCredits();
    void openLink(const QString &address);
    /// Copies the versions and what system this is, for a report about an error.
    void copyVersions();
    void StartSysInfo();

    const AppContext &m_context;
    std::unique_ptr<Ui::frmAbout> m_ui;
};

} // namespace zephira
