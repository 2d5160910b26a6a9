// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class FormCatalogue;
class SpellCheck;

namespace tools {

/// Adds the form of the spelling check. The check must outlive the forms.
void registerSpelling(FormCatalogue &catalogue, SpellCheck &check);

} // namespace tools

} // namespace zephira
