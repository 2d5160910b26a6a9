// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/earlyfonts.h"

#include <system_error>

#include <fontconfig/fontconfig.h>

namespace zephira {

EarlyFonts::EarlyFonts()
{
    try {
        m_thread = std::jthread([] { FcInit(); });
    } catch (const std::system_error &) {
        // Without another thread, the configuration is loaded when the first font is needed.
    }
}

void EarlyFonts::wait()
{
    if (m_thread.joinable())
        m_thread.join();
}

} // namespace zephira
