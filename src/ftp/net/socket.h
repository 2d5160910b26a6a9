// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/net/deadline.h"
#include "ftp/net/socketaddress.h"

#include <QByteArrayView>

#include <optional>
#include <utility>

namespace zephira {

/// A TCP connection, or a port that waits for one. It is closed when it goes. Every wait has a limit, and an operation
/// that passes it fails.
class Socket
{
public:
    /// None: every operation fails.
    Socket() = default;
    Socket(Socket &&other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    Socket &operator=(Socket &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~Socket() { close(); }

    /// A connection to the address, or none.
    static Socket connectedTo(const SocketAddress &address, Deadline deadline);
    /// A port at an address of this machine; port 0 lets the system choose one.
    static Socket listeningAt(const SocketAddress &address);
    /// The next connection that comes from the given machine to this port; others are turned away.
    Socket accept(const SocketAddress &from, Deadline deadline) const;

    bool isOpen() const { return m_descriptor >= 0; }
    /// What the system knows it by, or -1; it stays this object's.
    int descriptor() const { return m_descriptor; }
    void close();
    SocketAddress localAddress() const;
    SocketAddress peerAddress() const;

    /// Small pieces go out at once, not together with the next ones.
    void sendAtOnce();
    /// Sends all of it. The limit is for each wait, so that a slow line is no failure while something moves.
    bool send(QByteArrayView bytes, std::chrono::milliseconds limit);
    /// How receive() waits. A server near by answers sooner than the system puts a program to sleep and wakes it again,
    /// so that looking a few times before that is faster. It keeps the processor busy for at most a tenth of a
    /// millisecond, and is for what is asked for seldom, not for every piece of a large file.
    enum class Waiting { Asleep, AwakeAtFirst };

    /// What has arrived, up to `size` bytes: their number, 0 at the end of the connection, -1 after a failure.
    qsizetype receive(char *buffer, qsizetype size, Deadline deadline, Waiting waiting = Waiting::Asleep);
    /// Waits until something has arrived; false at the deadline.
    bool waitForInput(Deadline deadline) const;
    /// Ends the sending; the other side sees the end of the data.
    void endSending();
    /// The number of bytes that were sent and that the other side hasn't acknowledged yet.
    int unacknowledged() const;

private:
    explicit Socket(int descriptor) : m_descriptor(descriptor) {}
    bool wait(short events, Deadline deadline) const;

    int m_descriptor = -1;
};

} // namespace zephira
