// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/socketaddress.h"

#include <algorithm>
#include <cstring>

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>

namespace zephira {

SocketAddress::SocketAddress(const sockaddr *address, socklen_t length)
    : m_length(std::min<socklen_t>(length, sizeof(m_storage)))
{
    std::memcpy(&m_storage, address, m_length);
}

quint16 SocketAddress::port() const
{
    if (family() == AF_INET6)
        return ntohs(reinterpret_cast<const sockaddr_in6 &>(m_storage).sin6_port);
    return ntohs(reinterpret_cast<const sockaddr_in &>(m_storage).sin_port);
}

SocketAddress SocketAddress::withPort(quint16 port) const
{
    SocketAddress changed = *this;
    if (family() == AF_INET6)
        reinterpret_cast<sockaddr_in6 &>(changed.m_storage).sin6_port = htons(port);
    else
        reinterpret_cast<sockaddr_in &>(changed.m_storage).sin_port = htons(port);
    return changed;
}

QByteArray SocketAddress::host() const
{
    char text[NI_MAXHOST] = {};
    if (getnameinfo(data(), m_length, text, sizeof(text), nullptr, 0, NI_NUMERICHOST) != 0)
        return {};
    return text;
}

} // namespace zephira
