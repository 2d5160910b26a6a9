// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/registerforms.h"

#include "core/formcatalogue.h"
#include "start/frmselprj.h"

using namespace Qt::StringLiterals;

namespace zephira::start {

void registerForms(FormCatalogue &catalogue)
{
    catalogue.add(u"frmselprj"_s,
                  [](const AppContext &context, QWidget *owner) { return new frmselprj(context, owner); });
}

} // namespace zephira::start
