// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class FormCatalogue;
struct SpySources;

namespace colour {

/// Adds the forms of this folder. The colour spy reads the real screen.
void registerForms(FormCatalogue &catalogue);
/// The same with other sources for the colour spy.
void registerForms(FormCatalogue &catalogue, const SpySources &sources);

} // namespace colour

} // namespace zephira
