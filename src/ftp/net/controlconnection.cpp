// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/controlconnection.h"

#include "ftp/net/hostlookup.h"
#include "ftp/safenames.h"

namespace zephira {

namespace {

using namespace std::chrono_literals;

/// A server that never ends its line is cut off here.
constexpr qsizetype longestLine = 1 << 16;

} // namespace

bool ControlConnection::connectTo(const QString &server, quint16 port)
{
    const Deadline deadline(m_limit);
    const std::vector<SocketAddress> addresses = lookUpHost(server, port, deadline);
    auto untried = static_cast<int>(addresses.size());
    for (const SocketAddress &address : addresses) {
        // An unresponsive address must leave time for the remaining ones.
        m_socket = Socket::connectedTo(address, Deadline(deadline.left() / untried--));
        if (m_socket.isOpen()) {
            m_peerAddress = address;
            m_socket.sendAtOnce();
            return true;
        }
    }
    return false;
}

void ControlConnection::quit()
{
    send("QUIT");
    m_socket.close();
}

FtpReply ControlConnection::ask(const QByteArray &command)
{
    return send(command) ? readReply() : FtpReply();
}

FtpReply ControlConnection::readReply()
{
    const Deadline deadline(m_limit);
    FtpReplyReader reader;
    while (!reader.isComplete()) {
        const qsizetype end = m_input.indexOf('\n');
        if (end < 0) {
            if (receiveMore(deadline))
                continue;
            abandon();
            return {};
        }
        const qsizetype length = end > 0 && m_input[end - 1] == '\r' ? end - 1 : end;
        if (!reader.take(QByteArrayView(m_input).first(length))) {
            abandon();
            return {};
        }
        m_input.remove(0, end + 1);
    }
    return reader.reply();
}

FtpReply ControlConnection::readReplyBehind(const Socket &data)
{
    // On a slow line the system still has much unsent data that the program has already written. No event signals when
    // it is sent, so it is polled.
    constexpr auto betweenLooks = 200ms;
    int waiting = data.unacknowledged();
    Deadline deadline(m_limit);
    while (waiting > 0 && m_input.isEmpty() && !m_socket.waitForInput(Deadline(betweenLooks))
           && !deadline.hasPassed()) {
        const int left = data.unacknowledged();
        if (left < waiting)
            deadline = Deadline(m_limit);
        waiting = left;
    }
    if (deadline.hasPassed())
        abandon();
    return readReply();
}

bool ControlConnection::send(const QByteArray &command)
{
    if (!isSafeInCommand(command) || !dropStrayInput())
        return false;
    if (m_socket.send(command + "\r\n", m_limit))
        return true;
    abandon();
    return false;
}

/// Input that arrived before the command was sent can't be its reply.
bool ControlConnection::dropStrayInput()
{
    const Deadline now(0ms);
    while (m_socket.waitForInput(now)) {
        if (!receiveMore(now)) {
            abandon();
            return false;
        }
    }
    m_input.clear();
    return isOpen();
}

bool ControlConnection::receiveMore(Deadline deadline)
{
    if (m_input.size() >= longestLine)
        return false;
    char buffer[4096];
    const qsizetype count = m_socket.receive(buffer, sizeof(buffer), deadline, Socket::Waiting::AwakeAtFirst);
    if (count <= 0)
        return false;
    m_input.append(buffer, count);
    return true;
}

} // namespace zephira
