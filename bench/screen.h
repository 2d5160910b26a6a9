// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>

#include <xcb/xcb.h>

namespace zephira::bench {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::milliseconds;

/// What has been painted on the screen since the last look.
struct Painted {
    bool anything = false;
    /// When the last of it came, if anything did.
    Clock::time_point last{};
    /// Sum of the painted rectangles, as a share of the screen. Painting twice counts twice.
    double share = 0;
    /// The smallest rectangle around it, in pixels.
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// The X display as the eye and the hand of a measurement: it tells when something is painted, without reading pixels
/// back and so without slowing the server, and presses keys as a keyboard does.
class Screen
{
public:
    /// Connects to $DISPLAY. Throws std::runtime_error without a server that knows DAMAGE and XTEST.
    Screen();
    ~Screen();
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

    /// Waits until something is painted, at most as long as told, and takes note of everything that came.
    Painted look(Milliseconds atMost);
    /// Presses and releases the key, with Control held if so told. Throws std::runtime_error if no key bears the symbol.
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
