// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qt>

namespace zephira {

/// Item data roles for the key and the tag of a tree node or list row.
constexpr int KeyRole = Qt::UserRole;
constexpr int TagRole = Qt::UserRole + 1;

} // namespace zephira
