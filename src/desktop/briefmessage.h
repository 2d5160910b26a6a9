// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// Shows a critical message box titled with the program's name, which closes by itself after `seconds`.
void showBriefMessage(const QString &text, int seconds);

} // namespace zephira
