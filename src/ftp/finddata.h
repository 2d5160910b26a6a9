// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace zephira {

constexpr quint32 FILE_ATTRIBUTE_DIRECTORY = 16;

/// An entry of a folder on the server.
struct FindData {
    quint32 attributes = 0;
    /// In tenths of a microsecond since 1 January 1601, in whatever zone the server tells its times; 0 when it told none.
    quint64 lastWriteTime = 0;
    /// The size in bytes: its upper and its lower 32 bits.
    quint32 sizeHigh = 0;
    quint32 sizeLow = 0;
    QString fileName;

    bool isFolder() const { return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }
    friend bool operator==(const FindData &, const FindData &) = default;
};

/// A moment by its parts: month and day from 1, hour from 0 to 23.
struct SystemTime {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;

    friend bool operator==(const SystemTime &, const SystemTime &) = default;
};

/// The parts of a FindData's time, without conversion to another zone. The time 0 is 1 January 1601, 0:00. Fails for a
/// time whose highest bit is set, and leaves `parts` as it was.
bool FileTimeToSystemTime(quint64 time, SystemTime &parts);

/// The same backwards; nothing for parts that are no date and time of day, or lie before 1601.
std::optional<quint64> systemTimeToFileTime(const SystemTime &parts);

} // namespace zephira
