// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/socket.h"

#include <cerrno>

#include <linux/sockios.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace zephira {

namespace {

/// Flags for every socket: its calls don't block, and started programs don't inherit it.
constexpr int socketFlags = SOCK_NONBLOCK | SOCK_CLOEXEC;

/// How long to poll for data before going to sleep.
constexpr std::chrono::microseconds timeAwake{100};

bool wouldBlock()
{
    return errno == EAGAIN || errno == EWOULDBLOCK;
}

int newDescriptor(const SocketAddress &address)
{
    return ::socket(address.family(), SOCK_STREAM | socketFlags, 0);
}

/// Calls a function like getsockname or getpeername and returns the address.
template<typename Ask>
SocketAddress addressFrom(Ask ask, int descriptor)
{
    sockaddr_storage storage = {};
    socklen_t length = sizeof(storage);
    auto *address = reinterpret_cast<sockaddr *>(&storage);
    return ask(descriptor, address, &length) == 0 ? SocketAddress(address, length) : SocketAddress();
}

} // namespace

Socket Socket::connectedTo(const SocketAddress &address, Deadline deadline)
{
    Socket socket(newDescriptor(address));
    if (!socket.isOpen())
        return {};
    if (::connect(socket.m_descriptor, address.data(), address.length()) == 0)
        return socket;
    int error = errno;
    socklen_t length = sizeof(error);
    if (error != EINPROGRESS || !socket.wait(POLLOUT, deadline)
        || ::getsockopt(socket.m_descriptor, SOL_SOCKET, SO_ERROR, &error, &length) != 0 || error != 0)
        return {};
    return socket;
}

Socket Socket::listeningAt(const SocketAddress &address)
{
    Socket socket(newDescriptor(address));
    if (!socket.isOpen() || ::bind(socket.m_descriptor, address.data(), address.length()) != 0
        || ::listen(socket.m_descriptor, 1) != 0)
        return {};
    return socket;
}

Socket Socket::accept(const SocketAddress &from, Deadline deadline) const
{
    while (wait(POLLIN, deadline)) {
        Socket socket(::accept4(m_descriptor, nullptr, nullptr, socketFlags));
        if (socket.isOpen() && socket.peerAddress().isSameHost(from))
            return socket;
        if (!socket.isOpen() && !wouldBlock() && errno != ECONNABORTED && errno != EINTR)
            break;
    }
    return {};
}

void Socket::close()
{
    if (isOpen())
        ::close(std::exchange(m_descriptor, -1));
}

SocketAddress Socket::localAddress() const
{
    return addressFrom(::getsockname, m_descriptor);
}

SocketAddress Socket::peerAddress() const
{
    return addressFrom(::getpeername, m_descriptor);
}

void Socket::sendAtOnce()
{
    const int on = 1;
    ::setsockopt(m_descriptor, IPPROTO_TCP, TCP_NODELAY, &on, sizeof(on));
}

bool Socket::send(QByteArrayView bytes, std::chrono::milliseconds limit)
{
    while (!bytes.isEmpty()) {
        const ssize_t count = ::send(m_descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
        if (count > 0)
            bytes = bytes.sliced(count);
        else if (errno != EINTR && !(wouldBlock() && wait(POLLOUT, Deadline(limit))))
            return false;
    }
    return isOpen();
}

qsizetype Socket::receive(char *buffer, qsizetype size, Deadline deadline, Waiting waiting)
{
    const auto isAwake = [waiting, end = Deadline::Clock::now() + timeAwake] {
        return waiting == Waiting::AwakeAtFirst && Deadline::Clock::now() < end;
    };
    for (;;) {
        const ssize_t count = ::recv(m_descriptor, buffer, static_cast<std::size_t>(size), 0);
        if (count >= 0)
            return count;
        if (errno != EINTR && !(wouldBlock() && (isAwake() || wait(POLLIN, deadline))))
            return -1;
    }
}

bool Socket::waitForInput(Deadline deadline) const
{
    return wait(POLLIN, deadline);
}

void Socket::endSending()
{
    ::shutdown(m_descriptor, SHUT_WR);
}

int Socket::unacknowledged() const
{
    int bytes = 0;
    return isOpen() && ::ioctl(m_descriptor, SIOCOUTQ, &bytes) == 0 ? bytes : 0;
}

/// Also returns true for an error or the end of the connection: the next call reports it.
bool Socket::wait(short events, Deadline deadline) const
{
    while (isOpen()) {
        pollfd state = {m_descriptor, events, 0};
        const int ready = ::poll(&state, 1, static_cast<int>(deadline.left().count()));
        if (ready > 0)
            return (state.revents & POLLNVAL) == 0;
        if (ready == 0 || errno != EINTR)
            return false;
    }
    return false;
}

} // namespace zephira
