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
    /// The connection, once the server has answered that command.
    Socket take();
    /// Forgets what was prepared.
    void discard();

private:
    bool preparePassive();
    bool prepareActive();
    bool connectToPort(std::optional<quint16> port);

    ControlConnection &m_control;
    bool m_passive;
    /// EPSV and EPRT know IPv6 too; a server that doesn't know them isn't asked twice.
    bool m_extended = true;
    Socket m_socket;
};

} // namespace zephira
