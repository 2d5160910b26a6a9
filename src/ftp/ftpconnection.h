// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace zephira {

class FtpDesk;
class Prompts;
struct FtpClient;

/// What the connect dialog has chosen. Server, user, password and port stand in the session already.
struct ConnectRequest {
    /// Shown in the log, and the agent's name; never empty.
    QString siteName;
    bool binary = true;
    bool passive = true;
};

/// Opens and closes the session's connection, and shows that on the desk.
class FtpConnection
{
public:
    FtpConnection(FtpClient &client, FtpDesk &desk, Prompts &prompts)
        : m_client(client), m_desk(desk), m_prompts(prompts)
    {}

    /// Connects, logs in and lists the login folder. `hideDialog` is called once the service is asked for. A failure is
    /// told and logged, and leaves the session unconnected; false then.
    bool connectToServer(const ConnectRequest &request, const std::function<void()> &hideDialog);
    /// Sets the session's transfer type and the menu's marks, which is all that the type does.
    void setTransferType(bool binary);
    /// Closes both handles and forgets them.
    void disconnectFromServer();
    /// Closes both handles and keeps their numbers, as the end of the window does.
    void closeHandles();
    /// Ends every dial-up connection of the machine and tells each one that ended.
    void hangUp();

private:
    bool openConnection(const ConnectRequest &request, quint32 flags, const std::function<void()> &hideDialog);
    QString loginSearchPath();

    FtpClient &m_client;
    FtpDesk &m_desk;
    Prompts &m_prompts;
};

} // namespace zephira
