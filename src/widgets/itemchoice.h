// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QAbstractItemView;
class QModelIndex;
class QObject;

namespace zephira {

/// Makes a list or tree of texts one to choose from: `choose` is called with the item that is double-clicked, or current
/// when Return is pressed, for as long as `receiver` lives. A double click opens no node, and a text too long for any
/// screen is cut where it is painted; the item keeps all of it.
void onItemChosen(QAbstractItemView &view, QObject *receiver, std::function<void(const QModelIndex &)> choose);

} // namespace zephira
