// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <span>

namespace zephira {

/// A row of the tag palette: what the list shows, and what it inserts.
struct PaletteTag {
    QStringView item;
    QStringView markup;
};

/// All 44 rows. Their spelling is part of the palette, also where it is odd.
std::span<const PaletteTag> paletteTags();

/// The markup of an item, compared letter by letter; null for a text that isn't in the palette.
QStringView paletteMarkup(QStringView item);

} // namespace zephira
