// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <functional>
#include <limits>
#include <thread>

#include <malloc.h>

namespace zephira {

/// At most so many times the processor's time is linear for ten times the text: ten and what the caches cost, which a busy
/// machine shares with others. What grows with the square takes a hundred times, with the power of one and a half thirty.
constexpr double mostOfLinear = 20;

/// How many times the processor's time a run takes for ten times the text: the least of some rounds, because another
/// process may disturb one.
inline double timesForTenTimes(const std::function<QString(qsizetype count)> &makeText, qsizetype count,
                               const std::function<void(const QString &text)> &run)
{
    const auto seconds = [&run](const QString &text) {
        // Memory that an earlier run left behind would make the small one seem faster than it is.
        malloc_trim(0);
        timespec before{};
        timespec after{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &before);
        run(text);
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &after);
        constexpr double nanosecond = 1e-9;
        return static_cast<double>(after.tv_sec - before.tv_sec)
            + nanosecond * static_cast<double>(after.tv_nsec - before.tv_nsec);
    };
    const QString small = makeText(count);
    const QString large = makeText(10 * count);
    // Other programs take turns with the processor's caches. Another attempt, a moment later, helps against them, and
    // never helps what takes the square of the time.
    constexpr int attempts = 12;
    constexpr std::chrono::milliseconds pause(100);
    constexpr int rounds = 3;
    double times = std::numeric_limits<double>::max();
    for (int attempt = 0; attempt < attempts && times > mostOfLinear; ++attempt) {
        if (attempt > 0)
            std::this_thread::sleep_for(pause);
        double least = std::numeric_limits<double>::max();
        double most = std::numeric_limits<double>::max();
        for (int round = 0; round < rounds; ++round) {
            least = std::min(least, seconds(small));
            most = std::min(most, seconds(large));
        }
        times = std::min(times, most / least);
    }
    return times;
}

} // namespace zephira
