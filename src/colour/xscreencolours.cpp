// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/xscreencolours.h"

#include <QGuiApplication>
#include <QPainter>

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace zephira {

namespace {

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};

template<typename T>
using Reply = std::unique_ptr<T, Free>;

xcb_connection_t *server()
{
    // Under Wayland the X server has only the pixels of its own windows, and the pointer only over them.
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return nullptr;
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t rootOf(xcb_connection_t *connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

/// The pixels of an area within the root window.
QImage imageOfArea(xcb_connection_t *connection, const QRect &area)
{
    constexpr uint32_t allPlanes = ~static_cast<uint32_t>(0);
    const auto request =
        xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, rootOf(connection), static_cast<int16_t>(area.x()),
                      static_cast<int16_t>(area.y()), static_cast<uint16_t>(area.width()),
                      static_cast<uint16_t>(area.height()), allPlanes);
    // An area that is no longer on a screen is an error of this request alone.
    xcb_generic_error_t *failed = nullptr;
    const Reply<xcb_get_image_reply_t> reply(xcb_get_image_reply(connection, request, &failed));
    std::free(failed);
    const qsizetype bytes = static_cast<qsizetype>(area.width()) * area.height() * 4;
    if (!reply || reply->depth < 24 || xcb_get_image_data_length(reply.get()) < bytes)
        return {};
    const auto format = reply->depth == 30 ? QImage::Format_RGB30 : QImage::Format_RGB32;
    return QImage(xcb_get_image_data(reply.get()), area.width(), area.height(), format)
        .convertToFormat(QImage::Format_RGB32)
        .copy();
}

} // namespace

bool XScreenColours::isReadable() const
{
    return server() != nullptr;
}

std::optional<QPoint> XScreenColours::pointer() const
{
    xcb_connection_t *connection = server();
    if (!connection)
        return {};
    const Reply<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, rootOf(connection)), nullptr));
    return reply ? std::optional(QPoint(reply->root_x, reply->root_y)) : std::nullopt;
}

void XScreenColours::movePointer(QPoint place)
{
    xcb_connection_t *connection = server();
    if (!connection)
        return;
    xcb_warp_pointer(connection, XCB_NONE, rootOf(connection), 0, 0, 0, 0, static_cast<int16_t>(place.x()),
                     static_cast<int16_t>(place.y()));
    xcb_flush(connection);
}

QImage XScreenColours::picture(const QRect &area) const
{
    xcb_connection_t *connection = server();
    if (!connection)
        return {};
    const Reply<xcb_get_geometry_reply_t> desktop(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, rootOf(connection)), nullptr));
    if (!desktop)
        return {};
    const QRect visible = area & QRect(0, 0, desktop->width, desktop->height);
    if (visible.isEmpty())
        return {};
    const QImage pixels = imageOfArea(connection, visible);
    if (visible == area || pixels.isNull())
        return pixels;
    QImage picture(area.size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter(&picture).drawImage(visible.topLeft() - area.topLeft(), pixels);
    return picture;
}

} // namespace zephira
