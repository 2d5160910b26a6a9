// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comingforms.h"

#include "core/formcatalogue.h"

namespace zephira {

namespace {

constexpr QStringView comingForms[] = {
    u"frmfa",
};

} // namespace

void announceComingForms(FormCatalogue &catalogue)
{
    for (const QStringView form : comingForms)
        catalogue.announce(form.toString());
}

} // namespace zephira
