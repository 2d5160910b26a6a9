// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <optional>

namespace zephira {

/// Says when the recovery copy of the document is due: a while after the first change that no copy holds, so that going
/// on typing neither puts it off nor writes it at each key. All times are read from one clock that never goes back.
///
/// Whoever owns the timer starts it with what changed() or copyFailed() gives, and stops it on settled().
class RecoverySchedule
{
public:
    using Time = std::chrono::milliseconds;

    /// From the change to the copy. What is left of the 15 seconds that are promised is for writing a large text.
    static constexpr Time delay{10'000};

    /// The document changed. Gives the wait until a copy is due if none was coming, else nothing; costs next to nothing.
    std::optional<Time> changed(Time now);
    /// Whether a copy is to be written by now.
    bool isDue(Time now) const { return m_due && now >= *m_due; }
    /// When the copy that is coming is due.
    std::optional<Time> due() const { return m_due; }

    /// The document is now in a copy, or in its file, or gone.
    void settled() { m_due.reset(); }
    /// The copy could not be written. Gives the wait until the next try.
    Time copyFailed(Time now);

private:
    std::optional<Time> m_due;
};

} // namespace zephira
