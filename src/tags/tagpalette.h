// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <span>

namespace zephira {

/// A row of the tag palette: its text in the list, and the markup it inserts.
struct PaletteTag {
    QStringView item;
    QStringView markup;
};

/// All 44 rows. Their spelling, even where it is odd, is part of the palette.
std::span<const PaletteTag> paletteTags();

/// The markup for an item, which must match exactly; null for a text that isn't in the palette.
QStringView paletteMarkup(QStringView item);

} // namespace zephira
