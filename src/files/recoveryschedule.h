// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <optional>

namespace zephira {

/// Determines when the recovery copy of the document is due: some time after the first change that isn't in a copy yet,
/// so that continued typing neither postpones it nor writes it at each key. All times are from one monotonic clock.
///
/// The owner of the timer starts it with the result of changed() or copyFailed(), and stops it after settled().
class RecoverySchedule
{
public:
    using Time = std::chrono::milliseconds;

    /// From the change to the copy. The copy is promised within 15 seconds; the rest is for writing a large text.
    static constexpr Time delay{10'000};

    /// The document changed. Returns the time until a copy is due if none was scheduled, otherwise nothing. Very cheap.
    std::optional<Time> changed(Time now);
    /// Whether a copy should have been written by `now`.
    bool isDue(Time now) const { return m_due && now >= *m_due; }
    /// When the scheduled copy is due, if there is one.
    std::optional<Time> due() const { return m_due; }

    /// The document has been copied, saved or discarded.
    void settled() { m_due.reset(); }
    /// The copy could not be written. Returns the time until the next attempt.
    Time copyFailed(Time now);

private:
    std::optional<Time> m_due;
};

} // namespace zephira
