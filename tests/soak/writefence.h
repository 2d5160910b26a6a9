// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QStringList>

namespace zephira {

/// From now on, this process and its threads can create, change and remove files only below these folders, and start no
/// program at all; reading stays as it is. The kernel sees to it, and nothing takes it back. Fails if the kernel can't.
Result<void> fenceWrites(const QStringList &folders);

} // namespace zephira
