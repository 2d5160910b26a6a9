// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <span>

namespace zephira {

/// Something that reads what others wrote, and prints what it made of it.
struct Parser {
    const char *name;
    QByteArray (*print)(const QByteArray &input);
};

/// All of them. A new one is a row here.
std::span<const Parser> parsers();

} // namespace zephira
