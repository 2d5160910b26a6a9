// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/net/controlconnection.h"

namespace zephira {

/// Creates the data connection for each listing or file. Both ends are the machines of the control connection, whatever
/// address the server names.
class DataPort
{
public:
    /// Passive: the server opens a port, and we connect to it. Active: the other way round.
    DataPort(ControlConnection &control, bool passive) : m_control(control), m_passive(passive) {}

    /// Negotiates a port with the server. Call it before the command that moves the data.
    bool prepare();
    /// Requests a port in advance without waiting for the reply, so that the server prepares it while the client does
    /// something else. Use it at the end of a transfer that another one will soon follow. Only passive transfers benefit.
    void askAhead();
    /// Discards what was requested ahead. Call it before every command that is not part of a transfer, because the
    /// pending reply would otherwise be taken for that command's.
    void settle();
    /// The connection; call it when the server has answered the transfer's command.
    Socket take();
    /// Discards what was prepared.
    void discard();

private:
    bool preparePassive();
    bool prepareActive();
    FtpReply extendedPassiveReply();
    bool connectToPort(std::optional<quint16> port);

    ControlConnection &m_control;
    bool m_passive;
    /// EPSV and EPRT support IPv6 too; a server that doesn't know them isn't asked twice.
    bool m_extended = true;
    /// The time until which the port that was requested ahead may be used; empty if none was requested.
    std::optional<Deadline> m_ahead;
    Socket m_socket;
};

} // namespace zephira
