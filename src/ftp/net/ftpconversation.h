// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/folderlisting.h"
#include "ftp/net/dataport.h"

namespace zephira {

/// A logged-in connection to a server. Names are bytes as the server knows them, and paths are absolute. A failure that
/// leaves the replies out of step makes everything after it fail; an error reply from the server does not.
class FtpConversation
{
public:
    /// `limit` applies to each wait: for the connection, each reply and each block of data.
    FtpConversation(std::chrono::milliseconds limit, bool passive) : m_control(limit), m_port(m_control, passive) {}
    Q_DISABLE_COPY_MOVE(FtpConversation)
    ~FtpConversation();

    bool logIn(const QString &server, quint16 port, const QByteArray &user, const QByteArray &password);
    /// The folder after the login; empty if the server doesn't say.
    const QByteArray &loginFolder() const { return m_loginFolder; }

    /// Returns true if the server reports success.
    bool execute(const QByteArray &command);
    bool rename(const QByteArray &from, const QByteArray &to);
    /// The entries of a folder; a link to a folder counts as a folder. Nothing after a failure.
    std::optional<std::vector<ListedEntry>> list(const QByteArray &folder, QDate today);

    // One file or listing at a time: while a transfer runs, no other command is possible.

    /// Sends a command, such as RETR or STOR, that opens a data connection.
    bool beginTransfer(const QByteArray &command);
    /// Announces that another transfer follows right after the current one, so that it is prepared as soon as that has
    /// succeeded.
    void expectTransfer() { m_expectsTransfer = isTransferring(); }
    bool isTransferring() const { return m_data.isOpen(); }
    /// Reads available data, up to `size` bytes. Returns their number, 0 at the end, -1 after a failure.
    qsizetype receive(char *buffer, qsizetype size, Deadline deadline, Socket::Waiting waiting)
    {
        return m_data.receive(buffer, size, deadline, waiting);
    }
    bool send(QByteArrayView bytes);
    /// Ends a download, early if need be. Returns true if the server reports that it sent everything.
    bool endReceiving();
    /// Ends an upload. Returns true if the server reports that it received everything.
    bool endSending();
    /// Drops the conversation, after a wait that took too long.
    void abandon();

    std::chrono::milliseconds limit() const { return m_control.limit(); }

private:
    FtpReply ask(const QByteArray &command);
    void askForFeatures();
    bool beginListing();
    std::optional<QByteArray> receiveListing();
    bool endTransfer(const FtpReply &reply);
    void followLinks(const QByteArray &path, std::vector<ListedEntry> &entries);

    ControlConnection m_control;
    DataPort m_port;
    Socket m_data;
    QByteArray m_loginFolder;
    bool m_knowsMlsd = false;
    bool m_expectsTransfer = false;
};

} // namespace zephira
