// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/registerforms.h"

#include "core/formcatalogue.h"
#include "tools/frmdocsize.h"
#include "tools/frmlinkextract.h"
#include "tools/frmtextthtml.h"

using namespace Qt::StringLiterals;

namespace zephira::tools {

void registerForms(FormCatalogue &catalogue)
{
    catalogue.add<frmDocSize>(u"frmDocSize"_s);
    catalogue.add<frmlinkextract>(u"frmlinkextract"_s);
    catalogue.add<frmtextthtml>(u"frmtextthtml"_s);
}

} // namespace zephira::tools
