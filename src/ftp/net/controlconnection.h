// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/ftpreply.h"
#include "ftp/net/socket.h"

#include <QString>

namespace zephira {

/// The connection over which commands and replies go. It is lost for good when the server closes it, doesn't answer in
/// time or sends what is no reply: then the client can't tell any more which reply belongs to which command.
class ControlConnection
{
public:
    /// `limit` is how long the connection, each command and each reply may take.
    explicit ControlConnection(std::chrono::milliseconds limit) : m_limit(limit) {}

    /// Connects to the first address of the server that answers.
    bool connectTo(const QString &server, quint16 port);
    bool isOpen() const { return m_socket.isOpen(); }
    /// Takes leave of the server, and doesn't wait for its answer.
    void quit();
    /// Ends the connection at once.
    void abandon() { m_socket.close(); }

    /// The reply to a command, which stands without its line end; the code is 0 if there is none.
    FtpReply ask(const QByteArray &command);
    /// Gives a command and leaves its reply to readReply(), which has to come before the next command. False if it
    /// wasn't sent.
    bool send(const QByteArray &command);
    FtpReply readReply();
    /// The same after an upload: the limit begins when the server has taken the last of the data that it takes.
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
    /// What has arrived and isn't read yet.
    QByteArray m_input;
};

} // namespace zephira
