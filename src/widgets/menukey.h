// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QAbstractItemView;
class QPoint;

namespace zephira {

/// Calls `open` with the place of the view's current item on the screen when the menu key or Shift+F10 is pressed in it.
void onMenuKey(QAbstractItemView &view, std::function<void(const QPoint &place)> open);

} // namespace zephira
