// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/allforms.h"

#include "wizards/registerforms.h"

namespace zephira {

FormCatalogue allForms()
{
    FormCatalogue catalogue;
    wizards::registerForms(catalogue);
    return catalogue;
}

} // namespace zephira
