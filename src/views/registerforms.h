// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "controls/editorfactory.h"

namespace zephira {

class FormCatalogue;

namespace views {

/// The catalogue's forms show texts in what `makeViewer` gives.
void registerForms(FormCatalogue &catalogue, const ViewerFactory &makeViewer);

} // namespace views
} // namespace zephira
