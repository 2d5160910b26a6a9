// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDate>

#include <vector>

namespace zephira {

/// An entry as it appears in the server's listing.
struct ListedEntry {
    /// The name's bytes, in an unknown encoding.
    QByteArray name;
    bool isFolder = false;
    /// A link; the listing doesn't say what it leads to, which may be a folder.
    bool isLink = false;
    /// In bytes.
    quint64 size = 0;
    /// As in FindData; 0 if the listing has none.
    quint64 lastWriteTime = 0;

    friend bool operator==(const ListedEntry &, const ListedEntry &) = default;
};

// Lines end in LF or CR LF. Lines that are no entry are skipped, and so are devices, pipes and sockets, unsafe names
// (see isSafeRemoteName), and all but the first of equal names. Reading never fails.

/// The answer to MLSD: "type=file;size=1024;modify=20010305090700; index.htm".
std::vector<ListedEntry> readMlsd(QByteArrayView listing);

/// The answer to LIST, which is meant for people, in the format of Unix or DOS. `today` is the best known date of the
/// server: a date with a time but no year is taken as its latest occurrence up to tomorrow, because time zones differ.
std::vector<ListedEntry> readList(QByteArrayView listing, QDate today);

} // namespace zephira
