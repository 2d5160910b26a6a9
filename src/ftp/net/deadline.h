// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>

namespace zephira {

/// The time at which a wait gives up.
class Deadline
{
public:
    using Clock = std::chrono::steady_clock;

    explicit Deadline(std::chrono::milliseconds limit) : m_end(Clock::now() + limit) {}

    /// The remaining time, at least 0.
    std::chrono::milliseconds left() const
    {
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(m_end - Clock::now());
        return std::max(rest, std::chrono::milliseconds::zero());
    }
    bool hasPassed() const { return left() == std::chrono::milliseconds::zero(); }

private:
    Clock::time_point m_end;
};

} // namespace zephira
