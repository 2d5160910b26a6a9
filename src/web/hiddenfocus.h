// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace zephira {

/// Leaves the focus where it is when a web view takes it while it is hidden. The engine moves the focus into each new
/// process, even if the page before it hung and the user has long gone on to another view.
void keepFocusFromHidden(QWidget &view);

} // namespace zephira
