// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/finddata.h"
#include "ftp/net/ftpconversation.h"
#include "ftp/remotenames.h"

namespace zephira {

/// A conversation in which names are text and paths may be relative to a current folder.
class NetConnection
{
public:
    NetConnection(std::chrono::milliseconds limit, bool passive) : m_conversation(limit, passive) {}

    bool logIn(const QString &server, quint16 port, const QString &user, const QString &password);
    /// Empty if the server didn't report the folder after the login.
    const QString &currentFolder() const { return m_folder; }
    bool setCurrentFolder(const QString &folder);
    /// Sends a command with a folder or a file and returns whether it succeeded.
    bool execute(const char *command, const QString &path);
    bool rename(const QString &from, const QString &to);
    /// The entries that match the pattern after the last "/" in the folder before it. Empty after a failure.
    std::vector<FindData> find(const QString &search, QDate today);
    /// Sends a command that moves a file; the conversation then transfers it.
    bool beginTransfer(const char *command, const QString &path);
    FtpConversation &conversation() { return m_conversation; }

private:
    QString absolutePath(const QString &path) const;
    QByteArray command(const char *command, const QString &path) const;

    FtpConversation m_conversation;
    RemoteNames m_names;
    QString m_folder;
};

} // namespace zephira
