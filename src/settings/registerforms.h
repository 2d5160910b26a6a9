// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class FormCatalogue;

namespace settings {

void registerForms(FormCatalogue &catalogue);

} // namespace settings
} // namespace zephira
