// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/palettetable.h"

#include <QStringView>

#include <span>

namespace zephira {

/// A drop-down of the palette whose items replace the selection of the code view.
struct VariableList {
    QStringView name;
    /// The text of the box while nothing is selected in it.
    QStringView caption;
    /// The toolbar of the palette that has the box at its end.
    PaletteTab toolbar = {};
    std::span<const QStringView> items;
};

/// The variables of server-side includes, and those of a server's request.
std::span<const VariableList> variableLists();

} // namespace zephira
