// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <span>

namespace zephira {

/// A parser of foreign data, and a function that prints its result.
struct Parser {
    const char *name;
    QByteArray (*print)(const QByteArray &input);
};

/// All parsers. A new one is a row of this table.
std::span<const Parser> parsers();

} // namespace zephira
