// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/registerforms.h"

#include "core/formcatalogue.h"
#include "settings/frmabout.h"
#include "settings/frmoptions.h"
#include "settings/frmtip.h"

using namespace Qt::StringLiterals;

namespace zephira::settings {

void registerForms(FormCatalogue &catalogue)
{
    catalogue.add(u"frmAbout"_s,
                  [](const AppContext &context, QWidget *owner) { return new frmAbout(context, owner); });
    catalogue.add<frmOptions>(u"frmOptions"_s);
    catalogue.add(u"frmTip"_s, [](const AppContext &context, QWidget *owner) { return new frmTip(context, owner); });
}

} // namespace zephira::settings
