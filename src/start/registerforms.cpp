// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/registerforms.h"

#include "core/formcatalogue.h"
#include "start/frmselprj.h"

using namespace Qt::StringLiterals;

namespace zephira::start {

void registerForms(FormCatalogue &catalogue, RecoveryCopies &recovery)
{
    catalogue.add(u"frmselprj"_s, [&recovery](const AppContext &context, QWidget *owner) {
        return new frmselprj(context, recovery, owner);
    });
}

} // namespace zephira::start
