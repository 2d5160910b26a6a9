// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/hostlookup.h"

#include <QUrl>

#include <future>
#include <memory>
#include <thread>

#include <netdb.h>

namespace zephira {

namespace {

using Addresses = std::vector<SocketAddress>;

Addresses lookUp(const QByteArray &name, quint16 port, int flags)
{
    addrinfo hints = {};
    hints.ai_flags = flags | AI_NUMERICSERV;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo *first = nullptr;
    if (getaddrinfo(name.constData(), QByteArray::number(port).constData(), &hints, &first) != 0)
        return {};
    const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> owner(first, freeaddrinfo);
    Addresses addresses;
    for (const addrinfo *info = first; info; info = info->ai_next)
        addresses.emplace_back(info->ai_addr, info->ai_addrlen);
    return addresses;
}

} // namespace

std::vector<SocketAddress> lookUpHost(const QString &server, quint16 port, Deadline deadline)
{
    if (const Addresses numeric = lookUp(server.toUtf8(), port, AI_NUMERICHOST); !numeric.empty())
        return numeric;
    const QByteArray name = QUrl::toAce(server);
    if (name.isEmpty())
        return {};
    // The system's lookup has no time limit. It runs in its own thread, and if it takes too long it is abandoned: it
    // owns all data it uses.
    std::promise<Addresses> promise;
    std::future<Addresses> found = promise.get_future();
    std::thread([name, port, promise = std::move(promise)]() mutable {
        promise.set_value(lookUp(name, port, AI_ADDRCONFIG));
    }).detach();
    return found.wait_for(deadline.left()) == std::future_status::ready ? found.get() : Addresses();
}

} // namespace zephira
