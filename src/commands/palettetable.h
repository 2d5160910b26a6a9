// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/quicktag.h"

#include <span>

namespace zephira {

/// One toolbar of the palette: the caption of its tab, and its buttons and separators in order. Buttons without a key
/// are identified by their position.
struct PaletteToolbar {
    QStringView caption;
    std::span<const QuickTag> buttons;
};

/// The twelve toolbars, indices 0 to 11. Adding a quick tag is adding a row.
std::span<const PaletteToolbar> paletteToolbars();

/// Name of the palette's heading pull-down, whose entries are H1 to H6.
constexpr QStringView headingsKey = u"headings";

} // namespace zephira
