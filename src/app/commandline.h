// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace zephira {

/// The text that the program prints before it exits if the argument is exactly "--help" or "--version"; nothing for any
/// other argument, with which the program starts normally.
std::optional<QString> informationFor(const QString &argument);

/// What is wrong with the argument: it looks like an option, but there is neither such an option nor a file of that name.
/// Nothing for any other argument.
/// @param fileExists  whether there is a file with a name
std::optional<QString> optionFault(const QString &argument, const std::function<bool(const QString &)> &fileExists);

} // namespace zephira
