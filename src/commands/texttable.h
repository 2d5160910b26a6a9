// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/menutable.h"

namespace zephira {

/// The menus that the context menu of the code view has below its own entries. Their entries are also in the command
/// palette. An entry that needs the code view has its keys while the code view has the focus, any other in the whole
/// window.
std::span<const MenuItem> textMenuTable();

/// The entries whose check marks the program sets.
namespace textname {
inline constexpr QStringView breadcrumb = u"textBreadcrumb";
inline constexpr QStringView livePage = u"textLivePage";
} // namespace textname

} // namespace zephira
