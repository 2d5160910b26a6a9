// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/keyboardlocks.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace zephira {

namespace {

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};

} // namespace

std::optional<KeyboardLocks> keyboardLocks()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || !x11->connection())
        return std::nullopt;
    xcb_connection_t *connection = x11->connection();
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const std::unique_ptr<xcb_query_pointer_reply_t, Free> reply(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, screen->root), nullptr));
    if (!reply)
        return std::nullopt;
    // Num Lock is the second modifier in every keyboard map in use.
    return KeyboardLocks{.caps = (reply->mask & XCB_MOD_MASK_LOCK) != 0, .num = (reply->mask & XCB_MOD_MASK_2) != 0};
}

} // namespace zephira
