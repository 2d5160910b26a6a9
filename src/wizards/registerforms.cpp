// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/registerforms.h"

#include "core/formcatalogue.h"
#include "wizards/frmtable.h"
#include "wizards/frmtables.h"

using namespace Qt::StringLiterals;

namespace zephira::wizards {

void registerForms(FormCatalogue &catalogue)
{
    catalogue.add<frmTable>(u"frmTable"_s);
    catalogue.add<frmTables>(u"frmTables"_s);
}

} // namespace zephira::wizards
