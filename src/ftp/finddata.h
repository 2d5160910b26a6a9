// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace zephira {

constexpr quint32 FILE_ATTRIBUTE_DIRECTORY = 16;

/// An entry of a folder on the server.
struct FindData {
    quint32 attributes = 0;
    /// In units of 100 nanoseconds since 1 January 1601, in the time zone that the server uses; 0 if the server gave
    /// none.
    quint64 lastWriteTime = 0;
    /// The size in bytes: its upper and its lower 32 bits.
    quint32 sizeHigh = 0;
    quint32 sizeLow = 0;
    QString fileName;

    bool isFolder() const { return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }
    friend bool operator==(const FindData &, const FindData &) = default;
};

/// A date and time of day: month and day from 1, hour from 0 to 23.
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

/// The reverse; nothing if the parts are no valid date and time of day or lie before 1601.
std::optional<quint64> systemTimeToFileTime(const SystemTime &parts);

} // namespace zephira
