// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/registerforms.h"

#include "colour/colorpick.h"
#include "colour/frmascii.h"
#include "colour/frmchar.h"
#include "core/formcatalogue.h"

using namespace Qt::StringLiterals;

namespace zephira::colour {

void registerForms(FormCatalogue &catalogue)
{
    catalogue.add<ColorPick>(u"ColorPick"_s);
    catalogue.add<frmascii>(u"frmascii"_s);
    catalogue.add<frmChar>(u"frmChar"_s);
}

} // namespace zephira::colour
