// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/filesystemcalls.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace zephira {

/// The real calls, counted from 0, until a test intervenes at one of them.
class FaultyCalls final : public FileSystemCalls
{
public:
    /// Called before each system call with its number and kind; if it returns an errno, the call fails with that.
    std::function<int(int, Call)> intervene = [](int, Call) { return 0; };
    /// The most bytes that a single write accepts.
    std::size_t writeLimit = static_cast<std::size_t>(-1);

    int count() const { return static_cast<int>(m_made.size()); }
    /// The kinds of the calls made so far, in order.
    const std::vector<Call> &made() const { return m_made; }

protected:
    int fault(Call call) override
    {
        m_made.push_back(call);
        return intervene(count() - 1, call);
    }
    std::size_t allowance(std::size_t wanted) override { return std::min(wanted, writeLimit); }

private:
    std::vector<Call> m_made;
};

} // namespace zephira
