// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/screen.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>

#include <poll.h>
#include <xcb/damage.h>
#include <xcb/xtest.h>

namespace zephira::bench {

namespace {

constexpr std::uint32_t leftControl = 0xffe3;

template<typename T>
std::unique_ptr<T, decltype(&std::free)> owned(T *reply)
{
    return {reply, &std::free};
}

} // namespace

Screen::Screen()
{
    m_connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(m_connection) != 0)
        throw std::runtime_error("no X display can be reached");
    const auto *damage = xcb_get_extension_data(m_connection, &xcb_damage_id);
    const auto *test = xcb_get_extension_data(m_connection, &xcb_test_id);
    if (damage == nullptr || damage->present == 0 || test == nullptr || test->present == 0)
        throw std::runtime_error("the X server lacks DAMAGE or XTEST");
    m_damageNotify = static_cast<std::uint8_t>(damage->first_event + XCB_DAMAGE_NOTIFY);
    owned(xcb_damage_query_version_reply(m_connection, xcb_damage_query_version(m_connection, 1, 1), nullptr));

    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    m_root = screen->root;
    m_area = static_cast<double>(screen->width_in_pixels) * screen->height_in_pixels;
    // Damage to the root window is damage to everything on it.
    xcb_damage_create(m_connection, xcb_generate_id(m_connection), m_root, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    xcb_flush(m_connection);
}

Screen::~Screen()
{
    xcb_disconnect(m_connection);
}

Painted Screen::look(Milliseconds atMost)
{
    Painted painted;
    const auto takeNote = [&] {
        while (const auto event = owned(xcb_poll_for_event(m_connection))) {
            if ((event->response_type & 0x7f) != m_damageNotify)
                continue;
            const auto *notify = reinterpret_cast<const xcb_damage_notify_event_t *>(event.get());
            const xcb_rectangle_t &area = notify->area;
            painted.left = painted.anything ? std::min<int>(painted.left, area.x) : area.x;
            painted.top = painted.anything ? std::min<int>(painted.top, area.y) : area.y;
            painted.right = std::max(painted.right, area.x + area.width);
            painted.bottom = std::max(painted.bottom, area.y + area.height);
            painted.anything = true;
            painted.share += static_cast<double>(area.width) * area.height / m_area;
        }
    };
    takeNote();
    if (!painted.anything) {
        pollfd descriptor{xcb_get_file_descriptor(m_connection), POLLIN, 0};
        poll(&descriptor, 1, static_cast<int>(atMost.count()));
        takeNote();
    }
    if (xcb_connection_has_error(m_connection) != 0)
        throw std::runtime_error("the X server is gone");
    if (painted.anything)
        painted.last = Clock::now();
    return painted;
}

void Screen::press(std::uint32_t keySymbol, bool control)
{
    const xcb_keycode_t key = keyOf(keySymbol);
    if (control)
        fake(XCB_KEY_PRESS, keyOf(leftControl));
    fake(XCB_KEY_PRESS, key);
    fake(XCB_KEY_RELEASE, key);
    if (control)
        fake(XCB_KEY_RELEASE, keyOf(leftControl));
    xcb_flush(m_connection);
}

void Screen::closeActiveWindow()
{
    const auto active = owned(xcb_get_property_reply(
        m_connection, xcb_get_property(m_connection, 0, m_root, atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 0, 1),
        nullptr));
    if (!active || xcb_get_property_value_length(active.get()) != sizeof(xcb_window_t))
        return;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = *static_cast<const xcb_window_t *>(xcb_get_property_value(active.get()));
    message.type = atom("_NET_CLOSE_WINDOW");
    xcb_send_event(m_connection, 0, m_root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(m_connection);
}

xcb_atom_t Screen::atom(const char *name) const
{
    const auto reply = owned(xcb_intern_atom_reply(
        m_connection, xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name), nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

void Screen::fake(std::uint8_t type, xcb_keycode_t key)
{
    xcb_test_fake_input(m_connection, type, key, XCB_CURRENT_TIME, m_root, 0, 0, 0);
}

xcb_keycode_t Screen::keyOf(std::uint32_t keySymbol) const
{
    const xcb_setup_t *setup = xcb_get_setup(m_connection);
    const int count = setup->max_keycode - setup->min_keycode + 1;
    const auto reply = owned(xcb_get_keyboard_mapping_reply(
        m_connection, xcb_get_keyboard_mapping(m_connection, setup->min_keycode, static_cast<std::uint8_t>(count)),
        nullptr));
    if (reply) {
        const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
        // The first symbol of each key is the one without Shift.
        for (int i = 0; i < count; ++i) {
            if (symbols[i * reply->keysyms_per_keycode] == keySymbol)
                return static_cast<xcb_keycode_t>(setup->min_keycode + i);
        }
    }
    throw std::runtime_error("the keyboard lacks a key");
}

} // namespace zephira::bench
