// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

namespace zephira::bench {

using Nanoseconds = std::chrono::nanoseconds;

/// A program that was started for a measurement, with everything that it starts itself. It is killed, not asked to
/// close, when the object goes: what it would do on closing is no part of any figure.
class ProcessTree
{
public:
    /// Starts the command with its output thrown away. Throws std::system_error if that fails.
    explicit ProcessTree(const std::vector<std::string> &command);
    ~ProcessTree();
    ProcessTree(const ProcessTree &) = delete;
    ProcessTree &operator=(const ProcessTree &) = delete;

    /// False as soon as the first process has ended.
    bool running();
    /// Processor time of all processes so far, those that have ended since the last call included.
    Nanoseconds cpuTime();
    /// Proportional set size of all processes, in kB.
    long pssKb();

private:
    void findDescendants();

    pid_t m_root = -1;
    std::map<pid_t, Nanoseconds> m_cpuTimes;
    std::chrono::steady_clock::time_point m_lastSearch;
};

} // namespace zephira::bench
