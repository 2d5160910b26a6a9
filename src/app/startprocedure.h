// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

class frmmain;

/// Runs the start: the main window's load handler, the scratch folder, showing the window, then the tip and the start
/// dialog depending on settings and argument. Raises HandlerError if the start can't continue.
/// @param argument  all arguments as one string
void runStartProcedure(frmmain &window, const QString &argument);

} // namespace zephira
