// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qt>

namespace zephira {

/// Item data roles for the key and the tag of a tree node or list row.
constexpr int KeyRole = Qt::UserRole;
constexpr int TagRole = Qt::UserRole + 1;

/// The item data role for the path of the folder that an item of a folder tree stands for; such items have no key.
constexpr int PathRole = Qt::UserRole;

} // namespace zephira
