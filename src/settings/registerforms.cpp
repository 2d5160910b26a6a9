// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/registerforms.h"

#include "core/formcatalogue.h"
#include "settings/frmabout.h"
#include "settings/frmfa.h"
#include "settings/frmoptions.h"
#include "settings/frmtip.h"

using namespace Qt::StringLiterals;

namespace zephira::settings {

void registerForms(FormCatalogue &catalogue, FileTypeStore &fileTypes, const QString &executable)
{
    catalogue.add(u"frmAbout"_s,
                  [](const AppContext &context, QWidget *owner) { return new frmAbout(context, owner); });
    catalogue.add(u"frmfa"_s, [&fileTypes, executable](const AppContext &context, QWidget *owner) {
        return new frmfa(context, fileTypes, executable, owner);
    });
    catalogue.add<frmOptions>(u"frmOptions"_s);
    catalogue.add(u"frmTip"_s, [](const AppContext &context, QWidget *owner) { return new frmTip(context, owner); });
}

} // namespace zephira::settings
