// SPDX-License-Identifier: GPL-3.0-or-later
// picture [--keys N] [--end] [--preview] [--close] [--trace] COMMAND...: starts a program on the current display and
// measures it from outside. Prints one JSON object; every time is in milliseconds unless its name says otherwise.
//
//   picture   from exec until the picture is complete and the processor is idle
//   pss_kb    proportional set size of the program and its children at that moment
//   key_start_us, key_start_latency    with --keys: processor time of a key typed at the start, and median time until
//                                      something is painted for it
//   jump, jump_complete                with --end: from Ctrl+End until the text there is painted, and until all is idle
//   key_end_us, key_end_latency        with both: as above, at the end
//   preview   with --preview: from F8, which shows the next view, until that view is complete and the processor is idle
//
// The program is killed at the end. With --close its window is closed before that, so that it leaves its settings
// behind. With --trace it logs to stderr what is painted when, and how much processor time has been used by then.

#include "bench/processtree.h"
#include "bench/screen.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

namespace zephira::bench {

namespace {

using namespace std::chrono_literals;

/// A picture is complete when for this long nothing has been painted and no more processor time than the allowance has
/// been used. This is shorter than half the period of a blinking caret.
constexpr Milliseconds quiet = 300ms;
constexpr Nanoseconds allowance = 10ms;
constexpr Milliseconds patience = 120s;
/// A newly shown part of a text covers at least this fraction of the screen; carets, lines and status bars cover less.
constexpr double textShare = 0.2;

constexpr std::uint32_t endKey = 0xff57;
constexpr std::uint32_t nextViewKey = 0xffc5; // F8
constexpr std::uint32_t leftShift = 0xffe1;

double milliseconds(Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

/// Waits until the program is idle and returns since when it has been. With `mustPaint` it doesn't count as idle before
/// it has painted a large part of the screen.
Clock::time_point restAfter(Clock::time_point start, Screen &screen, ProcessTree &program, bool mustPaint,
                            bool trace = false)
{
    Clock::time_point since = start;
    Nanoseconds used = program.cpuTime();
    double share = mustPaint ? 0 : 1;
    for (;;) {
        const Painted painted = screen.look(5ms);
        const Nanoseconds usedNow = program.cpuTime();
        const Clock::time_point now = Clock::now();
        share += painted.share;
        if (trace && (painted.anything || usedNow - used > allowance)) {
            std::fprintf(stderr, "%7.1f ms, %7.1f ms used, painted %d,%d to %d,%d\n", milliseconds(now - start),
                         milliseconds(usedNow), painted.left, painted.top, painted.right, painted.bottom);
        }
        if (painted.anything || usedNow - used > allowance) {
            since = painted.anything ? painted.last : now;
            used = usedNow;
        } else if (share >= textShare && now - since >= quiet) {
            return since;
        }
        if (!program.running())
            throw std::runtime_error("the program has ended");
        if (now - start > patience)
            throw std::runtime_error("the program does not come to rest");
    }
}

struct Typing {
    double cpuUs = 0;
    double latency = 0;
};

/// Types letters, each after the previous one has been painted.
Typing type(int count, Screen &screen, ProcessTree &program)
{
    std::vector<double> latencies;
    const Nanoseconds before = program.cpuTime();
    for (int i = 0; i < count; ++i) {
        while (screen.look(0ms).anything) {}
        const Clock::time_point pressed = Clock::now();
        screen.press(static_cast<std::uint32_t>('a' + i % 26));
        Painted painted = screen.look(2000ms);
        if (!painted.anything)
            throw std::runtime_error("nothing is painted for a key");
        latencies.push_back(milliseconds(painted.last - pressed));
        while (painted.anything)
            painted = screen.look(8ms);
    }
    const Nanoseconds used = program.cpuTime() - before;
    std::ranges::nth_element(latencies, latencies.begin() + count / 2);
    return {std::chrono::duration<double, std::micro>(used).count() / count,
            latencies[static_cast<std::size_t>(count / 2)]};
}

/// Presses Ctrl+End and returns when the text there has been painted.
Clock::duration jumpToEnd(Screen &screen, Clock::time_point pressed)
{
    screen.press(endKey, true);
    double share = 0;
    for (;;) {
        const Painted painted = screen.look(100ms);
        share += painted.share;
        if (share >= textShare)
            return painted.last - pressed;
        if (Clock::now() - pressed > patience)
            throw std::runtime_error("the end of the text is not shown");
    }
}

struct Options {
    int keys = 0;
    bool end = false;
    bool preview = false;
    bool close = false;
    bool trace = false;
};

void measure(const Options &options, const std::vector<std::string> &command)
{
    Screen screen;
    // The X server switches to its artificial keyboard at the first key, and a program that handles that switch misses
    // the key.
    screen.press(leftShift);
    while (screen.look(100ms).anything) {}

    const Clock::time_point start = Clock::now();
    ProcessTree program(command);
    const Clock::time_point complete = restAfter(start, screen, program, true, options.trace);
    std::string out = "{\"picture\": " + std::to_string(milliseconds(complete - start))
        + ", \"pss_kb\": " + std::to_string(program.pssKb());
    const auto addTyping = [&](const std::string &where) {
        const Typing typing = type(options.keys, screen, program);
        out += ", \"key_" + where + "_us\": " + std::to_string(typing.cpuUs) + ", \"key_" + where
            + "_latency\": " + std::to_string(typing.latency);
        restAfter(Clock::now(), screen, program, false);
    };
    if (options.keys > 0)
        addTyping("start");
    if (options.end) {
        const Clock::time_point pressed = Clock::now();
        const Clock::duration jump = jumpToEnd(screen, pressed);
        out += ", \"jump\": " + std::to_string(milliseconds(jump));
        const Clock::time_point rest = restAfter(pressed + jump, screen, program, false);
        out += ", \"jump_complete\": " + std::to_string(milliseconds(rest - pressed));
        if (options.keys > 0)
            addTyping("end");
    }
    if (options.preview) {
        const Clock::time_point pressed = Clock::now();
        screen.press(nextViewKey);
        const Clock::time_point shown = restAfter(pressed, screen, program, true, options.trace);
        out += ", \"preview\": " + std::to_string(milliseconds(shown - pressed));
    }
    if (options.close) {
        screen.closeActiveWindow();
        for (const Clock::time_point asked = Clock::now(); program.running() && Clock::now() - asked < 5s;)
            screen.look(20ms);
    }
    std::puts((out + "}").c_str());
}

} // namespace

} // namespace zephira::bench

int main(int argc, char **argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    zephira::bench::Options options;
    auto next = arguments.begin();
    for (; next != arguments.end() && next->starts_with("--"); ++next) {
        if (*next == "--end")
            options.end = true;
        else if (*next == "--preview")
            options.preview = true;
        else if (*next == "--close")
            options.close = true;
        else if (*next == "--trace")
            options.trace = true;
        else if (*next == "--keys" && next + 1 != arguments.end())
            options.keys = std::atoi((++next)->c_str());
        else
            break;
    }
    if (next == arguments.end() || next->starts_with("--")) {
        std::fputs("usage: picture [--keys N] [--end] [--preview] [--close] [--trace] COMMAND [ARGUMENT]...\n", stderr);
        return 2;
    }
    try {
        zephira::bench::measure(options, {next, arguments.end()});
    } catch (const std::exception &problem) {
        std::fprintf(stderr, "picture: %s: %s\n", next->c_str(), problem.what());
        return 1;
    }
    return 0;
}
