// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/processtree.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <system_error>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zephira::bench {

namespace {

/// The processor-time clock of another process counts all its threads, including those that have ended, in nanoseconds;
/// the figures under /proc are too coarse for a single key press.
Nanoseconds cpuTimeOf(pid_t pid)
{
    clockid_t clock;
    timespec time{};
    if (clock_getcpuclockid(pid, &clock) != 0 || clock_gettime(clock, &time) != 0)
        return Nanoseconds::zero();
    return std::chrono::seconds(time.tv_sec) + Nanoseconds(time.tv_nsec);
}

/// The parent of a process; 0 if the process has ended.
pid_t parentOf(pid_t pid)
{
    std::ifstream file("/proc/" + std::to_string(pid) + "/stat");
    std::string line;
    std::getline(file, line);
    // The name in parentheses may hold any character, even a parenthesis.
    const auto end = line.rfind(')');
    if (end == std::string::npos || line.size() < end + 4)
        return 0;
    return static_cast<pid_t>(std::stol(line.substr(end + 4)));
}

} // namespace

ProcessTree::ProcessTree(const std::vector<std::string> &command)
{
    std::vector<char *> arguments;
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);

    m_root = fork();
    if (m_root < 0)
        throw std::system_error(errno, std::generic_category(), "fork");
    if (m_root == 0) {
        setsid();
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        const int nowhere = open("/dev/null", O_RDWR);
        for (const int stream : {0, 1, 2})
            dup2(nowhere, stream);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    m_cpuTimes[m_root] = Nanoseconds::zero();
}

ProcessTree::~ProcessTree()
{
    m_lastSearch = {};
    findDescendants();
    for (const auto &[pid, time] : m_cpuTimes) {
        if (pid == m_root || parentOf(pid) != 0)
            kill(pid, SIGKILL);
    }
    kill(-m_root, SIGKILL);
    waitpid(m_root, nullptr, 0);
}

bool ProcessTree::running()
{
    siginfo_t information{};
    return waitid(P_PID, static_cast<id_t>(m_root), &information, WEXITED | WNOHANG | WNOWAIT) == 0
        && information.si_pid == 0;
}

Nanoseconds ProcessTree::cpuTime()
{
    findDescendants();
    Nanoseconds sum = Nanoseconds::zero();
    for (auto &[pid, time] : m_cpuTimes) {
        time = std::max(time, cpuTimeOf(pid));
        sum += time;
    }
    return sum;
}

long ProcessTree::pssKb()
{
    m_lastSearch = {};
    findDescendants();
    long sum = 0;
    for (const auto &[pid, time] : m_cpuTimes) {
        std::ifstream file("/proc/" + std::to_string(pid) + "/smaps_rollup");
        std::string word;
        while (file >> word) {
            long kilobytes = 0;
            if (word == "Pss:" && file >> kilobytes)
                sum += kilobytes;
        }
    }
    return sum;
}

void ProcessTree::findDescendants()
{
    // Reading all of /proc every time would disturb the measurement.
    const auto now = std::chrono::steady_clock::now();
    if (now - m_lastSearch < std::chrono::milliseconds(50))
        return;
    m_lastSearch = now;

    std::vector<std::pair<pid_t, pid_t>> others;
    std::error_code ignored;
    for (const auto &entry : std::filesystem::directory_iterator("/proc", ignored)) {
        const std::string name = entry.path().filename();
        if (name.find_first_not_of("0123456789") != std::string::npos)
            continue;
        const auto pid = static_cast<pid_t>(std::stol(name));
        if (!m_cpuTimes.contains(pid) && pid > m_root)
            others.emplace_back(pid, parentOf(pid));
    }
    for (bool found = true; found;) {
        found = false;
        for (const auto &[pid, parent] : others)
            found |= m_cpuTimes.contains(parent) && m_cpuTimes.emplace(pid, Nanoseconds::zero()).second;
    }
}

} // namespace zephira::bench
