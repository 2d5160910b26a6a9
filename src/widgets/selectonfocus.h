// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QLineEdit;
class QPlainTextEdit;

namespace zephira {

// Let a text box select its whole text when it takes the focus, by the mouse as well. A box that merely gets the focus
// back, because its window is active again or a menu was closed, keeps its selection.

void selectOnFocus(QLineEdit *box);
void selectOnFocus(QPlainTextEdit *box);

} // namespace zephira
