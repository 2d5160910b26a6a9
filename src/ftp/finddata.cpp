// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/finddata.h"

#include <QDate>
#include <QTime>

namespace zephira {

namespace {

constexpr quint64 ticksPerSecond = 10'000'000;
constexpr quint64 secondsPerDay = 86'400;

QDate firstDay()
{
    return QDate(1601, 1, 1);
}

} // namespace

bool FileTimeToSystemTime(quint64 time, SystemTime &parts)
{
    if (time >> 63)
        return false;
    const quint64 seconds = time / ticksPerSecond;
    const QDate date = firstDay().addDays(static_cast<qint64>(seconds / secondsPerDay));
    const int inDay = static_cast<int>(seconds % secondsPerDay);
    parts = {date.year(), date.month(), date.day(), inDay / 3600, inDay / 60 % 60, inDay % 60};
    return true;
}

std::optional<quint64> systemTimeToFileTime(const SystemTime &parts)
{
    const QDate date(parts.year, parts.month, parts.day);
    const QTime time(parts.hour, parts.minute, parts.second);
    constexpr int lastYear = 9999;
    if (!date.isValid() || !time.isValid() || date < firstDay() || parts.year > lastYear)
        return {};
    const auto days = static_cast<quint64>(firstDay().daysTo(date));
    return (days * secondsPerDay + static_cast<quint64>(time.msecsSinceStartOfDay() / 1000)) * ticksPerSecond;
}

} // namespace zephira
