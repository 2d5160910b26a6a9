// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QStringList>

#include <vector>

namespace zephira {

class FileStore;

/// What stands in the file of a custom tab.
struct CustomTabFile {
    struct Entry {
        QString title;
        /// What is pasted.
        QString code;

        friend bool operator==(const Entry &, const Entry &) = default;
    };

    /// Caption of the list's column.
    QString header;
    std::vector<Entry> entries;
};

/// Reads the lines of a custom tab. The first is the header. A line that begins with #EXTINF, in capitals, holds a title
/// behind its first comma (without a comma it is the title) and the line behind it the code, whatever that looks like.
/// Any other line is title and code in one.
///
///     #EXTINF,Bold        gives the title "Bold"
///     <b></b>             and its code
CustomTabFile parseCustomTab(const QStringList &lines);

/// What is put behind a custom tab's file to add an entry. It begins with a line end and ends without one.
QString customTabEntry(const QString &title, const QString &code);

/// Puts text behind the end of a file, in the file's own encoding, and makes the file if there is none. Fails with
/// Code::Unencodable, the file staying as it was, where the encoding can't hold the text.
Result<void> AppendToFile(FileStore &files, const QString &filePath, const QString &text);

} // namespace zephira
