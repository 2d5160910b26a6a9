// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class FormCatalogue;

namespace start {

void registerForms(FormCatalogue &catalogue);

} // namespace start
} // namespace zephira
