// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace zephira {

class FtpDesk;
class Prompts;
struct FtpClient;

/// The choices of the connect dialog. Server, user, password and port are already in the session.
struct ConnectRequest {
    /// Shown in the log, and used as the agent's name; never empty.
    QString siteName;
    bool binary = true;
    bool passive = true;
};

/// Opens and closes the session's connection, and shows its state in the FTP window.
class FtpConnection
{
public:
    FtpConnection(FtpClient &client, FtpDesk &desk, Prompts &prompts)
        : m_client(client), m_desk(desk), m_prompts(prompts)
    {}

    /// Connects, logs in and lists the login folder. `hideDialog` is called once the service has been requested.
    /// Returns false after a failure, which is shown and logged and leaves the session unconnected.
    bool connectToServer(const ConnectRequest &request, const std::function<void()> &hideDialog);
    /// Sets the session's transfer type and the check marks in the menu; the type has no other effect.
    void setTransferType(bool binary);
    /// Closes both handles and forgets them.
    void disconnectFromServer();
    /// Closes both handles but keeps their numbers, as happens when the window closes.
    void closeHandles();
    /// Ends every dial-up connection of the machine and shows a message for each.
    void hangUp();

private:
    bool openConnection(const ConnectRequest &request, quint32 flags, const std::function<void()> &hideDialog);
    QString loginSearchPath();

    FtpClient &m_client;
    FtpDesk &m_desk;
    Prompts &m_prompts;
};

} // namespace zephira
