// SPDX-License-Identifier: GPL-3.0-or-later
#include "tags/registerforms.h"

#include "core/formcatalogue.h"
#include "tags/frmtags.h"

using namespace Qt::StringLiterals;

namespace zephira::tags {

void registerForms(FormCatalogue &catalogue)
{
    catalogue.add<frmTags>(u"frmTags"_s);
}

} // namespace zephira::tags
