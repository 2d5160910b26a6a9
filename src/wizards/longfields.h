// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace zephira {

/// Lets all text boxes and editable lists of a form take texts of any length, and leaves typed texts as they are: a
/// completer would turn "left" into "Left".
void acceptAnyText(const QWidget &form);

} // namespace zephira
