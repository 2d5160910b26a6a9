// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

namespace zephira {

class FormCatalogue;
class SpellCheck;

namespace tools {

/// Adds the form of the spelling check. The catalogue keeps the check alive, which must outlive the forms.
void registerSpelling(FormCatalogue &catalogue, std::shared_ptr<SpellCheck> check);

} // namespace tools

} // namespace zephira
