// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/registerforms.h"

#include "core/formcatalogue.h"
#include "panes/oebrowser.h"

using namespace Qt::StringLiterals;

namespace zephira::panes {

void registerForms(FormCatalogue &catalogue)
{
    catalogue.add<oebrowser>(u"oebrowser"_s);
}

} // namespace zephira::panes
