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

/// The toolbars of the palette, with their published numbers.
enum class PaletteTab { Tools, Common, Text, Tables, Style, Frames, Lists, Forms, Scripts, Cfml, Asp, Ssi };

/// The twelve toolbars in the order of PaletteTab. Adding a quick tag is adding a row.
std::span<const PaletteToolbar> paletteToolbars();

/// Name of the palette's heading pull-down, whose entries are H1 to H6.
constexpr QStringView headingsKey = u"headings";

} // namespace zephira
