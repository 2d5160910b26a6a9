// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class FormCatalogue;

namespace tools {

/// Adds the forms of this folder.
void registerForms(FormCatalogue &catalogue);

} // namespace tools

} // namespace zephira
