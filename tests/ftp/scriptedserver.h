// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/net/socket.h"

#include <QByteArray>
#include <QList>

#include <functional>
#include <map>
#include <thread>

namespace zephira {

/// A server for one connection, which behaves well but where the test says otherwise. It has a folder with the file
/// "a.htm", whose content is "hello", and knows EPSV alone.
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
        /// Sends bytes over the data connection that the last EPSV or PASV has opened.
        void sendData(const QByteArray &bytes);
        /// Reads what the client sends there, to its end.
        QByteArray receiveData();
        /// Reads a piece of it: the number of bytes, 0 at the end.
        qsizetype receivePiece(qsizetype size);
        void closeData() { m_data.close(); }
        void resetData();
        /// Answers nothing until the client has gone.
        void stall();
        /// Ends the conversation, in order or with a reset.
        void drop() { m_control.close(); }
        void reset();
        /// Opens a port for data and gives its number.
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

    /// The handlers are called for their commands, such as "RETR", in place of the usual ones; the one of the empty
    /// command greets. They run in the server's thread.
    explicit ScriptedServer(std::map<QByteArray, Handler> handlers = {});
    ~ScriptedServer();
    Q_DISABLE_COPY_MOVE(ScriptedServer)

    quint16 port() const { return m_port; }
    /// Waits until the client has gone, and gives the lines that it sent; none if it never came.
    QList<QByteArray> commands();

private:
    std::map<QByteArray, Handler> m_handlers;
    QList<QByteArray> m_commands;
    Socket m_listener;
    quint16 m_port = 0;
    std::thread m_thread;
};

/// Answers a command with a line.
ScriptedServer::Handler replying(const QByteArray &line);
/// The verb of each command that a server was given.
QByteArray verbs(const QList<QByteArray> &commands);

} // namespace zephira
