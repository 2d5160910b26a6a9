// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <span>

namespace zephira {

/// The tags of the iHTML language in the order of the list. Each is pasted as it stands.
std::span<const QStringView> ihtmlTags();

} // namespace zephira
