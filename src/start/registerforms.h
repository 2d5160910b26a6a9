// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

class FormCatalogue;
class RecoveryCopies;

namespace start {

/// The copies must outlive the forms.
void registerForms(FormCatalogue &catalogue, RecoveryCopies &recovery);

} // namespace start
} // namespace zephira
