// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/net/controlconnection.h"

namespace zephira {

/// Makes the second connection over which a listing or a file goes, one for each. Both sides use the machines of the
/// control connection, whatever address the server names.
class DataPort
{
public:
    /// Passive: the server opens a port, and we connect to it. Active: the other way round.
    DataPort(ControlConnection &control, bool passive) : m_control(control), m_passive(passive) {}

    /// Agrees with the server about a port. Comes before the command that moves the data.
    bool prepare();
    /// Asks for a port before its time and doesn't wait for the reply, so that the server looks for one while the client
    /// does something else. For the end of a transfer that another one follows soon. Passive transfers alone gain by it.
    void askAhead();
    /// Forgets what was asked ahead. Comes before every command that is no transfer's, because the reply may still be
    /// under way and would be taken for that command's.
    void settle();
    /// The connection, once the server has answered that command.
    Socket take();
    /// Forgets what was prepared.
    void discard();

private:
    bool preparePassive();
    bool prepareActive();
    FtpReply extendedPassiveReply();
    bool connectToPort(std::optional<quint16> port);

    ControlConnection &m_control;
    bool m_passive;
    /// EPSV and EPRT know IPv6 too; a server that doesn't know them isn't asked twice.
    bool m_extended = true;
    /// Until when the port that was asked ahead may be used; nothing if none was asked.
    std::optional<Deadline> m_ahead;
    Socket m_socket;
};

} // namespace zephira
