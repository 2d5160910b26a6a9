// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/quicktag.h"

#include <span>

namespace zephira {

/// One toolbar of the palette: the caption of its tab and its buttons, separators among them, in order.
struct PaletteToolbar {
    QStringView caption;
    std::span<const QuickTag> buttons;
    /// Whether its buttons are known by key; the others are known by position, the first being 1.
    bool keyed = false;
};

/// The twelve toolbars, indices 0 to 11. Adding a quick tag is adding a row.
std::span<const PaletteToolbar> paletteToolbars();

/// The row of a click: by key in toolbars whose buttons have keys, else by position. nullptr where there is no button.
const QuickTag *findPaletteButton(int toolbar, const QString &key, int position);

/// Name of the palette's heading pull-down, whose entries are H1 to H6.
constexpr QStringView headingsKey = u"headings";

} // namespace zephira
