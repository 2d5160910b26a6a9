// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QApplication;

namespace zephira {

/// Makes the main window of the real parts, runs the start procedure and then the event loop. Returns the exit status: 1
/// when the start failed, which was then told.
int runProgram(QApplication &application, const QString &argument);

} // namespace zephira
