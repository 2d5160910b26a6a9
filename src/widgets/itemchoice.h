// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QAbstractItemView;
class QModelIndex;
class QObject;

namespace zephira {

/// Lets the user choose items in a list or tree: `choose` is called with the item that is double-clicked, or with the
/// current one when Return is pressed, as long as `receiver` exists. A double click doesn't expand nodes. A text too
/// long for any screen is cut when it is painted, but the item keeps all of it.
void onItemChosen(QAbstractItemView &view, QObject *receiver, std::function<void(const QModelIndex &)> choose);

} // namespace zephira
