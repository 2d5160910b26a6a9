// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The codes of the character map: the printable ones of Windows-1252 and the gaps between them.
inline constexpr int firstCharacterCode = 32;
inline constexpr int lastCharacterCode = 255;

/// The character that Windows-1252 has for a code; empty for a code that has none that can be printed, and for one
/// outside the map.
QString characterOfCode(int code);

/// A line describing the character with a code: the code, the name, and the entity in markup if there is one.
QString characterCaption(int code);

} // namespace zephira
