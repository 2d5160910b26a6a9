// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>

#include <xcb/xcb.h>

namespace zephira::bench {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::milliseconds;

/// What has been painted on the screen since the last call.
struct Painted {
    bool anything = false;
    /// When the last part of it was painted, if any was.
    Clock::time_point last{};
    /// Sum of the painted rectangles, as a fraction of the screen. Painting twice counts twice.
    double share = 0;
    /// The bounding rectangle, in pixels.
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// The X display of a measurement. It reports when something is painted, without slowing the server by reading pixels
/// back, and presses keys as a keyboard does.
class Screen
{
public:
    /// Connects to $DISPLAY. Throws std::runtime_error if there is no server, or if it lacks DAMAGE or XTEST.
    Screen();
    ~Screen();
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

    /// Waits until something is painted, but no longer than the time-out, and returns everything that was painted.
    Painted look(Milliseconds atMost);
    /// Presses and releases the key, on request with Control held. Throws std::runtime_error if no key has the symbol.
    void press(std::uint32_t keySymbol, bool control = false);
    /// Asks the active window to close, as its close button does.
    void closeActiveWindow();

private:
    xcb_atom_t atom(const char *name) const;
    void fake(std::uint8_t type, xcb_keycode_t key);
    xcb_keycode_t keyOf(std::uint32_t keySymbol) const;

    xcb_connection_t *m_connection = nullptr;
    xcb_window_t m_root = 0;
    double m_area = 1;
    std::uint8_t m_damageNotify = 0;
};

} // namespace zephira::bench
