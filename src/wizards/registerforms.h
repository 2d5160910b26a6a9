// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/editorfactory.h"

namespace zephira {

class FormCatalogue;

namespace wizards {

/// Adds the forms of this folder that need no editing control.
void registerForms(FormCatalogue &catalogue);
/// Adds the image map creator, which shows its result in an editing control made by `makeEditor`.
void registerImageMap(FormCatalogue &catalogue, const EditorFactory &makeEditor);

} // namespace wizards

} // namespace zephira
