// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <span>

namespace zephira {

struct EntityName {
    QStringView name; ///< without "&" and ";"
    char32_t character;
};

/// The named references of HTML 4 and XML, sorted by the names' code units.
std::span<const EntityName> entityNames();

/// The character for a reference, given without "&" and ";": a name of HTML 4 or XML in its exact case, or "#" and a
/// decimal number, or "#x" and a hexadecimal one. 0 for anything else.
///
///     entityCharacter(u"eacute") == U'\u00e9'
///     entityCharacter(u"#8217") == U'\u2019'
char32_t entityCharacter(QStringView reference);

} // namespace zephira
