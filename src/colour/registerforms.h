// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {
class FormCatalogue;

namespace colour {

/// Adds the folder's forms.
void registerForms(FormCatalogue &catalogue);

} // namespace colour
} // namespace zephira
