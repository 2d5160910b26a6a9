// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/tidyengine.h"

namespace zephira {

class FormCatalogue;

namespace tools {

/// Adds the forms of this folder. The validator gets Tidy from `loadTidy`.
void registerForms(FormCatalogue &catalogue, const TidyEngineLoader &loadTidy);

} // namespace tools

} // namespace zephira
