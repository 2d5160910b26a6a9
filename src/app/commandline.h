// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace zephira {

/// What "--help" and "--version", exactly these words, print before the program ends; nothing for any other argument
/// string, which is then the start's.
std::optional<QString> informationFor(const QString &argument);

} // namespace zephira
