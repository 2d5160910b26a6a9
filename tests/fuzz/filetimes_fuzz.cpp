// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary times: the parts of a time make the same time again, to the second.
#include "ftp/finddata.h"
#include "fuzz/fuzztarget.h"

#include <array>
#include <cstring>

using namespace zephira;

FUZZ_TARGET(filetimes)
{
    quint64 time = 0;
    if (size < sizeof time)
        return 0;
    std::memcpy(&time, data, sizeof time);
    SystemTime parts;
    const bool isTime = FileTimeToSystemTime(time, parts);
    check(isTime == (time >> 63 == 0));
    if (!isTime)
        return 0;
    check(parts.year >= 1601 && parts.month >= 1 && parts.month <= 12 && parts.day >= 1 && parts.day <= 31);
    check(parts.hour >= 0 && parts.hour < 24 && parts.minute >= 0 && parts.minute < 60 && parts.second >= 0);
    const std::optional<quint64> back = systemTimeToFileTime(parts);
    constexpr quint64 unitsPerSecond = 10'000'000;
    check(!back || *back == time - time % unitsPerSecond);
    check(back.has_value() || parts.year > 9999);
    if (size >= sizeof time + 12) {
        std::array<qint16, 6> raw{};
        std::memcpy(raw.data(), data + sizeof time, sizeof raw);
        const SystemTime any{raw[0], raw[1], raw[2], raw[3], raw[4], raw[5]};
        SystemTime same;
        if (const std::optional<quint64> made = systemTimeToFileTime(any))
            check(FileTimeToSystemTime(*made, same) && same == any);
    }
    return 0;
}
