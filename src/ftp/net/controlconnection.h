// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/ftpreply.h"
#include "ftp/net/socket.h"

#include <QString>

namespace zephira {

/// The connection for commands and replies. It is closed for good when the server closes it, doesn't answer in time or
/// sends something that is no reply: from then on the client can't tell which reply belongs to which command.
class ControlConnection
{
public:
    /// `limit` is the maximum time for connecting, for each command and for each reply.
    explicit ControlConnection(std::chrono::milliseconds limit) : m_limit(limit) {}

    /// Connects to the first of the server's addresses that answers.
    bool connectTo(const QString &server, quint16 port);
    bool isOpen() const { return m_socket.isOpen(); }
    /// Sends the farewell to the server without waiting for its answer.
    void quit();
    /// Closes the connection immediately.
    void abandon() { m_socket.close(); }

    /// Sends a command, given without its line end, and returns the reply; its code is 0 if there is none.
    FtpReply ask(const QByteArray &command);
    /// Sends a command whose reply must be read with readReply() before the next command. Returns false if it wasn't
    /// sent.
    bool send(const QByteArray &command);
    FtpReply readReply();
    /// The same after an upload: the time limit starts when the server has accepted the last of the data.
    FtpReply readReplyBehind(const Socket &data);

    std::chrono::milliseconds limit() const { return m_limit; }
    SocketAddress localAddress() const { return m_socket.localAddress(); }
    const SocketAddress &peerAddress() const { return m_peerAddress; }

private:
    bool dropStrayInput();
    bool receiveMore(Deadline deadline);

    std::chrono::milliseconds m_limit;
    Socket m_socket;
    SocketAddress m_peerAddress;
    /// Received, but not read yet.
    QByteArray m_input;
};

} // namespace zephira
