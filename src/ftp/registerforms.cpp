// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/registerforms.h"

#include "core/formcatalogue.h"
#include "ftp/frmconnect.h"
#include "ftp/frmmainftp.h"
#include "ftp/frmprog.h"
#include "ftp/ftpclient.h"

using namespace Qt::StringLiterals;

namespace zephira::ftp {

namespace {

/// A form that takes the client too.
template<typename Form>
void add(FormCatalogue &catalogue, const QString &name, const std::shared_ptr<FtpClient> &client)
{
    catalogue.add(name, [client](const AppContext &context, QWidget *owner) -> QWidget * {
        return new Form(*client, context, owner);
    });
}

} // namespace

void registerForms(FormCatalogue &catalogue, const std::shared_ptr<FtpClient> &client)
{
    add<FrmConnect>(catalogue, u"FrmConnect"_s, client);
    add<frmProg>(catalogue, u"frmProg"_s, client);
    add<frmmainftp>(catalogue, u"frmmainftp"_s, client);
}

} // namespace zephira::ftp
