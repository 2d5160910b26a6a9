// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <span>

namespace zephira {

/// One way in which a page gets hold of a window whose connections to peers, which no fence sees, it may use.
struct PeerWay {
    const char *name;
    /// What stands in the page's body. It calls `speak(name, window)`, in which WAY stands for the name.
    const char *html;
};

std::span<const PeerWay> peerWays();

/// The markup with which a page goes these ways, each of them to send datagrams to a server and to connect to it. The page
/// has a file "inner.html" beside it. In the page, `window.spoken` has the names of the ways that led to a connection.
/// @param server  the server's address, with its port
QByteArray peerMarkup(std::span<const PeerWay> ways, const QByteArray &server);

} // namespace zephira
