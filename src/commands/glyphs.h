// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QStringList>

namespace zephira {

/// The program's own drawings, in the colours of the palette and sharp at every scale.

/// A drawing by name; a null icon for a name that doesn't exist.
QIcon shapeGlyph(QStringView name);

QStringList shapeNames();

} // namespace zephira
