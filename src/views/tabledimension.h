// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace zephira {

/// A number of rows or columns, from 1 to 32767, written in digits; nothing for any other text. Blanks around it don't
/// count.
std::optional<int> tableDimension(const QString &text);

} // namespace zephira
