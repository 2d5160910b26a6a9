// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/filestore.h"

#include <QByteArray>
#include <QByteArrayView>

#include <functional>

namespace zephira {

/// Reads many text files one after the other into the same buffer, for a search that wants few of them. A file that
/// doesn't hold what is searched for is read, but not kept, and of a large one only a block at a time.
class BulkReader
{
public:
    enum class Kind {
        Wanted,     ///< text that may hold what is searched for
        Unwanted,   ///< text that doesn't, or no text at all
        Binary,     ///< one of the first bytes is a NUL, and no mark says that it is UTF-16
        Unreadable, ///< also what isn't a regular file
        TooLarge,   ///< larger than the program opens
        Stopped,
    };
    struct Content {
        Kind kind = Kind::Unreadable;
        /// Of a wanted file; valid until the next file is read.
        QByteArrayView bytes = {};
        /// Taken before reading.
        FileSignature signature = {};
    };
    struct Filter {
        /// Whether a part of a file may hold what is searched for.
        std::function<bool(QByteArrayView)> mayHold;
        /// The most bytes of it that may lie before the border of two parts.
        qsizetype overlap = 0;
        /// Whether the reader is to stop.
        std::function<bool()> isStopped;
        /// A file that is wanted whatever it holds.
        std::function<bool(const FileSignature &)> isAlwaysWanted = {};
    };

    explicit BulkReader(Filter filter) : m_filter(std::move(filter)) {}

    /// @param path  in the system's encoding
    Content read(const QByteArray &path);

private:
    Content readOpen(int file);
    qsizetype fill(int file, qsizetype from, qsizetype size);
    bool mayHoldLarge(int file, qsizetype begun);

    Filter m_filter;
    QByteArray m_buffer;
};

/// Whether the beginning of a file says that it is no text: it has a NUL and no mark of UTF-16.
bool isBinary(QByteArrayView beginning);

} // namespace zephira
