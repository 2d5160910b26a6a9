// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/sciengine.h"

#include <QFont>

namespace zephira {

/// The font of one of the engine's styles, enlarged by the given number of points.
QFont styleFont(const SciEngine &engine, int style, qsizetype zoom);

} // namespace zephira
