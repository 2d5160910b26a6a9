// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QStringList>

#include <vector>

namespace zephira {

class FileStore;

/// The contents of a custom tab's file.
struct CustomTabFile {
    struct Entry {
        QString title;
        /// The text to insert.
        QString code;

        friend bool operator==(const Entry &, const Entry &) = default;
    };

    /// Caption of the list's column.
    QString header;
    std::vector<Entry> entries;
};

/// Reads the lines of a custom tab. The first is the header. In a line that begins with #EXTINF (in capitals) the title
/// follows the first comma, or is the whole line if there is no comma; the next line is the code, whatever it looks
/// like. Any other line is both title and code.
///
///     #EXTINF,Bold        gives the title "Bold"
///     <b></b>             and its code
CustomTabFile parseCustomTab(const QStringList &lines);

/// The text to append to a custom tab's file for a new entry. It begins with a line end and ends without one.
QString customTabEntry(const QString &title, const QString &code);

/// Appends text to a file in the file's own encoding, and creates the file if it doesn't exist. Fails with
/// Code::Unencodable, leaving the file unchanged, if the encoding can't represent the text.
Result<void> AppendToFile(FileStore &files, const QString &filePath, const QString &text);

} // namespace zephira
