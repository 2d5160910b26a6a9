// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/net/deadline.h"
#include "ftp/net/socketaddress.h"

#include <QByteArrayView>

#include <optional>
#include <utility>

namespace zephira {

/// A TCP connection, or a port that waits for one. The destructor closes it. Every wait has a limit, and an operation
/// that exceeds it fails.
class Socket
{
public:
    /// No socket: every operation fails.
    Socket() = default;
    Socket(Socket &&other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    Socket &operator=(Socket &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~Socket() { close(); }

    /// Connects to the address; on failure the result is an empty socket.
    static Socket connectedTo(const SocketAddress &address, Deadline deadline);
    /// Listens at an address of this machine; port 0 lets the system choose a port.
    static Socket listeningAt(const SocketAddress &address);
    /// The next connection to this port from the given machine; connections from others are closed.
    Socket accept(const SocketAddress &from, Deadline deadline) const;

    bool isOpen() const { return m_descriptor >= 0; }
    /// The system's descriptor, or -1; this object keeps ownership.
    int descriptor() const { return m_descriptor; }
    void close();
    SocketAddress localAddress() const;
    SocketAddress peerAddress() const;

    /// Sends small pieces immediately instead of collecting them.
    void sendAtOnce();
    /// Sends all bytes. The limit applies to each wait, so that a slow line is no failure as long as data moves.
    bool send(QByteArrayView bytes, std::chrono::milliseconds limit);
    /// How receive() waits. A nearby server answers faster than the system can put a program to sleep and wake it, so
    /// polling briefly first is faster. Polling keeps the processor busy for at most a tenth of a millisecond; it is
    /// meant for infrequent requests, not for every piece of a large file.
    enum class Waiting { Asleep, AwakeAtFirst };

    /// Reads available data, up to `size` bytes. Returns their number, 0 at the end of the connection, -1 after a
    /// failure.
    qsizetype receive(char *buffer, qsizetype size, Deadline deadline, Waiting waiting = Waiting::Asleep);
    /// Waits until data has arrived; returns false at the deadline.
    bool waitForInput(Deadline deadline) const;
    /// Shuts down sending; the other side sees the end of the data.
    void endSending();
    /// The number of sent bytes that the other side hasn't acknowledged yet.
    int unacknowledged() const;

private:
    explicit Socket(int descriptor) : m_descriptor(descriptor) {}
    bool wait(short events, Deadline deadline) const;

    int m_descriptor = -1;
};

} // namespace zephira
