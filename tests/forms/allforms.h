// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/formcatalogue.h"

namespace zephira {

/// Every form that can be made of fakes alone: those of all folders.
FormCatalogue allForms();

} // namespace zephira
