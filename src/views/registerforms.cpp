// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/registerforms.h"

#include "views/frmqv.h"

#include "controls/formcatalogue.h"

using namespace Qt::StringLiterals;

namespace zephira::views {

void registerForms(FormCatalogue &catalogue, const ViewerFactory &makeViewer)
{
    catalogue.add(u"frmqv"_s, [makeViewer](const AppContext &context, QWidget *owner) {
        return new frmqv(context, makeViewer, owner);
    });
}

} // namespace zephira::views
