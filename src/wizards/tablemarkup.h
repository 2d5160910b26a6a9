// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

#include <optional>

namespace zephira {

/// A number of rows or columns as the user typed it: a whole number of 32 bits, halves rounded to the even neighbour.
/// Nothing for a text that isn't such a number.
std::optional<qint32> tableCount(const QString &typed);

/// A row count below 1 gives a table without rows; each row has at least one cell, whatever the column count says.
struct TableSize {
    qint32 columns = 1;
    qint32 rows = 1;

    friend bool operator==(const TableSize &, const TableSize &) = default;
};

/// Fields of the full table, as they are typed. Nothing in them is quoted or checked.
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
    /// The word "Default" leaves a colour out.
    QString backgroundColour = {};
    QString borderColour = {};
    QString lightColour = {};
    QString darkColour = {};
};

/// Attributes of the full table, ready to stand in its first tag: each is empty or begins with a blank.
struct TableAttributes {
    QString width = {};
    QString background = {};
    QString border = {};
    /// The light and the dark border colour; neither is written without the other.
    QString lightAndDark = {};

    friend bool operator==(const TableAttributes &, const TableAttributes &) = default;
};

/// Fields of a single cell, as they are typed. A span is written for the exact words "Column" and "Row"; the word
/// "Default" leaves an alignment out.
struct CellFields {
    QString span = {};
    QString spanCount = {};
    QString horizontal = {};
    QString vertical = {};
};

/// The attributes that the fields ask for; the width has doubled quotes for a script and none in plain markup.
TableAttributes tableAttributes(const TableFields &fields);

/// The text of a table, with CR LF line ends. A table whose text would exceed maximumTableLength is an error
/// (Code::TooLarge) and is never begun.
Result<QString> simpleTableMarkup(TableSize size);
Result<QString> plainTableMarkup(TableSize size, const TableFields &fields, const TableAttributes &attributes);
Result<QString> aspTableMarkup(TableSize size, const TableFields &fields, const TableAttributes &attributes);

/// The text of one cell on a line of its own.
QString cellMarkup(const CellFields &fields);

/// In UTF-16 code units. More is no page that anybody writes; two mistyped digits must not take all memory.
constexpr qint64 maximumTableLength = 64LL * 1024 * 1024;

} // namespace zephira
