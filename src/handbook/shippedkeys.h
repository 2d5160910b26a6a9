// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "handbook/keytables.h"

namespace zephira {

/// All keys as they are shipped, from the tables that make them: the menus of the main window, the code view, and the
/// file transfer.
std::vector<KeyGroup> shippedKeys();

} // namespace zephira
