// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <span>

namespace zephira {

/// The tags of the iHTML language in the order of the list. Each is inserted exactly as it is here.
std::span<const QStringView> ihtmlTags();

} // namespace zephira
