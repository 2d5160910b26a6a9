// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDate>

#include <vector>

namespace zephira {

/// An entry as the server lists it.
struct ListedEntry {
    /// Its bytes, whose encoding is not known.
    QByteArray name;
    bool isFolder = false;
    /// A link, which the listing doesn't say the kind of: it may lead to a folder.
    bool isLink = false;
    /// In bytes.
    quint64 size = 0;
    /// As in FindData; 0 if the listing has none.
    quint64 lastWriteTime = 0;

    friend bool operator==(const ListedEntry &, const ListedEntry &) = default;
};

// Lines end in LF or CR LF. What isn't an entry is left out, and so are devices, pipes and sockets, names that are not
// safe (isSafeRemoteName), and all but the first of equal names. Reading never fails.

/// The answer to MLSD: "type=file;size=1024;modify=20010305090700; index.htm".
std::vector<ListedEntry> readMlsd(QByteArrayView listing);

/// The answer to LIST, which is meant for people, in the form of Unix or of DOS. `today` is the server's day, as far as
/// one knows: a date with a time but no year is the last such day, tomorrow included, because zones differ.
std::vector<ListedEntry> readList(QByteArrayView listing, QDate today);

} // namespace zephira
