// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/dataport.h"

#include <utility>

namespace zephira {

namespace {

constexpr auto extendedPassive = "EPSV";

/// A port that was requested ahead is used only within this fraction of the limit on waiting, usually one second.
/// Servers, and firewalls in between, close ports that nobody connects to.
constexpr int partOfLimit = 30;

/// After any other reply, the command may succeed the next time.
bool isUnknownCommand(const FtpReply &reply)
{
    return reply.code / 100 == 5;
}

} // namespace

bool DataPort::prepare()
{
    return m_passive ? preparePassive() : prepareActive();
}

Socket DataPort::take()
{
    Socket socket = std::move(m_socket);
    return m_passive ? std::move(socket) : socket.accept(m_control.peerAddress(), Deadline(m_control.limit()));
}

void DataPort::discard()
{
    m_socket.close();
}

void DataPort::askAhead()
{
    // PASV is not requested ahead: it is the fallback when the port that was requested ahead can't be used.
    if (m_passive && m_extended && m_control.send(extendedPassive))
        m_ahead = Deadline(m_control.limit() / partOfLimit);
}

void DataPort::settle()
{
    if (std::exchange(m_ahead, std::nullopt))
        m_control.readReply();
}

bool DataPort::preparePassive()
{
    if (m_extended) {
        const FtpReply reply = extendedPassiveReply();
        if (connectToPort(extendedPassivePort(reply)))
            return true;
        m_extended = !isUnknownCommand(reply);
    }
    return connectToPort(passivePort(m_control.ask("PASV")));
}

FtpReply DataPort::extendedPassiveReply()
{
    if (m_ahead && !m_ahead->hasPassed()) {
        m_ahead.reset();
        return m_control.readReply();
    }
    settle();
    return m_control.ask(extendedPassive);
}

bool DataPort::connectToPort(std::optional<quint16> port)
{
    if (!port)
        return false;
    m_socket = Socket::connectedTo(m_control.peerAddress().withPort(*port), Deadline(m_control.limit()));
    return m_socket.isOpen();
}

bool DataPort::prepareActive()
{
    m_socket = Socket::listeningAt(m_control.localAddress().withPort(0));
    if (!m_socket.isOpen())
        return false;
    const SocketAddress address = m_socket.localAddress();
    const bool isIpv4 = address.family() == AF_INET;
    const QByteArray host = address.host();
    if (m_extended) {
        const QByteArray extended =
            "EPRT |" + QByteArray(isIpv4 ? "1" : "2") + '|' + host + '|' + QByteArray::number(address.port()) + '|';
        const FtpReply reply = m_control.ask(extended);
        if (reply.isSuccess())
            return true;
        m_extended = !isUnknownCommand(reply);
    }
    const QByteArray numbers = QByteArray(host).replace('.', ',') + ',' + QByteArray::number(address.port() >> 8) + ','
        + QByteArray::number(address.port() & 0xff);
    return isIpv4 && m_control.ask("PORT " + numbers).isSuccess();
}

} // namespace zephira
