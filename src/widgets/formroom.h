// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace zephira {

/// Gives a form that doesn't show yet the room that its texts need: a layout alone doesn't enlarge a window for lines that
/// wrap. A form that would be larger than its screen, because the letters are large or the screen is small, shows its
/// contents in a scroll area instead, so that no part of it is out of reach. Main windows and forms that place their
/// parts themselves only become as small as the screen.
void giveRoom(QWidget &form);

} // namespace zephira
