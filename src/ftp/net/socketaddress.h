// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <sys/socket.h>

namespace zephira {

/// The address of a socket or its peer, over IPv4 or IPv6.
class SocketAddress
{
public:
    /// An empty address.
    SocketAddress() = default;
    /// Copies the address that a system function returned.
    SocketAddress(const sockaddr *address, socklen_t length);

    const sockaddr *data() const { return reinterpret_cast<const sockaddr *>(&m_storage); }
    socklen_t length() const { return m_length; }
    int family() const { return m_storage.ss_family; }
    quint16 port() const;
    /// The same machine with another port.
    SocketAddress withPort(quint16 port) const;
    bool isSameHost(const SocketAddress &other) const { return host() == other.host(); }
    /// "127.0.0.1" or "::1".
    QByteArray host() const;

private:
    sockaddr_storage m_storage = {};
    socklen_t m_length = 0;
};

} // namespace zephira
