// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <span>
#include <vector>

namespace zephira {

/// A line of the data file: its kind, and up to four fields in UTF-8, divided by tabs. Lines that begin with "#" are notes.
///
///     A  an attribute: of the tag above it, or of every tag if there is none; flags: the name of its set of values, "v" for
///        one that has no value
///     T  a tag
///     S  a set of values
///     V  a value of the set or property above it
///     P  a property of style sheets; flags: "c" where a color belongs, "o" for what is out of use, and how much it is used
///     @  an at-rule
///     :  a pseudo-class or pseudo-element
struct DataRow {
    char kind = 0;
    QByteArrayView name = {};
    QByteArrayView flags = {};
    /// The year in which all browsers knew it, and each one's first version: "2015 C1 E12 FF1 S1"
    QByteArrayView since = {};
    QByteArrayView text = {};
    /// The number of rows that follow and belong to this one.
    std::size_t children = 0;
};

/// What is known of HTML and style sheets: the data file, and a table of old tags. The rows are valid as long as this is.
class CompletionData
{
public:
    /// Takes the content of the data file. Lines that it can't make sense of are left out, so that nothing but the old tags
    /// is left of a file that is none.
    explicit CompletionData(QByteArray file);
    Q_DISABLE_COPY_MOVE(CompletionData)

    /// All rows of a kind, in the file's order.
    std::vector<const DataRow *> rows(char kind) const;
    /// The attributes that a tag has of its own, and those that all have, each name once. Names of tags are in lower case.
    std::vector<const DataRow *> attributesOf(QByteArrayView tag) const;
    /// The values of an attribute of a tag, or of a property.
    std::span<const DataRow> valuesOfAttribute(QByteArrayView tag, QByteArrayView attribute) const;
    std::span<const DataRow> valuesOfProperty(QByteArrayView property) const;
    /// The row of a kind with this name, or nullptr.
    const DataRow *find(char kind, QByteArrayView name) const;
    /// Whether the row is of the table of old tags.
    bool isOld(const DataRow &row) const;

private:
    void read(QByteArrayView lines);
    std::span<const DataRow> childrenOf(const DataRow &row) const { return {&row + 1, row.children}; }

    QByteArray m_file;
    std::vector<DataRow> m_rows;
    std::size_t m_firstOld = 0;
};

} // namespace zephira
