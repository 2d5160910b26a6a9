// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/formcatalogue.h"

namespace zephira {

/// The forms of all folders, with fakes for everything that they depend on.
FormCatalogue allForms();

} // namespace zephira
