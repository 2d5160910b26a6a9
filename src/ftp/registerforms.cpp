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
class NoDisplay final : public LogDisplay, public PanelDisplay
{
public:
    void log(LogEntry, const QStringList &) override {}
    void clearLog() override {}
    void setPanel(int, const QString &) override {}
    void setBusy(bool) override {}
};

/// The FTP window from which a form is opened, or nullptr.
FtpDesk *deskOf(QWidget *owner)
{
    for (QWidget *window = owner; window; window = window->parentWidget()) {
        if (auto *desk = dynamic_cast<FtpDesk *>(window))
            return desk;
    }
    return nullptr;
}

} // namespace

void registerForms(FormCatalogue &catalogue, const std::shared_ptr<FtpClient> &client)
{
    catalogue.add(u"FrmConnect"_s, [client](const AppContext &context, QWidget *owner) -> QWidget * {
        return new FrmConnect(*client, deskOf(owner), context, owner);
    });
    catalogue.add(
        u"frmProg"_s,
        [client, nowhere = std::make_shared<NoDisplay>()](const AppContext &context, QWidget *owner) -> QWidget * {
            if (FtpDesk *desk = deskOf(owner))
                return new frmProg(*client, *desk, *desk, context, owner);
            return new frmProg(*client, *nowhere, *nowhere, context, owner);
        });
    catalogue.add(u"frmmainftp"_s, [client](const AppContext &context, QWidget *owner) -> QWidget * {
        return new frmmainftp(*client, context, owner);
    });
}

} // namespace zephira::ftp
