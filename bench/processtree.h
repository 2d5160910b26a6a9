// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

namespace zephira::bench {

using Nanoseconds = std::chrono::nanoseconds;

/// A program that was started for a measurement, with all its child processes. The destructor kills it instead of
/// asking it to close, because what it does on closing is not measured.
class ProcessTree
{
public:
    /// Starts the command and discards its output. Throws std::system_error if that fails.
    explicit ProcessTree(const std::vector<std::string> &command);
    ~ProcessTree();
    ProcessTree(const ProcessTree &) = delete;
    ProcessTree &operator=(const ProcessTree &) = delete;

    /// False as soon as the first process has ended.
    bool running();
    /// Processor time of all processes so far, including those that have ended since the last call.
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
