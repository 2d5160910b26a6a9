// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace zephira {

/// The character for a reference, given without "&" and ";": a name of HTML 4 or XML in its exact case, or "#" and a
/// decimal number, or "#x" and a hexadecimal one. 0 for anything else.
///
///     entityCharacter(u"eacute") == U'\u00e9'
///     entityCharacter(u"#8217") == U'\u2019'
char32_t entityCharacter(QStringView reference);

} // namespace zephira
