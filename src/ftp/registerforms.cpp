// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/registerforms.h"

#include "core/formcatalogue.h"
#include "ftp/frmconnect.h"
#include "ftp/frmmainftp.h"
#include "ftp/frmprog.h"
#include "ftp/ftpclient.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace zephira::ftp {

namespace {

/// Replaces the FTP window for a form that is made without one.
class NoDesk final : public FtpDesk
{
public:
    bool isThere() const override { return false; }
    void log(LogEntry, const QStringList &) override {}
    void clearLog() override {}
    void setPanel(int, const QString &) override {}
    void setBusy(bool) override {}
    void markTransferType(bool) override {}
    void markPassive(bool) override {}
    void clearRemoteTree() override {}
    void addRemoteRoot() override {}
    void List() override {}
    void openModal(const QString &) override {}
    void refreshLocal() override {}
    void refreshRemote() override {}
};

/// The FTP window from which a form is opened, or `none`.
FtpDesk &deskOf(QWidget *owner, FtpDesk &none)
{
    for (QWidget *window = owner; window; window = window->parentWidget()) {
        if (auto *desk = dynamic_cast<FtpDesk *>(window))
            return *desk;
    }
    return none;
}

} // namespace

void registerForms(FormCatalogue &catalogue, const std::shared_ptr<FtpClient> &client)
{
    const auto none = std::make_shared<NoDesk>();
    catalogue.add(u"FrmConnect"_s, [client, none](const AppContext &context, QWidget *owner) -> QWidget * {
        return new FrmConnect(*client, deskOf(owner, *none), context, owner);
    });
    catalogue.add(u"frmProg"_s, [client, none](const AppContext &context, QWidget *owner) -> QWidget * {
        FtpDesk &desk = deskOf(owner, *none);
        return new frmProg(*client, desk, desk, context, owner);
    });
    catalogue.add(u"frmmainftp"_s, [client](const AppContext &context, QWidget *owner) -> QWidget * {
        return new frmmainftp(*client, context, owner);
    });
}

} // namespace zephira::ftp
