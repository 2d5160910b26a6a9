// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zephira {

/// A row of the local or the remote file list, with the texts of its columns.
struct FileRow {
    QString name;
    QString size;
    QString date;
    /// The exact size in bytes, in decimal. Code that needs the size reads it here, never from the displayed text.
    QString bytes;
    /// Number of its picture in the image lists, from 1.
    int image = 0;

    friend bool operator==(const FileRow &, const FileRow &) = default;
};

/// The sum of the rows' exact sizes.
qint64 totalBytes(const std::vector<FileRow> &rows);

/// One of the two file lists as commands see it.
class FileRows
{
public:
    virtual ~FileRows() = default;

    virtual int count() const = 0;
    virtual bool contains(const QString &name) const = 0;
    /// The selected rows in the order of the list.
    virtual std::vector<FileRow> selected() const = 0;
    /// Replaces the rows; none is selected afterwards.
    virtual void setRows(std::vector<FileRow> rows) = 0;
    /// Starts editing the name of the selected row in place.
    virtual void editName() = 0;
};

} // namespace zephira
