// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/registerforms.h"

#include "core/formcatalogue.h"
#include "tools/frmdocsize.h"
#include "tools/frmlinkextract.h"
#include "tools/frmtextthtml.h"
#include "tools/frmthcon.h"
#include "tools/frmvalidate.h"
#include "tools/output.h"

using namespace Qt::StringLiterals;

namespace zephira::tools {

void registerForms(FormCatalogue &catalogue, const TidyEngineLoader &loadTidy)
{
    catalogue.add<frmDocSize>(u"frmDocSize"_s);
    catalogue.add<frmlinkextract>(u"frmlinkextract"_s);
    catalogue.add<frmtextthtml>(u"frmtextthtml"_s);
    catalogue.add<frmthcon>(u"frmthcon"_s);
    catalogue.add(u"frmvalidate"_s, [loadTidy](const AppContext &context, QWidget *owner) {
        return new frmvalidate(context, loadTidy, owner);
    });
    catalogue.add<output>(u"output"_s);
}

} // namespace zephira::tools
