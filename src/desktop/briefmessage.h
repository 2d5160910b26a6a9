// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// A critical message box under the program's name that closes by itself after so many seconds.
void showBriefMessage(const QString &text, int seconds);

} // namespace zephira
