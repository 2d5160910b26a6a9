// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

class frmmain;

/// Runs the start: the main window's load handler whole, the scratch folder, the window, then the tip and the start dialog
/// as settings and argument ask for them. Raises HandlerError when the start can't go on.
/// @param argument  the whole argument string
void runStartProcedure(frmmain &window, const QString &argument);

} // namespace zephira
