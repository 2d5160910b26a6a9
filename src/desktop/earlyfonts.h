// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <thread>

namespace zephira {

/// Loads the configuration of the fonts in a thread of its own, while the application connects to the display. The
/// first text that is measured needs it, and loading it takes as long as building half of the window. Whoever needs a
/// font earlier loads the configuration a second time, which does no harm.
///
/// The thread reads environment variables, and setting one could take the list of them away from under it: no variable
/// may be set between the constructor and wait().
class EarlyFonts
{
public:
    EarlyFonts();

    /// Returns when the configuration has been loaded.
    void wait();

private:
    std::jthread m_thread;
};

} // namespace zephira
