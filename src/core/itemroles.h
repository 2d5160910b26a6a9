// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qt>

namespace zephira {

/// What a tree node or list row bears beside its text, as item data.
constexpr int KeyRole = Qt::UserRole;
constexpr int TagRole = Qt::UserRole + 1;

} // namespace zephira
