// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class FormCatalogue;

/// Announces every form that a command opens and that isn't implemented yet.
void announceComingForms(FormCatalogue &catalogue);

} // namespace zephira
