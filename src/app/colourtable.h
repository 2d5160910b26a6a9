// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>

namespace zephira {

class Configuration;
class EditingControl;

/// A row of the colour table: the settings for one kind of text. Colours have red in the lowest byte.
struct ColourEntry {
    int background = 0;
    int foreground = 0;
    int fontStyle = 0;
};

/// Indexed like appearanceRows; the last two rows are unused.
using ColourTable = std::array<ColourEntry, 20>;

/// Reads the keys clr0bg, clr0fr, clr0fnt to clr17fnt of [Colors]. Raises HandlerError, naming the first key that is
/// missing or not a number, and `file`.
ColourTable readColours(const Configuration &configuration, const QString &file);

/// Sets the twelve font styles and then the 31 colours in the editing control, each in the order of the items.
void applyColours(const ColourTable &table, EditingControl &editor);

} // namespace zephira
