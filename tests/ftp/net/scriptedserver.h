// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/net/socket.h"

#include <QByteArray>
#include <QList>

#include <functional>
#include <map>
#include <thread>

namespace zephira {

/// A server for one connection, which behaves correctly unless the test provides other handlers. It has a folder with
/// the file "a.htm", whose content is "hello", and supports EPSV but not PASV.
class ScriptedServer
{
public:
    /// The conversation as a handler sees it.
    class Session
    {
    public:
        Session(Socket control, ScriptedServer &server) : m_control(std::move(control)), m_server(server) {}

        /// Sends a line; CR LF is added.
        void reply(const QByteArray &line);
        /// Sends bytes over the data connection that the last EPSV or PASV opened.
        void sendData(const QByteArray &bytes);
        /// Reads everything that the client sends over the data connection.
        QByteArray receiveData();
        /// Reads up to `size` bytes of it; returns their number, 0 at the end.
        qsizetype receivePiece(qsizetype size);
        void closeData() { m_data.close(); }
        void resetData();
        /// Stays silent until the client has disconnected.
        void stall();
        /// These end the conversation, either normally or with a reset.
        void drop() { m_control.close(); }
        void reset();
        /// Opens a data port and returns its number.
        quint16 openDataPort();

    private:
        friend class ScriptedServer;
        void serve();
        void answer(const QByteArray &line);
        void acceptData();

        Socket m_control;
        ScriptedServer &m_server;
        Socket m_dataPort;
        Socket m_data;
    };

    using Handler = std::function<void(Session &session, const QByteArray &argument)>;

    /// The handlers replace the default ones of their commands, such as "RETR"; that of the empty command sends the
    /// greeting. They run in the server's thread.
    explicit ScriptedServer(std::map<QByteArray, Handler> handlers = {});
    ~ScriptedServer();
    Q_DISABLE_COPY_MOVE(ScriptedServer)

    quint16 port() const { return m_port; }
    /// Waits until the client has disconnected and returns the lines that it sent; none if it never connected.
    QList<QByteArray> commands();

private:
    std::map<QByteArray, Handler> m_handlers;
    QList<QByteArray> m_commands;
    Socket m_listener;
    quint16 m_port = 0;
    std::thread m_thread;
};

/// A handler that answers with a line.
ScriptedServer::Handler replying(const QByteArray &line);
/// The verbs of the commands that a server received.
QByteArray verbs(const QList<QByteArray> &commands);

} // namespace zephira
