// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

class QTreeWidgetItem;

namespace zephira {

namespace Ui {
class FrmConnect;
}

class FtpDesk;
struct FtpClient;
struct SiteProfile;

/// The site manager: saves profiles, fills its fields from the chosen one, and connects.
class FrmConnect final : public QDialog
{
    Q_OBJECT

public:
    /// `desk` is the FTP window that opens the form, and must outlive it.
    FrmConnect(FtpClient &client, FtpDesk &desk, const AppContext &context, QWidget *owner);
    ~FrmConnect() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectControls();
    void buildTree();
    void load(const QTreeWidgetItem *item);
    void showProfile(const SiteProfile &profile);
    SiteProfile fields() const;

    void save();
    void startNew();
    void connectToSite();
    void deleteProfile();

    void setAnonymous(bool ticked);
    void accountTyped();
    void noteChange();

    const std::unique_ptr<Ui::FrmConnect> m_ui;
    FtpClient &m_client;
    FtpDesk &m_desk;
    const AppContext &m_context;
    /// The profile that Delete refers to: the text of the last chosen node.
    QString m_chosen;
};

} // namespace zephira
