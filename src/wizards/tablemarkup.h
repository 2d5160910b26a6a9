// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

#include <optional>

namespace zephira {

/// A number of rows or columns as typed by the user: a 32-bit integer, halves rounded to even. Nothing for a text that
/// isn't such a number.
std::optional<qint32> tableCount(const QString &typed);

/// A row count below 1 means a table without rows; each row has at least one cell, even if the column count is lower.
struct TableSize {
    qint32 columns = 1;
    qint32 rows = 1;

    friend bool operator==(const TableSize &, const TableSize &) = default;
};

/// Fields of the full table, as typed. They are neither quoted nor checked.
struct TableFields {
    enum class WidthUnit { Pixels, Percent };

    QString alignment = {};
    QString borderSize = {};
    QString cellPadding = {};
    QString cellSpacing = {};
    bool hasWidth = false;
    QString width = {};
    WidthUnit widthUnit = WidthUnit::Pixels;
    /// Written for a server-side script: attribute values in doubled quotes …
    bool asp = false;
    /// … and each line in a statement that writes it.
    bool responseWrite = false;
    /// The word "Default" omits a colour.
    QString backgroundColour = {};
    QString borderColour = {};
    QString lightColour = {};
    QString darkColour = {};
};

/// Attributes of the full table, ready for its opening tag: each is empty or begins with a blank.
struct TableAttributes {
    QString width = {};
    QString background = {};
    QString border = {};
    /// The light and the dark border colour; written only if both are given.
    QString lightAndDark = {};

    friend bool operator==(const TableAttributes &, const TableAttributes &) = default;
};

/// Fields of a single cell, as typed. A span is written only for the exact words "Column" and "Row"; the word "Default"
/// omits an alignment.
struct CellFields {
    QString span = {};
    QString spanCount = {};
    QString horizontal = {};
    QString vertical = {};
};

/// The attributes for the fields; the width is in doubled quotes for a script and unquoted in plain markup.
TableAttributes tableAttributes(const TableFields &fields);

/// The text of a table, with CR LF line ends. If it would exceed maximumTableLength, Code::TooLarge is returned and no
/// text is built.
Result<QString> simpleTableMarkup(TableSize size);
Result<QString> plainTableMarkup(TableSize size, const TableFields &fields, const TableAttributes &attributes);
Result<QString> aspTableMarkup(TableSize size, const TableFields &fields, const TableAttributes &attributes);

/// The text of one cell on a line of its own.
QString cellMarkup(const CellFields &fields);

/// In UTF-16 code units. No real page is larger; two mistyped digits must not use up all memory.
constexpr qint64 maximumTableLength = 64LL * 1024 * 1024;

} // namespace zephira
