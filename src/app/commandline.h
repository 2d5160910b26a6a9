// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace zephira {

/// The text that the program prints before it exits if the argument is exactly "--help" or "--version"; nothing for any
/// other argument, with which the program starts normally.
std::optional<QString> informationFor(const QString &argument);

} // namespace zephira
