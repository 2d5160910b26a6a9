// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/finddata.h"
#include "ftp/net/ftpconversation.h"
#include "ftp/remotenames.h"

namespace zephira {

/// A conversation in which names are texts, and paths may be relative to a current folder.
class NetConnection
{
public:
    NetConnection(std::chrono::milliseconds limit, bool passive) : m_conversation(limit, passive) {}

    bool logIn(const QString &server, quint16 port, const QString &user, const QString &password);
    /// Empty if the server didn't say where the login led.
    const QString &currentFolder() const { return m_folder; }
    bool setCurrentFolder(const QString &folder);
    /// Gives a command that names a folder or a file, and tells whether it is done.
    bool execute(const char *command, const QString &path);
    bool rename(const QString &from, const QString &to);
    /// The entries of the folder before the last "/" that match the pattern behind it. Empty after a failure.
    std::vector<FindData> find(const QString &search, QDate today);
    /// Gives a command that moves a file; the conversation then transfers it.
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
