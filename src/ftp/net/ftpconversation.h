// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/folderlisting.h"
#include "ftp/net/dataport.h"

namespace zephira {

/// A logged-in connection to a server. Names are bytes as the server knows them, and paths are absolute. After a failure
/// that leaves the conversation out of step everything fails; one that the server answered leaves it as it was.
class FtpConversation
{
public:
    /// `limit` holds for each wait: the connection, each reply, each block of data.
    FtpConversation(std::chrono::milliseconds limit, bool passive) : m_control(limit), m_port(m_control, passive) {}
    Q_DISABLE_COPY_MOVE(FtpConversation)
    ~FtpConversation();

    bool logIn(const QString &server, quint16 port, const QByteArray &user, const QByteArray &password);
    /// Where the login led; empty if the server doesn't say.
    const QByteArray &loginFolder() const { return m_loginFolder; }

    /// True if the server says that the command is done.
    bool execute(const QByteArray &command);
    bool rename(const QByteArray &from, const QByteArray &to);
    /// The entries of a folder; a link that leads to a folder is one. Nothing after a failure.
    std::optional<std::vector<ListedEntry>> list(const QByteArray &folder, QDate today);

    // One file or listing at a time. While it runs, nothing else can be asked for.

    /// Gives a command, such as RETR or STOR, that the server answers with a data connection.
    bool beginTransfer(const QByteArray &command);
    /// Tells that another transfer follows the running one at once, so that it is prepared as soon as that has ended well.
    void expectTransfer() { m_expectsTransfer = isTransferring(); }
    bool isTransferring() const { return m_data.isOpen(); }
    /// What has arrived, up to `size` bytes: their number, 0 at the end, -1 after a failure.
    qsizetype receive(char *buffer, qsizetype size, Deadline deadline, Socket::Waiting waiting)
    {
        return m_data.receive(buffer, size, deadline, waiting);
    }
    bool send(QByteArrayView bytes);
    /// Ends a transfer to us, before its end if need be. True if the server says that it sent all.
    bool endReceiving();
    /// Ends a transfer to the server. True if it says that it has all.
    bool endSending();
    /// Gives the conversation up, after a wait that was too long to go on.
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
