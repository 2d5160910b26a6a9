// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/editoritems.h"

#include <QString>

#include <array>
#include <optional>
#include <span>

namespace zephira {

class EditingControl;

/// The colours of all items of the editing control, by ColourItem; red in the lowest byte.
using EditorColours = std::array<quint32, colourItemTotal>;

/// A set of colours that go together. Font styles are the user's own.
struct ColourPreset {
    QStringView name;
    EditorColours colours;
};

/// The first one is what ships: the only one whose colours follow the desktop when that turns dark. All others look the
/// same on every desktop.
std::span<const ColourPreset> colourPresets();

EditorColours coloursOf(const EditingControl &editor);
void setColours(EditingControl &editor, const EditorColours &colours);

/// The number of the preset that the control shows, counted from 0; nothing if its colours are others.
std::optional<int> shownPreset(const EditingControl &editor);

/// Gives each item that still has the colour of `preset` the one that it had before. What has been changed since stays.
void takeBackPreset(EditingControl &editor, const ColourPreset &preset, const EditorColours &before);

} // namespace zephira
