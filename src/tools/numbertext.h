// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// A number as text: at most 15 significant digits, without padding. Below 1 the text has up to 15 decimals and begins
/// with "0."; a number that needs more is a mantissa, "E-" and at least two digits: 3.9569E-03. The locale has no
/// influence.
QString numberText(double number);

} // namespace zephira
