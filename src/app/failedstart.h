// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// Reports why the program can't start, on the terminal and in a message box, and returns the exit status 1. The box
/// closes by itself after a while, so that an unattended start ends too.
int tellFailedStart(const QString &sentence);

} // namespace zephira
