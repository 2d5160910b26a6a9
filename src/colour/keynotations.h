// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// Binary digits of a code, at least eight: leading zeros are kept, and a code above 255 shows all of its digits.
QString binaryDigits(char32_t code);

/// Hexadecimal digits of a code in upper case, without leading zeros.
QString hexadecimalDigits(char32_t code);

/// Code point of the first character of a text, which must not be empty.
char32_t firstCodePoint(QStringView text);

} // namespace zephira
