// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <span>
#include <vector>

namespace zephira {

/// A command and its keys, such as "Ctrl+N".
struct KeyRow {
    QString command;
    QStringList keys;

    friend bool operator==(const KeyRow &, const KeyRow &) = default;
};

struct KeyGroup {
    QString title;
    std::vector<KeyRow> rows;
};

/// A heading and a table for each group, as HTML.
QString keyTables(std::span<const KeyGroup> groups);

} // namespace zephira
