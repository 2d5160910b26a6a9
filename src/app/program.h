// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/desktoptranslation.h"

#include <QString>

class QApplication;

namespace zephira {

/// The program's texts in the language of the desktop, for as long as the value exists. The application must exist.
Translation desktopTranslation();

/// Creates the main window with the real services, runs the start procedure and then the event loop. Returns the exit
/// status: 1 if the start failed, which has then been reported.
int runProgram(QApplication &application, const QString &argument);

} // namespace zephira
